#pragma once

#include "pelmora/base/wideChar.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

// Internal to GString, whose templates make these arguments.

namespace Pelmora::Native
{

/// One argument of a printf-style format together with its type, so that a conversion that does not
/// fit its argument is noticed. Narrow text is referred to, not copied, and must outlive this
/// object. A null pointer to text stands for "(null)".
class FormatArgument
{
public:
    /// An integer as it is after promotion, of at least 32 bits.
    struct Integer {
        std::uint64_t bits; ///< sign-extended for a signed type
        bool is64;
    };
    using Value = std::variant<Integer, double, std::string_view, WideString, const void*>;

    // NOLINTBEGIN(google-explicit-constructor): an argument is its value
    template <class T>
    requires std::integral<T> || std::is_enum_v<T> FormatArgument(T value)
        : value_(Integer{static_cast<std::uint64_t>(value), sizeof(T) > sizeof(std::int32_t)})
    {
    }
    FormatArgument(double value) : value_(value) {}
    FormatArgument(const char* text) : value_(text == nullptr ? "(null)" : std::string_view(text))
    {
    }
    FormatArgument(std::string_view text) : value_(text) {}
    template <class Unit>
    requires std::same_as<Unit, WideChar> || std::same_as<Unit, char16_t>
    FormatArgument(std::basic_string_view<Unit> text) : value_(WideString(text.begin(), text.end()))
    {
    }
    template <class Unit>
    FormatArgument(const std::basic_string<Unit>& text)
        : FormatArgument(std::basic_string_view<Unit>(text))
    {
    }
    template <class Unit>
    requires std::same_as<Unit, WideChar> || std::same_as<Unit, char16_t>
    FormatArgument(const Unit* text) : value_(WideString())
    {
        constexpr Unit null[] = {'(', 'n', 'u', 'l', 'l', ')', 0};
        const std::basic_string_view<Unit> view(text == nullptr ? null : text);
        value_ = WideString(view.begin(), view.end());
    }
    FormatArgument(const void* pointer) : value_(pointer) {}
    // NOLINTEND(google-explicit-constructor)

    const Value& value() const noexcept { return value_; }

private:
    Value value_;
};

} // namespace Pelmora::Native
