#pragma once

#include "pelmora/gettext/FormatArgument.h"

#include <cstddef>
#include <span>
#include <string_view>

// The printf-style formatter of GString::format and GString::from_number. Internal to the gettext
// folder.

namespace Pelmora::Native
{

struct FormatResult {
    std::size_t length; ///< of what was written
    bool isCut;         ///< the rest did not fit
};

/// Writes `format` with its conversions replaced by the arguments into `buffer`, without a NUL.
/// `Char` is `char` (ANSI code page) or `WideChar`.
template <class Char>
FormatResult formatInto(std::span<Char> buffer, std::basic_string_view<Char> format,
                        std::span<const FormatArgument> arguments);

extern template FormatResult formatInto<char>(std::span<char>, std::string_view,
                                              std::span<const FormatArgument>);
extern template FormatResult formatInto<WideChar>(std::span<WideChar>, WideView,
                                                  std::span<const FormatArgument>);

} // namespace Pelmora::Native
