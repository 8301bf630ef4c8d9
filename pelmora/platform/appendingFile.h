#pragma once

#include <cstdio>
#include <string>

namespace Pelmora::Native::Platform
{

/// Opens a text file so that each write goes to its present end, also when other programs write to
/// it or truncate it meanwhile; `truncate` empties it first. Null when the file cannot be opened.
/// The caller closes it; child processes do not inherit it. Throws std::bad_alloc.
std::FILE* openForAppending(const std::string& path, bool truncate);

} // namespace Pelmora::Native::Platform
