#include "pelmora/units/unitText.h"

#include "pelmora/gettext/utf8.h"
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

/// No double has more digits behind the point; all further ones are zeros.
constexpr int longestFraction = 1074;
constexpr std::size_t longestNumber = 1 + 309 + 1 + longestFraction;

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
    std::array<char, longestNumber> text;
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), value, notation, format.precision);
    return {text.data(), written.ptr};
}

std::string numberText(double value, NumberFormat format)
{
    // Streams take the text from the stack, whatever its length.
    const int zeros = std::max(format.precision - longestFraction, 0);
    format.precision -= zeros;
    const bool isClassic = std::locale() == std::locale::classic();
    std::string text = isClassic ? classicNumber(value, format) : streamedNumber(value, format);
    if (format.fixed && std::isfinite(value))
        text.append(static_cast<std::size_t>(zeros), '0');
    return text;
}

/// Collects units of a text in place before the one allocation that the result may need.
class TextBuilder
{
public:
    void append(WideChar unit)
    {
        if (used_ == units_.size())
            flush();
        units_[used_++] = unit;
    }

    void appendAscii(std::string_view ascii)
    {
        for (const char character : ascii)
            append(static_cast<WideChar>(character));
    }

    std::size_t size() const { return flushed_.size() + used_; }

    /// Requires: the last call appended something.
    void dropLast() { --used_; }

    GString take()
    {
        if (flushed_.empty())
            return WideView(units_.data(), used_);
        flush();
        return std::move(flushed_);
    }

private:
    void flush()
    {
        flushed_.append(units_.data(), used_);
        used_ = 0;
    }

    std::array<WideChar, 128> units_;
    std::size_t used_ = 0;
    WideString flushed_;
};

void appendPower(TextBuilder& text, std::int64_t exponent)
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
        text.appendAscii({digits.data(), end});
    }
}

void appendElement(TextBuilder& text, const UnitElement& element, bool absoluteExponent)
{
    if (element.exponent == 0)
        return;
    const std::size_t prefix = prefixIndex(element.prefix);
    if (prefix < prefixRows.size())
        text.appendAscii(prefixRows[prefix].symbol);
    text.appendAscii(kindRow(element.unitType).symbol);
    const std::int64_t exponent = element.exponent;
    appendPower(text, absoluteExponent && exponent < 0 ? -exponent : exponent);
}

void appendUnit(TextBuilder& text, const Unit& unit)
{
    for (const UnitElement& element : unit.elements)
        if (element.exponent > 0)
            appendElement(text, element, true);
    for (const UnitElement& element : unit.elements) {
        if (element.exponent < 0) {
            text.append(u'/');
            appendElement(text, element, true);
        }
    }
}

GString withUnit(const std::string& number, const Unit& unit)
{
    TextBuilder text;
    if (asciiPrefix(number) == number.size()) {
        text.appendAscii(number);
    } else { // from a locale of the caller's, in the ANSI code page
        for (const WideChar digit : GString(number))
            text.append(digit);
    }
    text.append(u' ');
    const std::size_t unitStart = text.size();
    appendUnit(text, unit);
    if (text.size() == unitStart)
        text.dropLast();
    return text.take();
}

} // namespace

GString UnitElement::toString(bool absoluteExponent) const
{
    TextBuilder text;
    appendElement(text, *this, absoluteExponent);
    return text.take();
}

GString Unit::toString() const
{
    TextBuilder text;
    appendUnit(text, *this);
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
