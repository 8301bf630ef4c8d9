#pragma once

#include "pelmora/base/wideChar.h"

#include <string>
#include <string_view>

// UTF-8 of whole characters, as libraries and file systems expect it; GString's own form splits
// supplementary characters.

namespace Pelmora::Native::Platform
{

/// A surrogate that is not part of a pair becomes three bytes, which no UTF-8 decoder accepts, so
/// that whoever gets them refuses the text instead of reading another one.
std::string toUtf8(WideView text);

/// Requires: well-formed UTF-8; other bytes give "".
WideString toUtf16(std::string_view utf8);

} // namespace Pelmora::Native::Platform
