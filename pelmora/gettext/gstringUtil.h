#pragma once

#include "pelmora/base/codePageNumbers.h"
#include "pelmora/base/wideChar.h"
#include "pelmora/export.h"
#include "pelmora/gettext/FormatArgument.h"

#include <array>
#include <compare>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Pelmora::Native
{

/// The unit of a UTF-16 literal: u"..." everywhere, and L"..." on Windows too.
template <class T>
concept Utf16Unit = std::same_as<T, WideChar> || std::same_as<T, char16_t>;

/// The text type of everything that is shown to a user: UTF-16 with value semantics. Each unit
/// counts as one character, and a supplementary character as two, those of its surrogate pair. Text
/// is never normalised.
///
/// Narrow text always comes with the number of a Windows code page. Conversions by code page never
/// fail: a character without a counterpart becomes its best fit or the code page's default
/// character, and an unknown code page gives an empty text. On Linux, only 932, 936, 949 and 1252
/// have best fits, and the user-defined characters of 936 and 949 have no counterparts. Conversions
/// end at the first NUL; `from_utf8`, `to_utf8` and `to_narrow(65001)` go on. They may run in
/// several threads at once. Pointers to text must not be null.
class PELMORA_API GString
{
public:
    using const_iterator = WideString::const_iterator;

    /// The empty text.
    GString() noexcept = default;
    /// From UTF-16: a string, a view, or a NUL-terminated text such as a literal.
    GString(const WideString& text) : text_(text) {} // NOLINT(google-explicit-constructor)
    GString(WideString&& text) noexcept
        : text_(std::move(text)) {}         // NOLINT(google-explicit-constructor)
    GString(WideView text) : text_(text) {} // NOLINT(google-explicit-constructor)
    template <Utf16Unit Unit>
    GString(const Unit* text) // NOLINT(google-explicit-constructor): a literal is a text
        : GString(std::basic_string_view<Unit>(text))
    {
    }
    /// From a view of the other type of UTF-16 units.
    template <Utf16Unit Unit>
    requires(!std::same_as<Unit, WideChar>) explicit GString(std::basic_string_view<Unit> text)
        : text_(text.begin(), text.end())
    {
    }

    /// From narrow text in a code page.
    explicit GString(std::string_view narrow, unsigned int codePage = ansiCodePage);

    /// From UTF-8, one unit for each sequence: encoded surrogates are accepted, and a sequence of
    /// four bytes is an error. Throws the C string (`const char*`) "UTF8 error: source too large"
    /// for that and for anything malformed.
    static GString from_utf8(std::string_view utf8);

    /// The text in a code page, up to its first NUL; for 65001 the same as `to_utf8`.
    std::string to_narrow(unsigned int codePage = ansiCodePage) const;

    /// UTF-8 of each unit on its own, so that a surrogate pair becomes six bytes, which `from_utf8`
    /// reads back. Has no counterpart of that function's error: every unit has an encoding.
    std::string to_utf8() const;

    /// NUL-terminated UTF-16, valid while this object lives and is not changed.
    const WideChar* to_w_str() const noexcept { return text_.c_str(); }

    /// A NUL-terminated narrow copy for a C interface, in the ANSI code page or in a given one.
    /// Each form has a ring of 16 buffers, so that a pointer stays valid during 15 further calls of
    /// the same form by any thread. Destructors of static objects may call both.
    const char* to_temp_c_str() const;
    const char* to_temp_c_str(unsigned int codePage) const;

    /// Maps each unit by `towlower` or `towupper` of the C library, in the current C locale.
    GString to_lower() const;
    GString to_upper() const;

    /// By `iswalpha`, `iswpunct` and `iswspace` in the current C locale.
    static bool is_alpha(WideChar unit) noexcept;
    static bool is_punct(WideChar unit) noexcept;
    static bool is_space(WideChar unit) noexcept;
    /// Exactly '0' to '9', in every locale.
    static bool is_digit(WideChar unit) noexcept;

    /// The decimal number at the start, read as `wcstol` on Windows reads it, in every locale:
    /// white space of Unicode, a sign, and decimal digits, also full-width ones and those of
    /// sixteen more scripts. It is clamped to 32 bits; 0 stands for no number. `ok`, if given, is
    /// set to whether the whole text was read, which is true of the empty text.
    std::int32_t to_long(bool* ok = nullptr) const noexcept;

    /// "true" or "false".
    static GString from_bool(bool value);

    /// True for exactly "true". `ok`, if given, is set to whether the text is "true" or "false".
    bool to_bool(bool* ok = nullptr) const noexcept;

    /// The number in a printf-style format with one conversion, such as "%d ms"; narrow text of the
    /// ANSI code page, cut after 50 bytes. Length modifiers are allowed, but not needed.
    template <class Number>
    requires std::integral<Number> || std::same_as<Number, double>
    static GString from_number(Number value, std::string_view format)
    {
        return fromArgument(value, format);
    }

    /// The arguments in a printf-style format: the flags, width, precision (also as *) and
    /// conversions d i u o x X c s S p f F e E g G a A of C. %s takes narrow text of the ANSI code
    /// page and wide text alike, %c one UTF-16 unit. A conversion without an argument of its kind
    /// is written as it stands, so that a mistake in a translated format is seen and harms nothing.
    /// A longer result is cut after 65,535 units, and one NUL unit follows.
    template <class... Arguments>
    static GString format(const GString& format, const Arguments&... arguments)
    {
        const std::array<FormatArgument, sizeof...(arguments)> list = {argumentOf(arguments)...};
        return formatted(format.text_, list);
    }

    /// What replaces a character that the ANSI code page lacks: one byte in the low eight bits, the
    /// second, if there is one, in the high eight.
    static char16_t default_char() noexcept;

    /// The UTF-16 units, valid while this object lives and is not changed.
    const WideString& text() const noexcept { return text_; }
    operator WideView() const noexcept { return text_; } // NOLINT(google-explicit-constructor)
    /// The number of UTF-16 units.
    std::size_t size() const noexcept { return text_.size(); }
    bool empty() const noexcept { return text_.empty(); }
    const_iterator begin() const noexcept { return text_.begin(); }
    const_iterator end() const noexcept { return text_.end(); }
    /// Requires: index < size().
    WideChar operator[](std::size_t index) const noexcept { return text_[index]; }

    /// This text, then the other.
    GString& operator+=(const GString& other)
    {
        text_ += other.text_;
        return *this;
    }
    friend GString operator+(GString a, const GString& b) { return a += b; }

    /// Unit by unit, case-sensitive.
    friend bool operator==(const GString&, const GString&) noexcept = default;
    friend std::strong_ordering operator<=>(const GString& a, const GString& b) noexcept
    {
        return a.text_.compare(b.text_) <=> 0;
    }

private:
    template <class T>
    static FormatArgument argumentOf(const T& value)
    {
        if constexpr (std::is_same_v<T, GString>)
            return WideView(value);
        else
            return value;
    }
    static GString fromArgument(const FormatArgument& number, std::string_view format);
    static GString formatted(WideView format, std::span<const FormatArgument> arguments);

    WideString text_;
};

} // namespace Pelmora::Native

namespace Pelmora
{

using Native::GString;
using Native::WideString;
using Native::WideView;

} // namespace Pelmora
