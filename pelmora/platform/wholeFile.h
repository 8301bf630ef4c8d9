#pragma once

#include "pelmora/base/wideChar.h"

#include <span>
#include <string>
#include <system_error>

// What the host must provide to read, delete and write files whole.
//
// Each function gives the system's error, whose message says the reason in UTF-8, or none. File
// names are UTF-16; a system whose names are bytes gets them in UTF-8. Safe to call from several
// threads.

namespace Pelmora::Native::Platform
{

/// Replaces `bytes` by the file's content; after an error they hold nothing of use.
std::error_code readWholeFile(const WideString& name, std::string& bytes);

/// A file that is not there is no error; a folder is never deleted.
std::error_code deleteFile(const WideString& name);

/// Makes or truncates the file, and writes the pieces one after the other. One that could not be
/// written to its end is deleted, because nobody could tell it from a whole one.
std::error_code writeWholeFile(const WideString& name, std::span<const std::string> pieces);

} // namespace Pelmora::Native::Platform
