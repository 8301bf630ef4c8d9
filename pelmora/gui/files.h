#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/AnsiText.h"

// Files by their names in the ANSI code page, at most 259 bytes as the system's narrow functions
// take them. A wide name with characters that the code page lacks names no file: a best fit would
// be the name of another. May run in several threads at once, as far as the log allows.

namespace Pelmora::Native
{

/// Whether a file or folder of that name exists. One separator at the end is no part of it. A
/// pattern with wildcards counts as existing when it matches anything. An empty path does not
/// exist, nor does the root of a drive, which no folder lists.
PELMORA_API bool pathExists(const AnsiText& path);

/// Takes the read-only attribute from a file or folder, so that it can be written; all others stay.
/// Nothing happens where it is not set or nothing is there. Otherwise one line in the error log
/// says whether it was removed; on purpose it says "Could not remove" also of a success when
/// `logSuccess` is false.
PELMORA_API void removeReadOnly(const AnsiText& path, bool logSuccess);

} // namespace Pelmora::Native
