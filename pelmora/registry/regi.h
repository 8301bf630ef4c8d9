#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/AnsiText.h"

#include <concepts>
#include <string>

#include <windows.h>

// One registry operation each on a key that is opened for it and closed again: `root` is a
// predefined key such as HKEY_CURRENT_USER, `path` the key below it and `name` the value. With
// `log` a failure is one line in the error log, with the system's text for it. Nothing here throws
// for a failure of the registry. Texts cross to the system in the ANSI code page. As far as the log
// allows, all functions may run in several threads at once.

namespace Pelmora::Native
{

/// The string value, or `fallback` when it cannot be read; never makes a key. In the wide form the
/// fallback crosses to the ANSI code page and back.
PELMORA_API std::string regiRead(HKEY root, const std::string& path, const std::string& name,
                                 const std::string& fallback, bool log = false);
PELMORA_API GString regiRead(HKEY root, const GString& path, const GString& name,
                             const GString& fallback, bool log = false);

/// Whether the string value was written; makes the key and its parents when they are not there.
PELMORA_API bool regiWrite(HKEY root, const AnsiText& path, const AnsiText& name,
                           const AnsiText& value, bool log = false);

/// Whether the value was deleted. The line for a value that is not there ends without a reason, on
/// purpose: deletion leaves no text.
PELMORA_API bool regiDelete(HKEY root, const AnsiText& path, const AnsiText& name,
                            bool log = false);

/// Whether the key was deleted with its values; one that has subkeys is not.
PELMORA_API bool regiDeleteKey(HKEY root, const AnsiText& path, bool log = false);

/// Deleted because a value's name would convert to `log`, and the whole key would go.
template <class Path, class Text>
requires std::convertible_to<Text, AnsiText>
bool regiDeleteKey(HKEY, const Path&, Text) = delete;

} // namespace Pelmora::Native
