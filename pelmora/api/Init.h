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
    /// A language code, "de", or the path of a catalogue, which crosses to the system in the ANSI
    /// code page.
    static void init(const GString& lang);

    /// The language of the user's culture, such as de-DE: the system's on Windows, that of the
    /// environment on Linux.
    static void init();

    Init() = delete;
};

} // namespace Pelmora
