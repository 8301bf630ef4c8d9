#pragma once

#include "pelmora/base/wideChar.h"

#include <span>

// What the host must provide to convert between UTF-16 and the text of a Windows code page.
//
// The code page numbers are those of Windows, with 0 for the ANSI code page. Bytes and units that
// have no counterpart are replaced, never reported: by what the code page's table of best fits
// says, otherwise by its default character. Linux has such tables for 932, 936, 949 and 1252 only,
// and no user-defined characters in 936 and 949. Both functions stop at the terminating NUL, which
// is converted too. Safe to call from several threads; lack of memory is std::bad_alloc.

namespace Pelmora::Native::Platform
{

enum class ConversionStatus {
    done,           ///< the buffer holds the whole result and its NUL
    bufferTooSmall, ///< the buffer holds what fitted, without a NUL
    failed,         ///< the host does not know the code page; the buffer holds nothing of use
};

/// Requires: `text` ends in a NUL.
ConversionStatus decode(unsigned int codePage, const char* text, std::span<WideChar> buffer);

/// Requires: `text` ends in a NUL.
ConversionStatus encode(unsigned int codePage, const WideChar* text, std::span<char> buffer);

/// The character that stands for unencodable ones in the ANSI code page: its first byte in the low
/// eight bits, its second one, if any, in the high ones.
char16_t ansiDefaultCharacter() noexcept;

} // namespace Pelmora::Native::Platform
