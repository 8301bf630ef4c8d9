#include "pelmora/units/unitText.h"

#include "pelmora/base/detail/utf8.h"
#include "pelmora/units/shortNumber.h"
#include "pelmora/units/textBuilder.h"
#include "pelmora/units/unitTables.h"

#include <algorithm>
#include <charconv>
#include <cmath>
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

/// No double has more digits after the point; all further ones are zeros.
constexpr int longestFraction = 1074;
constexpr std::size_t longestNumber = 1 + 309 + 1 + longestFraction; // sign, DBL_MAX, point

std::string streamedNumber(double value, NumberFormat format)
{
    std::ostringstream stream;
    stream.exceptions(std::ios_base::badbit); // or it would cut the number where memory ran out
    if (format.fixed)
        stream.setf(std::ios_base::fixed, std::ios_base::floatfield);
    stream.precision(format.precision);
    stream << value;
    return stream.str();
}

void appendLocalised(NarrowBuilder& text, std::string_view number)
{
    text.append(number);
}

void appendLocalised(WideBuilder& text, std::string_view number)
{
    if (isAscii(number))
        text.append(number);
    else // The global locale brought in characters of the ANSI code page.
        text.append(WideView(GString(number)));
}

template <class Char>
void appendClassic(TextBuilder<Char>& text, double value, NumberFormat format)
{
    std::array<char, longestNumber> number;
    const auto writeShort = format.fixed ? writeShortFixed : writeShortGeneral;
    if (const char* const end = writeShort(number.data(), value, format.precision)) {
        text.append(std::string_view(number.data(), end));
        return;
    }
    const auto notation = format.fixed ? std::chars_format::fixed : std::chars_format::general;
    const auto written = std::to_chars(number.data(), number.data() + number.size(), value,
                                       notation, format.precision);
    text.append(std::string_view(number.data(), written.ptr));
}

template <class Char>
void appendNumber(TextBuilder<Char>& text, double value, NumberFormat format)
{
    // libstdc++ formats a streamed number in a stack buffer as long as the precision; a huge
    // precision would overflow the stack.
    const int zeros = std::max(format.precision - longestFraction, 0);
    format.precision -= zeros;
    if (std::locale() == std::locale::classic())
        appendClassic(text, value, format);
    else
        appendLocalised(text, streamedNumber(value, format));
    if (format.fixed && std::isfinite(value))
        text.append(static_cast<std::size_t>(zeros), '0');
}

void appendPower(WideBuilder& text, std::int64_t exponent)
{
    if (exponent == 1)
        return;
    if (exponent == 2) {
        text.append(superscriptTwo);
    } else if (exponent == 3) {
        text.append(superscriptThree);
    } else {
        std::array<char, 16> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), exponent).ptr;
        text.append(u'^');
        text.append(std::string_view(digits.data(), end));
    }
}

/// A blank and the unit, if it has a text.
void appendUnitBehind(WideBuilder& text, Elements unit)
{
    text.append(u' ');
    const std::size_t unitStart = text.size();
    appendUnit(text, unit);
    if (text.size() == unitStart)
        text.dropLast();
}

} // namespace

void appendElement(WideBuilder& text, const UnitElement& element, bool absoluteExponent)
{
    if (element.exponent == 0)
        return;
    const std::size_t prefix = prefixIndex(element.prefix);
    if (prefix < prefixRows.size())
        text.append(prefixRows[prefix].symbol);
    text.append(kindRow(element.unitType).symbol);
    const std::int64_t exponent = element.exponent;
    appendPower(text, absoluteExponent && exponent < 0 ? -exponent : exponent);
}

void appendUnit(WideBuilder& text, Elements unit)
{
    for (const UnitElement& element : unit)
        if (element.exponent > 0)
            appendElement(text, element, true);
    for (const UnitElement& element : unit) {
        if (element.exponent < 0) {
            text.append(u'/');
            appendElement(text, element, true);
        }
    }
}

void appendValue(WideBuilder& text, double value, Elements unit, int precision)
{
    appendNumber(text, value, precision >= 0 ? NumberFormat{true, precision} : streamDefault);
    appendUnitBehind(text, unit);
}

void appendNormalized(WideBuilder& text, double value, ElementList unit, int digits)
{
    normalize(value, unit, digits);
    NarrowBuilder number;
    appendSignificant(number, value, digits);
    appendLocalised(text, number.view());
    appendUnitBehind(text, unit);
}

void appendSignificant(NarrowBuilder& text, double value, int digits)
{
    appendNumber(text, value, digits > 0 ? NumberFormat{false, digits} : streamDefault);
    bool hasPoint = false;
    const int counted = countSignificantDigits(text.view(), hasPoint);
    if (counted < digits) {
        if (!hasPoint)
            text.append('.');
        text.append(static_cast<std::size_t>(digits) - static_cast<std::size_t>(counted), '0');
    }
}

GString UnitElement::toString(bool absoluteExponent) const
{
    WideBuilder text;
    appendElement(text, *this, absoluteExponent);
    return text.take();
}

GString Unit::toString() const
{
    WideBuilder text;
    appendUnit(text, elements);
    return text.take();
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
    WideBuilder text;
    appendValue(text, value, unit.elements, precision);
    return text.take();
}

GString UnitValue::toNormalizedString(int digits) const
{
    WideBuilder text;
    appendNormalized(text, value, unit.elements, digits);
    return text.take();
}

std::string formatSignificant(double value, int digits)
{
    NarrowBuilder text;
    appendSignificant(text, value, digits);
    return text.take();
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
