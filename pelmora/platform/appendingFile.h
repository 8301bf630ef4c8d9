#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace Pelmora::Native::Platform
{

/// Opens a text file so that each write goes to its present end, also when other programs write to
/// it or truncate it meanwhile; `truncate` empties it first. Null when the file cannot be opened.
/// The caller closes it; child processes do not inherit it. Throws std::bad_alloc.
std::FILE* openForAppending(const std::string& path, bool truncate);

/// Appends to such a file, after what was written to the stream before. The bytes are the system's
/// when it returns; what the system does not take is lost without an error.
void append(std::FILE* file, std::string_view bytes) noexcept;

} // namespace Pelmora::Native::Platform
