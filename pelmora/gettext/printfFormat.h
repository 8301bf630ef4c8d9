#pragma once

#include "pelmora/gettext/FormatArgument.h"

#include <cstddef>
#include <span>
#include <string_view>

// The printf-style formatter of GString::format and GString::from_number. Internal to the gettext
// folder.

namespace Pelmora::Native
{

/// Writes `format` with its conversions replaced by the arguments into `buffer`, without a NUL.
/// Returns the number of units written, or -1 when they do not all fit; the buffer then holds the
/// first ones. `Char` is `char` (ANSI code page) or `WideChar`.
template <class Char>
std::ptrdiff_t formatInto(std::span<Char> buffer, std::basic_string_view<Char> format,
                          std::span<const FormatArgument> arguments);

extern template std::ptrdiff_t formatInto<char>(std::span<char>, std::string_view,
                                                std::span<const FormatArgument>);
extern template std::ptrdiff_t formatInto<WideChar>(std::span<WideChar>, WideView,
                                                    std::span<const FormatArgument>);

} // namespace Pelmora::Native
