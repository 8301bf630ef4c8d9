#pragma once

#include "pelmora/gettext/gstringUtil.h"

#include <string>

namespace Pelmora
{

/// The UTF-8 of an exception's message, which other programs must understand; GString's own form
/// splits supplementary characters. Well-formed in every case: a surrogate that is not part of a
/// pair becomes U+FFFD.
std::string utf8Message(const GString& text);

} // namespace Pelmora
