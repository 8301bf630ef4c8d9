// The texts of any units and values, in the classic locale and in one with commas and groups,
// against streams and snprintf.

#include "pelmora/units/unitText.h"
#include "fuzz/FuzzedInput.h"
#include "pelmora/units/unitTables.h"

#include <locale>
#include <sstream>

using namespace Pelmora;
using namespace Native;

namespace
{

class Continental : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

const std::locale locales[] = {std::locale::classic(),
                               std::locale(std::locale::classic(), new Continental)};

std::string number(double value, bool isFixed, int precision)
{
    if (std::locale() == std::locale::classic()) {
        char text[4000];
        std::snprintf(text, sizeof text, isFixed ? "%.*f" : "%.*g", precision, value);
        return text;
    }
    std::ostringstream stream;
    if (isFixed)
        stream << std::fixed;
    stream.precision(precision);
    stream << value;
    return stream.str();
}

std::string elementText(const UnitElement& element, std::int64_t exponent)
{
    if (exponent == 0)
        return "";
    const std::size_t prefix = prefixIndex(element.prefix);
    std::string text(prefix < prefixRows.size() ? prefixRows[prefix].symbol : "");
    text += kindRow(element.unitType).symbol;
    if (exponent == 2 || exponent == 3)
        return text + (exponent == 2 ? "\xB2" : "\xB3");
    return exponent == 1 ? text : text + "^" + std::to_string(exponent);
}

std::string unitText(const Unit& unit)
{
    std::string above;
    std::string below;
    for (const UnitElement& e : unit.elements) {
        const std::int64_t exponent = e.exponent;
        if (exponent > 0)
            above += elementText(e, exponent);
        else if (exponent < 0)
            below += "/" + elementText(e, -exponent);
    }
    return above + below;
}

std::string withUnit(const std::string& number, const Unit& unit)
{
    const std::string text = unitText(unit);
    return text.empty() ? number : number + " " + text;
}

std::string significant(double value, int digits)
{
    std::string text = number(value, false, digits > 0 ? digits : 6);
    std::string counted = text;
    std::erase(counted, '.');
    counted.erase(0, counted.find_first_not_of('0'));
    const int missing = digits - static_cast<int>(counted.size());
    if (missing > 0 && text.find('.') == std::string::npos)
        text += '.';
    return text.append(static_cast<std::size_t>(std::max(missing, 0)), '0');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const std::locale before = std::locale::global(locales[input.below(2)]);
    const int precision = input.number<std::int16_t>() % 1200;
    UnitValue value(input.number<double>(), Unit());
    while (!input.empty()) {
        const std::int32_t kind = input.number<std::int8_t>() % 17;
        const std::int32_t prefix = input.number<std::int8_t>() % 5;
        const std::int32_t exponent =
            input.flag() ? input.number<std::int32_t>() : input.number<std::int8_t>();
        value.unit.elements.push_back({UnitTypeEnum(kind), UnitPrefix(prefix), exponent});
    }
    const auto text = [](const std::string& latin) { return GString(latin, 1252); };
    for (const UnitElement& e : value.unit.elements) {
        check(e.toString(false) == text(elementText(e, e.exponent)));
        check(e.toString(true) == text(elementText(e, std::abs(std::int64_t(e.exponent)))));
    }
    check(value.unit.toString() == text(unitText(value.unit)));
    check(value.toString(precision) ==
          text(withUnit(number(value.value, precision >= 0, precision >= 0 ? precision : 6),
                        value.unit)));
    check(formatSignificant(value.value, precision) == significant(value.value, precision));
    const UnitValue normalized = value.toNormalized(precision);
    check(value.toNormalizedString(precision) ==
          text(withUnit(significant(normalized.value, precision), normalized.unit)));
    std::locale::global(before);
    return 0;
}
