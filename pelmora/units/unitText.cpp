#include "pelmora/units/unitText.h"

#include "pelmora/units/unitTables.h"

#include <charconv>
#include <cstdint>
#include <locale>
#include <sstream>

namespace Pelmora::Native
{
namespace
{

constexpr WideChar superscriptTwo = u'\u00B2';
constexpr WideChar superscriptThree = u'\u00B3';

/// How a stream is set before it writes a number.
struct NumberFormat {
    bool fixed;
    int precision;
};

constexpr NumberFormat streamDefault = {false, 6};

std::string streamedNumber(double value, NumberFormat format)
{
    std::ostringstream stream;
    if (format.fixed)
        stream.setf(std::ios_base::fixed, std::ios_base::floatfield);
    stream.precision(format.precision);
    stream << value;
    return stream.str();
}

std::string classicNumber(double value, NumberFormat format)
{
    const auto notation = format.fixed ? std::chars_format::fixed : std::chars_format::general;
    std::array<char, 64> few;
    auto written =
        std::to_chars(few.data(), few.data() + few.size(), value, notation, format.precision);
    if (written.ec == std::errc())
        return {few.data(), written.ptr};
    constexpr std::size_t longestWithoutFraction = 320;
    std::string many(longestWithoutFraction + static_cast<std::size_t>(format.precision), '\0');
    written =
        std::to_chars(many.data(), many.data() + many.size(), value, notation, format.precision);
    many.resize(static_cast<std::size_t>(written.ptr - many.data()));
    return many;
}

std::string numberText(double value, NumberFormat format)
{
    const bool isClassic = std::locale() == std::locale::classic();
    return isClassic ? classicNumber(value, format) : streamedNumber(value, format);
}

void appendAscii(GString::Text& text, std::string_view ascii)
{
    text.append(ascii.begin(), ascii.end());
}

void appendPower(GString::Text& text, std::int64_t exponent)
{
    if (exponent == 1)
        return;
    if (exponent == 2) {
        text += superscriptTwo;
    } else if (exponent == 3) {
        text += superscriptThree;
    } else {
        std::array<char, 16> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), exponent).ptr;
        text += u'^';
        appendAscii(text, {digits.data(), end});
    }
}

void appendElement(GString::Text& text, const UnitElement& element, bool absoluteExponent)
{
    if (element.exponent == 0)
        return;
    const std::size_t prefix = prefixIndex(element.prefix);
    if (prefix < prefixRows.size())
        appendAscii(text, prefixRows[prefix].symbol);
    appendAscii(text, kindRow(element.unitType).symbol);
    const std::int64_t exponent = element.exponent;
    appendPower(text, absoluteExponent && exponent < 0 ? -exponent : exponent);
}

void appendUnit(GString::Text& text, const Unit& unit)
{
    for (const UnitElement& element : unit.elements)
        if (element.exponent > 0)
            appendElement(text, element, true);
    for (const UnitElement& element : unit.elements) {
        if (element.exponent < 0) {
            text += u'/';
            appendElement(text, element, true);
        }
    }
}

GString withUnit(std::string_view number, const Unit& unit)
{
    // Numbers from a locale of the caller's may hold any character of the ANSI code page.
    GString::Text text = GString(number).text();
    constexpr std::size_t usualElement = 5;
    text.reserve(text.size() + 1 + usualElement * unit.elements.size());
    text += u' ';
    const std::size_t unitStart = text.size();
    appendUnit(text, unit);
    if (text.size() == unitStart)
        text.pop_back();
    return text;
}

} // namespace

GString UnitElement::toString(bool absoluteExponent) const
{
    GString::Text text;
    appendElement(text, *this, absoluteExponent);
    return text;
}

GString Unit::toString() const
{
    GString::Text text;
    appendUnit(text, *this);
    return text;
}

std::string Unit::toDebugString() const
{
    std::string text = "{ ";
    std::string_view separator;
    for (const UnitElement& element : elements) {
        text += separator;
        text += element.toString(false).to_narrow();
        separator = ", ";
    }
    return text + " }";
}

GString UnitValue::toString(int precision) const
{
    const NumberFormat format = precision >= 0 ? NumberFormat{true, precision} : streamDefault;
    return withUnit(numberText(value, format), unit);
}

GString UnitValue::toNormalizedString(int digits) const
{
    const UnitValue normalized = toNormalized(digits);
    return withUnit(formatSignificant(normalized.value, digits), normalized.unit);
}

std::string formatSignificant(double value, int digits)
{
    const NumberFormat format = digits > 0 ? NumberFormat{false, digits} : streamDefault;
    std::string text = numberText(value, format);
    bool hasPoint = false;
    const int counted = countSignificantDigits(text, hasPoint);
    if (counted < digits) {
        if (!hasPoint)
            text += '.';
        text.append(static_cast<std::size_t>(digits) - static_cast<std::size_t>(counted), '0');
    }
    return text;
}

int countSignificantDigits(std::string_view text, bool& hasPoint) noexcept
{
    int count = 0;
    for (const char character : text) {
        if (character == '.')
            hasPoint = true;
        else if (character != '0' || count > 0)
            ++count;
    }
    return count;
}

} // namespace Pelmora::Native
