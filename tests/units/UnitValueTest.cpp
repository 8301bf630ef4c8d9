#include "pelmora/units/UnitValue.h"

#include "tests/units/sampleUnits.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

const Unit invalid = unitOf({count});

void expectValue(const UnitValue& actual, double value, const Unit& unit)
{
    EXPECT_EQ(actual.value, value);
    EXPECT_EQ(actual.unit, unit);
}

TEST(UnitValue, InvalidUnitsAreNeutralInProducts)
{
    const UnitValue dose(2, unitOf({mg}));
    expectValue(dose.mul({3, unitOf({perMin})}), 6, unitOf({mg, perMin}));
    expectValue(dose.mul({3, invalid}), 2, unitOf({mg}));
    expectValue(UnitValue(3, invalid).mul(dose), 2, unitOf({mg}));
    expectValue(UnitValue(3, invalid).mul({5, invalid}), 3, invalid);
    expectValue(dose.mul({3, Unit()}), 6, unitOf({mg}));
}

TEST(UnitValue, DividingByZeroGivesZero)
{
    const UnitValue perVolume(4, unitOf({{UNIT_L, MILLI, -1}, {UNIT_G, KILO, 1}}));
    expectValue(perVolume.inverted(), 0.25, unitOf({mL, perKg}));
    expectValue(UnitValue(0, unitOf({mg, perHr})).inverted(), 0, Unit());
    expectValue(UnitValue(-0.0, invalid).inverted(), 0, Unit());
    expectValue(UnitValue(4, invalid).inverted(), 4, invalid);
    const UnitValue none(std::nan(""), unitOf({perHr}));
    EXPECT_TRUE(std::isnan(none.inverted().value));
    EXPECT_EQ(none.inverted().unit, unitOf({hr}));

    const UnitValue dose(6, unitOf({mg}));
    expectValue(dose.div({3, unitOf({mL})}), 6 * (1.0 / 3), unitOf({mg, {UNIT_L, MILLI, -1}}));
    expectValue(dose.div({0, unitOf({mL})}), 0, unitOf({mg}));
    expectValue(dose.div({3, invalid}), 6, unitOf({mg}));
    expectValue(UnitValue(6, unitOf({mL, perMin, s})).getReduced(), 6 * (1.0 / 60), unitOf({mL}));
}

TEST(UnitValue, ConversionsMultiplyAndThenDivide)
{
    const std::tuple<double, Unit, Unit, double> rows[] = {
        // value, unit, target, and converted: value x factor / factor, in the order of evaluation
        {1, unitOf({{UNIT_MIUS, NONE, 1}}), unitOf({m}), 1609.34721869},
        {1, unitOf({{UNIT_INCH, NONE, 1}}), unitOf({cm}), 0.0254 / 0.01},
        {0.3, unitOf({mL, perMin}), unitOf({mL, perHr}),
         0.3 * (0.001 * (1.0 / 60)) / (0.001 * (1.0 / 3600))},
        {7, unitOf({mg}), unitOf({hr}), 7 * 0.001 / 3600}, // without meaning, but a number
    };
    for (const auto& [number, unit, target, converted] : rows) {
        SCOPED_TRACE(testing::PrintToString(unit) + " to " + testing::PrintToString(target));
        UnitValue value(number, unit);
        EXPECT_EQ(value.getConvertedValue(target), converted);
        value.convertTo(target);
        expectValue(value, converted, target);
    }
}

TEST(UnitValue, NormalisationShiftsOnlyThePrefixThatMayMove)
{
    const auto grams = [](UnitPrefix prefix) { return unitOf({{UNIT_G, prefix, 1}, perHr}); };
    const Unit units = unitOf({{UNIT_U, NONE, 1}, perHr});
    const Unit overflowing = unitOf({{UNIT_G, NANO, 60}});
    const std::tuple<const char*, double, Unit, int, double, Unit> rows[] = {
        {"down", 0.05, grams(MILLI), 3, 0.05 * (0.001 / 1e-6), grams(MICRO)},
        {"down twice", 0.00002, grams(NONE), 3, 0.00002 * (1 / 0.001) * (0.001 / 1e-6),
         grams(MICRO)},
        {"up", 1500, grams(MILLI), 3, 1500 * 0.001, grams(NONE)},
        {"the largest that stays", 999, grams(MILLI), 3, 999, grams(MILLI)},
        {"up with two digits", 999, grams(MILLI), 2, 999 * 0.001, grams(NONE)},
        {"the smallest that stays", 0.1, grams(MILLI), 3, 0.1, grams(MILLI)},
        {"a fixed prefix", 0.05, units, 3, 0.05, units},
        {"no positive exponent", 0.02, unitOf({perMin}), 3, 0.02, unitOf({perMin})},
        {"the largest prefix", 5e9, grams(GIGA), 3, 5e9, grams(GIGA)},
        {"zero", 0, grams(MILLI), 0, 0, grams(MILLI)},
        {"zero above the magnitude", 0, grams(MILLI), -1, 0, grams(GIGA)},
        {"negative", -5, grams(MILLI), 3, -5 * (0.001 / 1e-6) * (1e-6 / 1e-9), grams(NANO)},
        {"a square", 0.01, unitOf({{UNIT_M, KILO, 2}}), 5, 0.01 * 1e6, unitOf({{UNIT_M, NONE, 2}})},
        {"a power out of range", -1, overflowing, 3, -1, overflowing},
    };
    for (const auto& [what, value, unit, maxMagnitude, normalised, expected] : rows) {
        SCOPED_TRACE(what);
        expectValue(UnitValue(value, unit).toNormalized(maxMagnitude), normalised, expected);
    }
}

TEST(UnitValue, DecimalMagnitudeChangesAtPowersOfTen)
{
    // Each power of ten begins a magnitude, from which zero is left out; the ends are open.
    const auto magnitudeOfPower = [](int power) {
        return power < -11 ? -12 : std::min(power + (power >= 0 ? 1 : 0), 11);
    };
    for (int power = -13; power <= 12; ++power) {
        const double value = std::stod("1e" + std::to_string(power));
        EXPECT_EQ(decimalMagnitude(value), magnitudeOfPower(power)) << value;
        EXPECT_EQ(decimalMagnitude(std::nextafter(value, 0)), magnitudeOfPower(power - 1)) << value;
    }
    EXPECT_EQ(decimalMagnitude(-0.0), 0);
    EXPECT_EQ(decimalMagnitude(-1000), -12);
    EXPECT_EQ(decimalMagnitude(std::nan("")), -12);
}

} // namespace
} // namespace Pelmora::Native
