#include "pelmora/gettext/printfNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace Pelmora::Native
{
namespace
{

// The C libraries agree on decimal digits, so snprintf is asked for these alone. They differ in
// flags that mean nothing to a conversion, in the sign of a NaN and in conversion a.

constexpr int defaultPrecision = 6;

/// A number in two parts, between which flag 0 puts its zeros.
struct Parts {
    std::string prefix;
    std::string digits;
};

std::string laidOut(const Conversion& conversion, const Parts& parts, bool zeroFilled)
{
    const auto width = static_cast<std::size_t>(conversion.width.value_or(0));
    const std::size_t length = parts.prefix.size() + parts.digits.size();
    const std::size_t missing = width > length ? width - length : 0;
    if (conversion.has('-'))
        return parts.prefix + parts.digits + std::string(missing, ' ');
    if (zeroFilled)
        return parts.prefix + std::string(missing, '0') + parts.digits;
    return std::string(missing, ' ') + parts.prefix + parts.digits;
}

std::string signOf(const Conversion& conversion, bool negative)
{
    if (negative)
        return "-";
    if (conversion.has('+'))
        return "+";
    return conversion.has(' ') ? " " : "";
}

bool isUpper(char letter)
{
    return letter >= 'A' && letter <= 'Z';
}

void makeUpper(std::string& text)
{
    for (char& character : text)
        if (character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 'a' + 'A');
}

std::string digitsOf(std::uint64_t value, int base, int precision)
{
    std::array<char, 22> digits; // enough for 64 bits in octal
    const char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, base).ptr;
    const std::string_view significant =
        value == 0 ? std::string_view() : std::string_view(digits.data(), end);
    std::string text(std::max(significant.size(), static_cast<std::size_t>(precision)), '0');
    significant.copy(text.data() + (text.size() - significant.size()), significant.size());
    return text;
}

std::string printedDigits(const Conversion& conversion, int precision, char letter, double value)
{
    const std::string format =
        std::string(conversion.has('#') ? "%#" : "%") + (precision < 0 ? "" : ".*") + letter;
    const auto print = [&](char* buffer, std::size_t size) {
        return precision < 0 ? std::snprintf(buffer, size, format.c_str(), value)
                             : std::snprintf(buffer, size, format.c_str(), precision, value);
    };
    const int length = print(nullptr, 0);
    if (length <= 0)
        return {};
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    static_cast<void>(print(text.data(), text.size()));
    text.pop_back();
    return text;
}

/// Conversion #g by the rule of the C language. glibc drops digits of a value that is rounded up to
/// a power of ten, such as 999999.95.
std::string generalDigits(const Conversion& conversion, double value)
{
    const int precision = std::max(conversion.precision.value_or(defaultPrecision), 1);
    std::string scientific = printedDigits(conversion, precision - 1, 'e', value);
    // NOLINTNEXTLINE(cert-err34-c): printf wrote a number there
    const int exponent = std::atoi(scientific.c_str() + scientific.find('e') + 1);
    if (exponent < -4 || exponent >= precision)
        return scientific;
    return printedDigits(conversion, precision - 1 - exponent, 'f', value);
}

/// Conversion a without its 0x, made here because the C libraries round halves differently.
std::string hexadecimalDigits(const Conversion& conversion, double value)
{
    constexpr std::size_t exactLength = 32; // 1.fffffffffffffp-1022 has 21
    const auto precision = static_cast<std::size_t>(conversion.precision.value_or(0));
    std::string text(exactLength + precision, '\0');
    char* const end = text.data() + text.size();
    const auto written =
        conversion.precision
            ? std::to_chars(text.data(), end, value, std::chars_format::hex, *conversion.precision)
            : std::to_chars(text.data(), end, value, std::chars_format::hex);
    text.resize(static_cast<std::size_t>(written.ptr - text.data()));
    if (conversion.has('#') && text.find('.') == std::string::npos)
        text.insert(text.find('p'), 1, '.');
    return text;
}

} // namespace

std::string printedInteger(const Conversion& conversion, const FormatArgument::Integer& integer)
{
    const int wholeBits = integer.is64 ? 64 : 32;
    const int unused = 64 - (conversion.lengthBits == 0 ? wholeBits : conversion.lengthBits);
    const std::uint64_t shifted = integer.bits << unused;
    const bool isSigned = conversion.letter == 'd' || conversion.letter == 'i';
    const bool isNegative = isSigned && static_cast<std::int64_t>(shifted) < 0;
    const std::uint64_t magnitude = (isNegative ? 0 - shifted : shifted) >> unused;

    const bool isHexadecimal = conversion.letter == 'x' || conversion.letter == 'X';
    const int base = isHexadecimal ? 16 : conversion.letter == 'o' ? 8 : 10;
    Parts parts;
    parts.digits = digitsOf(magnitude, base, conversion.precision.value_or(1));
    if (isSigned)
        parts.prefix = signOf(conversion, isNegative);
    if (conversion.has('#') && base == 8 && !parts.digits.starts_with('0'))
        parts.digits.insert(0, 1, '0');
    if (conversion.has('#') && base == 16 && magnitude != 0)
        parts.prefix = "0x";
    if (conversion.letter == 'X') {
        makeUpper(parts.prefix);
        makeUpper(parts.digits);
    }
    return laidOut(conversion, parts, conversion.has('0') && !conversion.precision);
}

std::string printedNumber(const Conversion& conversion, double number)
{
    const char letter = conversion.letter;
    const double magnitude = std::abs(number);
    Parts parts = {signOf(conversion, std::signbit(number)), {}};
    if (!std::isfinite(number)) {
        parts.digits = std::isnan(number) ? "nan" : "inf";
        if (isUpper(letter))
            makeUpper(parts.digits);
        return laidOut(conversion, parts, false);
    }
    if (letter == 'a' || letter == 'A') {
        parts.prefix += "0x";
        parts.digits = hexadecimalDigits(conversion, magnitude);
    } else if ((letter == 'g' || letter == 'G') && conversion.has('#')) {
        parts.digits = generalDigits(conversion, magnitude);
    } else {
        parts.digits =
            printedDigits(conversion, conversion.precision.value_or(-1), letter, magnitude);
    }
    if (isUpper(letter)) {
        makeUpper(parts.prefix);
        makeUpper(parts.digits);
    }
    return laidOut(conversion, parts, conversion.has('0'));
}

std::string printedAddress(const void* pointer)
{
    std::string digits = digitsOf(reinterpret_cast<std::uintptr_t>(pointer), 16, 16);
    makeUpper(digits);
    return digits;
}

} // namespace Pelmora::Native
