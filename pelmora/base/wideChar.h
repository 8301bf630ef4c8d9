#pragma once

#include <string>
#include <string_view>
#include <type_traits>

namespace Pelmora::Native
{

/// One UTF-16 code unit: the system's wide character where that has 16 bits (Windows), otherwise
/// `char16_t`.
using WideChar = std::conditional_t<sizeof(wchar_t) == sizeof(char16_t), wchar_t, char16_t>;

/// UTF-16 as the standard library holds it. Text for users is a `GString`.
using WideString = std::basic_string<WideChar>;
using WideView = std::basic_string_view<WideChar>;

} // namespace Pelmora::Native
