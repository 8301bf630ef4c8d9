#pragma once

#include <string>
#include <string_view>
#include <type_traits>

namespace Pelmora::Native
{

/// One UTF-16 code unit: `wchar_t` where it has 16 bits (Windows), `char16_t` elsewhere.
using WideChar = std::conditional_t<sizeof(wchar_t) == sizeof(char16_t), wchar_t, char16_t>;

/// UTF-16 in the standard library's types. Text that is shown to users is a `GString`.
using WideString = std::basic_string<WideChar>;
using WideView = std::basic_string_view<WideChar>;

} // namespace Pelmora::Native
