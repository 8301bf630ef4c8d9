#include "pelmora/units/unitText.h"

#include "tests/printing.h"
#include "tests/units/sampleUnits.h"

#include <cmath>
#include <locale>
#include <random>
#include <sstream>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(UnitText, ElementsShowPrefixKindAndPower)
{
    const std::tuple<UnitElement, GString, GString> rows[] = {
        {mg, u"mg", u"mg"},
        {{UNIT_G_PT, KILO, -1}, u"kg^-1", u"kg"},
        {{UNIT_L, MICRO, 2}, u"mcL\u00B2", u"mcL\u00B2"},
        {{UNIT_S, NONE, -2}, u"s^-2", u"s\u00B2"},
        {{UNIT_CM, NONE, 3}, u"cm\u00B3", u"cm\u00B3"},
        {{UNIT_M, NONE, -3}, u"m^-3", u"m\u00B3"},
        {{UNIT_MOL, NANO, 4}, u"nmol^4", u"nmol^4"},
        {{UNIT_U, MEGA, lowest}, u"Munits^-2147483648", u"Munits^2147483648"},
        {{UNIT_G, KILO, 0}, u"", u""},
        {{UNIT_NUMBER_OF, GIGA, 2}, u"G\u00B2", u"G\u00B2"},
        {{UnitTypeEnum(-1), UnitPrefix(4), 1}, u"", u""},
        {{UNIT_MIUS, NONE, 1}, u"mi U.S.", u"mi U.S."},
    };
    for (const auto& [element, withSign, absolute] : rows) {
        SCOPED_TRACE(testing::PrintToString(withSign));
        EXPECT_EQ(element.toString(false), withSign);
        EXPECT_EQ(element.toString(true), absolute);
    }
}

TEST(UnitText, UnitsShowNumeratorThenDenominator)
{
    const std::tuple<Unit, GString, std::string> rows[] = {
        {unitOf({}), u"", "{  }"},
        {unitOf({mg, perKgBody, perMin}), u"mg/kg/min", "{ mg, kg^-1, min^-1 }"},
        {unitOf({perHr, mL}), u"mL/hr", "{ hr^-1, mL }"},
        {unitOf({{UNIT_M, NONE, 2}, {UNIT_S, NONE, -2}}), u"m\u00B2/s\u00B2", "{ m\xB2, s^-2 }"},
        {unitOf({perMin}), u"/min", "{ min^-1 }"},
        {unitOf({g, m}), u"gm", "{ g, m }"},
        {unitOf({{UNIT_L, NONE, 0}, {UNIT_PROCENT, NONE, 1}}), u"%", "{ , % }"},
        {unitOf({count}), u"", "{  }"},
    };
    for (const auto& [unit, text, debug] : rows) {
        EXPECT_EQ(unit.toString(), text);
        EXPECT_EQ(unit.toDebugString(), debug);
    }
}

TEST(UnitText, ValuesHaveTheDigitsAskedFor)
{
    const std::tuple<double, Unit, int, GString> rows[] = {
        {2.5, unitOf({mg, perKg}), 1, u"2.5 mg/kg"},
        {2.75, unitOf({mg}), 0, u"3 mg"},
        {1234567, unitOf({mL, perHr}), 0, u"1234567 mL/hr"},
        {7, Unit(), 2, u"7.00"},
        {1.0 / 3, unitOf({mg}), -1, u"0.333333 mg"},
        {1.0 / 3, unitOf({mg}), 3, u"0.333 mg"},
        {0.125, unitOf({count}), 2, u"0.12"},
        {1e21, unitOf({mg}), -5, u"1e+21 mg"},
        {-std::nan(""), Unit(), 2000, u"-nan"},
    };
    for (const auto& [value, unit, precision, text] : rows)
        EXPECT_EQ(UnitValue(value, unit).toString(precision), text);
    // Longer than any buffer for everyday numbers.
    const GString longest = UnitValue(-std::numeric_limits<double>::max(), Unit()).toString(400);
    EXPECT_EQ(longest.size(), 1U + 309 + 1 + 400);
    const std::string smallest = UnitValue(5e-324, Unit()).toString(1080).to_narrow();
    EXPECT_EQ(smallest.find_last_not_of('0'), 1U + 1074); // the last digit it has
}

TEST(UnitText, NormalisedValuesAreFilledUpToTheirDigits)
{
    const Unit units = unitOf({{UNIT_U, NONE, 1}, perHr});
    const std::tuple<double, Unit, int, GString> rows[] = {
        {0.05, unitOf({mg}), 3, u"50.0 mcg"},
        {1500, unitOf({mg}), 3, u"1.50 g"},
        {999, unitOf({mg}), 2, u"1.0 g"},
        {120, unitOf({mg}), 3, u"120 mg"},
        {5, Unit(), 3, u"5.00"},
        {0.5, units, 3, u"0.500 units/hr"},
        {0, units, 3, u"0.000 units/hr"},
        {-5, units, 3, u"-5.0 units/hr"},
        {1234.5, units, 3, u"1.23e+03 units/hr"},
        {1234567, units, 0, u"1.23457e+06 units/hr"},
    };
    for (const auto& [value, unit, digits, text] : rows)
        EXPECT_EQ(UnitValue(value, unit).toNormalizedString(digits), text);
}

/// Half of them are multiples of some 1/2^n or 1/10^n, where rounding has ties.
double anyNumber(std::mt19937_64& random)
{
    const std::uint64_t bits = random();
    const auto whole = static_cast<double>(static_cast<std::int64_t>(bits) >> (bits % 64));
    switch (random() % 4) {
    case 0:
        return std::ldexp(static_cast<double>(bits >> 11), static_cast<int>(random() % 130) - 100);
    case 1:
        return std::ldexp(whole, -static_cast<int>(random() % 64));
    case 2:
        return whole / std::pow(10.0, static_cast<double>(random() % 8));
    default:
        return std::exp(static_cast<double>(bits % 4000) / 100 - 10);
    }
}

TEST(UnitText, NumbersOfTheClassicLocaleAreThoseOfAStream)
{
    std::mt19937_64 random;
    for (int i = 0; i < 15000; ++i) {
        const double value = anyNumber(random);
        const int digits = static_cast<int>(random() % (i % 4 == 0 ? 20 : 8)) + 1;
        std::ostringstream general;
        general.precision(digits);
        general << value;
        std::string number = formatSignificant(value, digits);
        ASSERT_EQ(number.substr(0, general.str().size()), general.str()) << digits;
        std::ostringstream fixed;
        fixed.precision(digits - 1);
        fixed << std::fixed << value;
        ASSERT_EQ(UnitValue(value, Unit()).toString(digits - 1).to_narrow(), fixed.str());
    }
}

/// Decimal comma and groups of three, divided by a no-break space of code page 1252.
class CommaPunctuation : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '\xA0'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(UnitText, NumbersFollowTheGlobalLocale)
{
    const std::locale previous =
        std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
    EXPECT_EQ(UnitValue(1234567.5, unitOf({mL, perHr})).toString(2),
              u"1\u00A0234\u00A0567,50 mL/hr");
    EXPECT_EQ(UnitValue(2.5, unitOf({mg})).toNormalizedString(3), u"2,5 mg"); // the comma counts
    EXPECT_EQ(UnitValue(5, unitOf({mg})).toNormalizedString(3), u"5.00 mg");
    EXPECT_EQ(unitOf({{UNIT_M, NONE, 1234}}).toString(), u"m^1234");
    EXPECT_EQ(UnitValue(0.5, Unit()).toString(20000000).size(), 20000002U);
    std::locale::global(previous);
    EXPECT_EQ(UnitValue(1234.5, unitOf({mL})).toString(2), u"1234.50 mL");
}

} // namespace
} // namespace Pelmora::Native
