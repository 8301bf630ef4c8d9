#include "pelmora/gettext/gstringUtil.h"

#include "pelmora/base/detail/NeverDestroyed.h"
#include "pelmora/base/detail/utf8.h"
#include "pelmora/gettext/printfFormat.h"
#include "pelmora/platform/codePages.h"

#include <algorithm>
#include <cassert>
#include <cwctype>
#include <limits>
#include <mutex>
#include <optional>

namespace Pelmora::Native
{
namespace
{

constexpr std::u16string_view falseText = u"false";
constexpr std::u16string_view trueText = u"true";

/// Whether ASCII text has the same bytes in the code page, as it has not in UTF-7 or EBCDIC.
bool containsAscii(unsigned int codePage)
{
    return codePage == ansiCodePage || codePage == utf8CodePage ||
           (codePage >= 1250 && codePage <= 1258);
}

template <class Char>
std::basic_string_view<Char> upToNul(std::basic_string_view<Char> text)
{
    return text.substr(0, text.find(Char(0)));
}

/// The converter's buffer, up to its NUL. A buffer that is too small is a mistake of this file;
/// debug builds stop, others return what fitted.
template <class Char>
std::basic_string<Char> takenResult(Platform::ConversionStatus status,
                                    std::basic_string<Char>&& buffer)
{
    if (status == Platform::ConversionStatus::failed)
        return {};
    assert(status != Platform::ConversionStatus::bufferTooSmall);
    buffer.resize(upToNul(std::basic_string_view<Char>(buffer)).size());
    return std::move(buffer);
}

WideString widened(std::string_view narrow, unsigned int codePage)
{
    // Calculated before the cut, so that a text that begins with its NUL has room for it.
    const std::size_t room = 2 * narrow.size();
    narrow = upToNul(narrow);
    // The host converts only what it must, since it takes longer.
    if (codePage == utf8CodePage || (containsAscii(codePage) && isAscii(narrow)))
        if (auto wide = decodedUtf8(narrow, Utf8Form::characters))
            return *std::move(wide);
    const std::string terminated(narrow);
    WideString buffer(room, 0);
    const auto status = Platform::decode(codePage, terminated.c_str(), buffer);
    return takenResult(status, std::move(buffer));
}

bool equals(WideView text, std::u16string_view other)
{
    return std::equal(text.begin(), text.end(), other.begin(), other.end());
}

// The white space and decimal digits that `wcstol` of the Windows C library accepts in any locale.
constexpr std::u16string_view whiteSpace =
    u"\t\n\v\f\r \u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
    u"\u2028\u2029\u202F\u205F\u3000";
constexpr std::u16string_view zeros = u"0\u0660\u06F0\u0966\u09E6\u0A66\u0AE6\u0B66\u0C66\u0CE6"
                                      u"\u0D66\u0E50\u0ED0\u0F20\u1040\u17E0\u1810"
                                      u"\uFF10";

bool isSkipped(WideChar unit)
{
    return whiteSpace.find(static_cast<char16_t>(unit)) != std::u16string_view::npos;
}

std::optional<int> digitOf(WideChar unit)
{
    for (const char16_t zero : zeros)
        if (unit >= zero && unit <= zero + 9)
            return unit - zero;
    return std::nullopt;
}

template <class Mapping>
GString mapped(WideString text, Mapping mapping)
{
    for (WideChar& unit : text)
        unit = static_cast<WideChar>(mapping(static_cast<std::wint_t>(unit)));
    return text;
}

/// The narrow buffers that `to_temp_c_str` lends, in one ring for each of its two forms.
class TemporaryStrings
{
public:
    const char* keepAnsi(std::string&& text) { return keep(ansi_, std::move(text)); }
    const char* keepOther(std::string&& text) { return keep(other_, std::move(text)); }

private:
    struct Ring {
        std::array<std::string, 16> slots;
        std::size_t index = 0;
    };

    const char* keep(Ring& ring, std::string&& text)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        ring.index = (ring.index + 1) % ring.slots.size();
        ring.slots[ring.index] = std::move(text);
        return ring.slots[ring.index].c_str();
    }

    std::mutex mutex_;
    Ring ansi_;
    Ring other_;
};

TemporaryStrings& temporaryStrings()
{
    static NeverDestroyed<TemporaryStrings> strings;
    return strings.value;
}

} // namespace

GString::GString(std::string_view narrow, unsigned int codePage)
    : text_(narrow.empty() ? WideString() : widened(narrow, codePage))
{
}

GString GString::from_utf8(std::string_view utf8)
{
    auto text = decodedUtf8(utf8, Utf8Form::units);
    if (!text)
        throw "UTF8 error: source too large"; // NOLINT: callers expect a C string
    return *std::move(text);
}

std::string GString::to_narrow(unsigned int codePage) const
{
    if (text_.empty())
        return {};
    if (codePage == utf8CodePage)
        return to_utf8();
    const WideView text = upToNul(WideView(text_));
    if (containsAscii(codePage) && isAscii(text))
        return encodedUtf8(text, Utf8Form::units);
    std::string buffer((text_.size() + 1) * 3, '\0');
    const auto status = Platform::encode(codePage, text_.c_str(), buffer);
    return takenResult(status, std::move(buffer));
}

std::string GString::to_utf8() const
{
    return encodedUtf8(text_, Utf8Form::units);
}

const char* GString::to_temp_c_str() const
{
    return temporaryStrings().keepAnsi(to_narrow());
}

const char* GString::to_temp_c_str(unsigned int codePage) const
{
    return temporaryStrings().keepOther(to_narrow(codePage));
}

GString GString::to_lower() const
{
    return mapped(text_, [](std::wint_t unit) { return std::towlower(unit); });
}

GString GString::to_upper() const
{
    return mapped(text_, [](std::wint_t unit) { return std::towupper(unit); });
}

bool GString::is_alpha(WideChar unit) noexcept
{
    return std::iswalpha(static_cast<std::wint_t>(unit)) != 0;
}

bool GString::is_punct(WideChar unit) noexcept
{
    return std::iswpunct(static_cast<std::wint_t>(unit)) != 0;
}

bool GString::is_space(WideChar unit) noexcept
{
    return std::iswspace(static_cast<std::wint_t>(unit)) != 0;
}

bool GString::is_digit(WideChar unit) noexcept
{
    return unit >= '0' && unit <= '9';
}

std::int32_t GString::to_long(bool* ok) const noexcept
{
    // On Linux, wcstol accepts other digits, and its result has 64 bits.
    WideView rest(text_);
    while (!rest.empty() && isSkipped(rest.front()))
        rest.remove_prefix(1);
    const bool negative = !rest.empty() && rest.front() == '-';
    if (!rest.empty() && (negative || rest.front() == '+'))
        rest.remove_prefix(1);

    constexpr std::int64_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    const std::size_t beforeDigits = rest.size();
    std::int64_t value = 0;
    for (; !rest.empty(); rest.remove_prefix(1)) {
        const std::optional<int> digit = digitOf(rest.front());
        if (!digit)
            break;
        value = std::clamp(value * 10 + (negative ? -*digit : *digit), lowest, highest);
    }
    if (ok != nullptr)
        *ok = rest.size() < beforeDigits ? rest.empty() : empty();
    return static_cast<std::int32_t>(value);
}

GString GString::from_bool(bool value)
{
    const std::u16string_view text = value ? trueText : falseText;
    return WideString(text.begin(), text.end());
}

bool GString::to_bool(bool* ok) const noexcept
{
    const bool isTrue = equals(text_, trueText);
    if (ok != nullptr)
        *ok = isTrue || equals(text_, falseText);
    return isTrue;
}

GString GString::fromArgument(const FormatArgument& number, std::string_view format)
{
    std::array<char, 50> buffer = {};
    const FormatResult result = formatInto<char>(buffer, format, {&number, 1});
    return GString(std::string_view(buffer.data(), result.length));
}

GString GString::formatted(WideView format, std::span<const FormatArgument> arguments)
{
    std::array<WideChar, 512> small;
    const FormatResult result = formatInto<WideChar>(small, format, arguments);
    if (!result.isCut)
        return WideView(small.data(), result.length);

    constexpr std::size_t largeSize = 65536;
    WideString large(largeSize, 0);
    const FormatResult largeResult =
        formatInto<WideChar>(std::span(large).first(largeSize - 1), format, arguments);
    if (!largeResult.isCut)
        large.resize(largeResult.length);
    return large;
}

char16_t GString::default_char() noexcept
{
    return Platform::ansiDefaultCharacter();
}

} // namespace Pelmora::Native
