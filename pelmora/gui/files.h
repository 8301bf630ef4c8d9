#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/AnsiText.h"

// Files by their names in the ANSI code page, at most 259 bytes as the system's narrow functions
// take them. A wide name with characters that the code page lacks names no file: a best fit would
// be the name of another. May run in several threads at once, as far as the log allows.

namespace Pelmora::Native
{

/// Whether a file or folder of that name exists. One separator at the end is ignored. A pattern
/// with wildcards exists if it matches anything. An empty path does not exist, nor does the root of
/// a drive, which no folder lists.
PELMORA_API bool pathExists(const AnsiText& path);

/// Removes the read-only attribute of a file or folder and leaves all others. Nothing happens if it
/// is not set or the file does not exist. Otherwise the error log gets one line that says whether
/// it was removed; without `logSuccess` that line says "Could not remove" of a success too, on
/// purpose.
PELMORA_API void removeReadOnly(const AnsiText& path, bool logSuccess);

} // namespace Pelmora::Native
