#include "pelmora/units/UnitElement.h"

#include "tests/units/sampleUnits.h"

#include <bit>
#include <cstdint>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(UnitElement, IsoFactorsAreTheExactPowersRoundedOnce)
{
    struct Row {
        int prefix, kind, exponent;
        std::uint64_t bits;
    };
    static constexpr Row rows[] = {
#include "exactPowers.inc"
    };
    for (const Row& row : rows) {
        const UnitElement element(UnitTypeEnum(row.kind), UnitPrefix(row.prefix), row.exponent);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(element.toIso().factor), row.bits)
            << testing::PrintToString(element);
    }
}

TEST(UnitElement, IsoFormIsDefinedForEveryNumber)
{
    const std::tuple<UnitElement, double, UnitElement> rows[] = {
        {mL, 0.001, {UNIT_L, NONE, 1}},
        {{UNIT_HR, KILO, -1}, 1.0 / 3600000, {UNIT_S, NONE, -1}},
        {{UNIT_MIUS, NONE, 1}, 1609.34721869, {UNIT_M, NONE, 1}},
        {{UNIT_G, MILLI, 0}, 1, {UNIT_G, NONE, 0}},
        // Values outside the tables.
        {{UNIT_G, UnitPrefix(5), 1}, 0, {UNIT_G, NONE, 1}},
        {{UNIT_G, UnitPrefix(-4), -2}, infinity, {UNIT_G, NONE, -2}},
        {{UNIT_G, UnitPrefix(lowest), 0}, 1, {UNIT_G, NONE, 0}},
        {{UnitTypeEnum(15), KILO, 1}, 1000, {UNIT_NUMBER_OF, NONE, 1}},
        {{UnitTypeEnum(-1), NONE, 1}, 1, {UNIT_NUMBER_OF, NONE, 1}},
        {{UnitTypeEnum(lowest), NONE, 7}, 1, {UNIT_NUMBER_OF, NONE, 7}},
        {{UNIT_MIN, NONE, lowest}, 0, {UNIT_S, NONE, lowest}},
        {{UNIT_MIN, NONE, highest}, infinity, {UNIT_S, NONE, highest}},
    };
    for (const auto& [element, factor, iso] : rows) {
        SCOPED_TRACE(testing::PrintToString(element));
        EXPECT_EQ(element.toIso().factor, factor);
        EXPECT_EQ(element.toIso().element, iso);
    }
}

TEST(UnitElement, PrefixShiftsBetweenNanoAndGiga)
{
    const std::tuple<UnitElement, int, double, UnitPrefix> rows[] = {
        {mg, -1, 0.001 / 1e-6, MICRO},
        {{UNIT_L, MILLI, -1}, -1, (1 / 0.001) / (1 / 1e-6), MICRO},
        {mg, 2, 0.001 / 1e3, KILO},
        {{UNIT_MIUS, NONE, 1}, 1, 1609.34721869 / 1609347.21869, KILO},
        {{UNIT_G_PT, NONE, 1}, -1, 1 / 0.001, MILLI},
        {count, 1, 0.001, KILO},
        {{UNIT_MIN, KILO, 1}, -1, 1, KILO},
        {{UNIT_U, NONE, 1}, -1, 1, NONE},
        {{UNIT_CM, NONE, 1}, 1, 1, NONE},
        {{UNIT_G, GIGA, 1}, 1, 1, GIGA},
        {{UNIT_G, NANO, 60}, -1, 1, NANO}, // where 0 / 0 would not be 1
        {{UNIT_G, NONE, 1}, highest, 1 / 1e9, GIGA},
        {{UNIT_G, UnitPrefix(lowest), 1}, lowest, 0, NANO},
    };
    for (const auto& [element, steps, factor, moved] : rows) {
        SCOPED_TRACE(testing::PrintToString(element));
        const ScaledElement shifted = element.shiftPrefix(steps);
        const UnitElement expected(element.unitType, moved, element.exponent);
        EXPECT_EQ(shifted.factor, factor);
        EXPECT_EQ(shifted.element, expected);
    }
}

} // namespace
} // namespace Pelmora::Native
