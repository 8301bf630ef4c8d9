#include "pelmora/units/Unit.h"

#include "pelmora/units/UnitValue.h"
#include "tests/units/allocations.h"
#include "tests/units/sampleUnits.h"

#include <algorithm>
#include <random>
#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(Unit, ReducedFormMergesLikeDimensions)
{
    const Unit unlike = unitOf({s, m, {UNIT_IU, NONE, 1}, {UNIT_U, NONE, 1}});
    const Unit outside = unitOf({{UnitTypeEnum(15), NONE, 1}, count});
    const std::tuple<const char*, Unit, double, Unit> rows[] = {
        {"nothing", unitOf({}), 1, unitOf({})},
        {"exponent 0 alone", unitOf({{UNIT_G, KILO, 0}}), 1, unitOf({})},
        {"exponent 0 first", unitOf({{UNIT_G, KILO, 0}, mL}), 1, unitOf({mL})},
        {"cancelled", unitOf({mg, perKg}), 0.001 * 0.001, unitOf({})},
        {"body weight is another mass", unitOf({mg, perKgBody}), 1, unitOf({mg, perKgBody})},
        {"times", unitOf({mL, perMin, s}), 1.0 / 60, unitOf({mL})},
        {"the later factor first", unitOf({perMin, hr}), 3600 * (1.0 / 60), unitOf({})},
        {"lengths", unitOf({m, cm}), 0.01, unitOf({{UNIT_M, NONE, 2}})},
        {"lengths cancelled", unitOf({{UNIT_INCH, NONE, 1}, {UNIT_MIUS, NONE, -1}}),
         1 / 1609.34721869 * 0.0254, unitOf({})},
        {"unlike", unlike, 1, unlike},
        {"unlike outside the table", outside, 1, outside},
        {"in the place of the first", unitOf({mg, mL, mg}), 0.001 * 0.001,
         unitOf({{UNIT_G, NONE, 2}, mL})},
        {"exponent 0 merges too", unitOf({mg, {UNIT_G, KILO, 0}}), 0.001, unitOf({g})},
        {"what was merged merges with what stands for nothing",
         unitOf({mg, {UNIT_NUMBER_OF, KILO, 1}, mg}), 0.001 * 0.001 * 1000,
         unitOf({{UNIT_G, NONE, 2}, count})},
        {"equal kinds outside the table",
         unitOf({{UnitTypeEnum(-7), KILO, 1}, {UnitTypeEnum(-7), NONE, 1}}), 1000,
         unitOf({{UNIT_NUMBER_OF, NONE, 2}})},
        {"the sum wraps around", unitOf({{UNIT_S, NONE, highest}, s, perMin}), 1.0 / 60,
         unitOf({{UNIT_S, NONE, highest}})},
    };
    for (const auto& [what, unit, factor, reduced] : rows) {
        SCOPED_TRACE(what);
        EXPECT_EQ(unit.getReduced().factor, factor);
        EXPECT_EQ(unit.getReduced().unit, reduced);
    }
}

TEST(Unit, IsoFormCountsEqualElementsOnce)
{
    const std::tuple<const char*, Unit, double, Unit> rows[] = {
        {"nothing", unitOf({}), 1, unitOf({})},
        {"sorted by kind", unitOf({perMin, perKgBody, mg}), (1.0 / 60) * 0.001 * 0.001,
         unitOf({g, perS, {UNIT_G_PT, NONE, -1}})},
        {"equal elements", unitOf({m, m}), 1, unitOf({m})},
        {"elements of equal ISO form", unitOf({cm, m}), 0.01, unitOf({m})},
        {"cancelled", unitOf({m, {UNIT_CM, NONE, -1}}), 100, unitOf({})},
        {"equal apart", unitOf({m, {UNIT_CM, NONE, 2}, m}), 0.0001, unitOf({{UNIT_M, NONE, 3}})},
        {"outside the table, exponent 0",
         unitOf({{UnitTypeEnum(99), NONE, 2}, mg, {UNIT_G, NONE, 0}}), 0.001,
         unitOf({g, {UNIT_NUMBER_OF, NONE, 2}})},
    };
    for (const auto& [what, unit, factor, iso] : rows) {
        SCOPED_TRACE(what);
        EXPECT_EQ(unit.getAsIsoUnit().factor, factor);
        EXPECT_EQ(unit.getAsIsoUnit().unit, iso);
    }
}

TEST(Unit, FactorsCountForEquivalenceNotForCompatibility)
{
    const std::tuple<Unit, Unit, bool, bool> rows[] = {
        {unitOf({mg, perMin}), unitOf({g, perHr}), true, false},
        {unitOf({mg, perMin}), unitOf({perMin, mg}), true, true},
        {unitOf({mg}), unitOf({mg, perKgBody}), false, false},
        {unitOf({mg, perKg}), unitOf({g, {UNIT_G, NONE, -1}}), true, false},
        {unitOf({mg, perKg}), unitOf({}), true, false},
        {unitOf({m, m}), unitOf({m}), true, false},
        {unitOf({g}), unitOf({{UNIT_G_PT, NONE, 1}}), false, false},
        {unitOf({{UNIT_G, NONE, 40}, {UNIT_G, NONE, 24}}), unitOf({mL}), false, false},
        {unitOf({{UNIT_G, NONE, 256}}), unitOf({{UNIT_L, NONE, 4}}), false, false},
        {unitOf({{UNIT_G, NONE, 4}, {UNIT_G, NONE, 3}, {UNIT_G, NONE, 2}}),
         unitOf({{UNIT_L, NONE, 1}, {UNIT_G, NONE, -4}, {UNIT_G, NONE, -3}}), false, false},
        {unitOf({g, g, g, g, g, g, g, g, g}), unitOf({mL}), false, false},
    };
    for (const auto& [a, b, compatible, equivalent] : rows) {
        SCOPED_TRACE(testing::PrintToString(a) + " and " + testing::PrintToString(b));
        EXPECT_EQ(a.compatibleWith(b), compatible);
        EXPECT_EQ(b.compatibleWith(a), compatible);
        EXPECT_EQ(a.isEquivalent(b), equivalent);
    }
}

TEST(Unit, AreCompatibleWhenTheirIsoFormsAreEqual)
{
    std::mt19937 random;
    const auto anyUnit = [&](std::size_t most) {
        Unit unit;
        for (auto left = random() % most; left > 0; --left)
            unit.elements.push_back({UnitTypeEnum(random() % 6), UnitPrefix(random() % 7),
                                     static_cast<int>(random() % 8) - 4});
        return unit;
    };
    int compatible = 0;
    for (int i = 0; i < 5000; ++i) {
        const std::size_t most = i % 2 == 0 ? 4 : 12;
        const Unit a = anyUnit(most);
        Unit b = i % 3 == 0 ? a : anyUnit(most);
        std::shuffle(b.elements.begin(), b.elements.end(), random);
        const bool expected = a.getAsIsoUnit().unit == b.getAsIsoUnit().unit;
        compatible += expected;
        ASSERT_EQ(a.compatibleWith(b), expected)
            << testing::PrintToString(a) << testing::PrintToString(b);
    }
    EXPECT_GT(compatible, 1700);
}

TEST(Unit, ClassesNeedTheExactExponentInTheIsoForm)
{
    const std::tuple<Unit, bool, unsigned int, const char*> rows[] = {
        // unit, valid, divisor of the rate, and the letters of the predicates that are true
        {unitOf({}), true, 0, ""},
        {unitOf({mL, perMin}), true, 60, "RV"},
        {unitOf({{UNIT_L, NONE, 2}}), true, 0, ""},
        {unitOf({mg, perKgBody, perHr}), true, 3600, "RPW"},
        {unitOf({{UNIT_MOL, MICRO, 1}, {UNIT_L, NONE, -1}}), true, 0, "M"},
        {unitOf({{UNIT_U, NONE, 1}, perHr}), true, 3600, "RU"},
        {unitOf({{UNIT_IU, NONE, 1}, perMin, {UNIT_S, KILO, -1}}), true, 1, "R"},
        {unitOf({perHr, perMin}), true, 60, "R"},
        {unitOf({{UNIT_HR, NONE, -2}}), true, 0, ""},
        {unitOf({mg, {UNIT_L, NONE, 0}}), false, 0, "W"},
        {unitOf({count}), false, 0, ""},
        {unitOf({{UnitTypeEnum(15), NONE, 1}}), true, 0, ""},
    };
    for (const auto& [unit, valid, rateDivisor, expected] : rows) {
        SCOPED_TRACE(testing::PrintToString(unit));
        std::string classes;
        classes += unit.unitIsRate() ? "R" : "";
        classes += unit.unitIsVolume() ? "V" : "";
        classes += unit.unitIsMol() ? "M" : "";
        classes += unit.unitIsPrPt() ? "P" : "";
        classes += unit.unitIsWeight() ? "W" : "";
        classes += unit.unitIsUnit() ? "U" : "";
        EXPECT_EQ(classes, expected);
        EXPECT_EQ(unit.isValid(), valid);
        EXPECT_EQ(unit.getRateDivisor(), rateDivisor);
    }
}

TEST(Unit, EditsKeepTheOrder)
{
    Unit unit = unitOf({mg, mL, mg});
    unit.removeUnitType(UNIT_MOL);
    EXPECT_EQ(unit, unitOf({mg, mL, mg}));
    unit.removeUnitType(UNIT_G);
    Unit& same = unit;
    unit = std::move(same);
    EXPECT_EQ(unit, unitOf({mL}));
    EXPECT_EQ(unitOf({{UNIT_S, NONE, lowest}, mg}).inverted(),
              unitOf({{UNIT_S, NONE, lowest}, {UNIT_G, MILLI, -1}}));
    EXPECT_EQ(unitOf({perMin, mg, mg}).shiftPrefix(-1).unit,
              unitOf({perMin, {UNIT_G, MICRO, 1}, mg}));
    EXPECT_EQ(unitOf({perMin}).shiftPrefix(-1).factor, 1);
}

TEST(Unit, LongListsKeepEveryElement)
{
    Unit unit;
    for (int i = 0; i < 20; ++i)
        unit.elements.push_back({i % 2 == 0 ? UNIT_G : UNIT_L, MILLI, i + 1});
    Unit copy = unit;
    const Unit moved = std::move(copy);
    EXPECT_EQ(moved, unit);
    EXPECT_EQ(unit.mul(unit).elements.size(), 40U);
    EXPECT_EQ(unit.inverted().inverted(), unit);
    EXPECT_EQ(unit.getReduced().unit, unitOf({{UNIT_G, NONE, 100}, {UNIT_L, NONE, 110}}));
    EXPECT_TRUE(unit.compatibleWith(unitOf({{UNIT_L, NONE, 110}, {UNIT_G, NONE, 100}})));

    for (int i = 0; i < 10; ++i) // ten litres left: still long
        unit.elements.push_back(perS);
    unit.removeUnitType(UNIT_G);
    EXPECT_EQ(unit.elements.size(), 20U);
    unit.removeUnitType(UNIT_S);
    EXPECT_EQ(unit.elements.size(), 10U);
    unit.elements.push_back(unit.elements[0]);
    unit.removeUnitType(UNIT_L);
    EXPECT_TRUE(unit.elements.empty());
}

TEST(Unit, EverydayUnitsNeverAllocate)
{
    const UnitValue a(5, unitOf({mg, perKgBody, perMin, s}));
    const UnitValue b(70, unitOf({{UNIT_G_PT, KILO, 1}, mL, {UNIT_G, MILLI, -1}, m}));
    const std::size_t before = allocationCount();
    UnitValue product = a.mul(b);
    product = product.getReduced().inverted().div(a).toNormalized(3);
    product.convertTo(product.unit.getAsIsoUnit().unit);
    product.unit.removeUnitType(UNIT_S);
    const bool asked = product.unit.compatibleWith(a.unit) || product.unit.isEquivalent(b.unit) ||
                       product.unit.unitIsRate() || product.unit.getElementList().empty();
    EXPECT_EQ(allocationCount() - before, 0U) << asked;
}

} // namespace
} // namespace Pelmora::Native
