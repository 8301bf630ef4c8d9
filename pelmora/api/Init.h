#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"

namespace Pelmora
{

/// Starts the library's translations: called once by a program, before it translates anything and
/// before other threads do; again to change the language. See Native::TextLocale::init for what a
/// language is, and for the exception that a malformed one throws. A language whose catalogue
/// cannot be loaded is no failure.
class PELMORA_API Init
{
public:
    /// A language code or the path of a catalogue, which crosses to the system in the ANSI code
    /// page. The code "de" stands for the catalogue "de.mo" in the current folder.
    static void init(const GString& lang);

    /// `init` with the name of the user's culture: the system's on Windows, that of the environment
    /// on Linux. Like any name without ".mo", it gives its last two characters as the language:
    /// "de-DE" gives "DE" and "ja-JP" gives "JP", which are no known languages. The catalogue is
    /// "ja-JP.mo" in the current folder. Pass the code yourself where the language's own code page
    /// or identifier is needed.
    static void init();

    Init() = delete;
};

} // namespace Pelmora
