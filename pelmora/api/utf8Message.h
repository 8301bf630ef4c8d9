#pragma once

#include "pelmora/gettext/gstringUtil.h"

#include <string>
#include <string_view>

// The UTF-8 of exceptions' messages, which other programs must understand; GString's own form
// splits supplementary characters.

namespace Pelmora
{

/// Well-formed in every case: a surrogate that is not part of a pair becomes U+FFFD.
std::string utf8Message(const GString& text);

/// Whether the bytes are what the Unicode standard calls well-formed UTF-8.
bool isWellFormedUtf8(std::string_view bytes) noexcept;

} // namespace Pelmora
