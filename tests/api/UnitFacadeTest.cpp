#include "pelmora/pelmora.h"

#include "tests/printing.h"

#include <functional>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace Pelmora
{
namespace
{

using enum UnitTypeEnum;
using enum UnitPrefix;

std::shared_ptr<UnitElement> element(UnitTypeEnum kind, UnitPrefix prefix, int exponent)
{
    return std::make_shared<UnitElement>(kind, prefix, exponent);
}

std::shared_ptr<Unit> unitOf(std::initializer_list<std::shared_ptr<UnitElement>> elements)
{
    auto unit = std::make_shared<Unit>();
    unit->elements = std::make_shared<Unit::Elements>(elements);
    return unit;
}

const auto mg = element(UNIT_G, MILLI, 1);
const auto mL = element(UNIT_L, MILLI, 1);
const auto perHr = element(UNIT_HR, NONE, -1);
const auto perMin = element(UNIT_MIN, NONE, -1);

TEST(UnitFacade, Defaults)
{
    const UnitValue value;
    EXPECT_EQ(value.value, 0.0);
    ASSERT_EQ(value.unit->elements->size(), 1U);
    EXPECT_TRUE(value.unit->elements->front()->isEqual(UnitElement(UNIT_NUMBER_OF, NONE, 1)));
    EXPECT_FALSE(mg->isEqual(UnitElement(UNIT_G, NONE, 1)));
    const UnitElement fromNative(Native::UnitElement(UNIT_HR, KILO, -2));
    EXPECT_TRUE(fromNative.isEqual(std::make_shared<UnitElement>(UNIT_HR, KILO, -2)));
    EXPECT_EQ(fromNative.asNative(), Native::UnitElement(UNIT_HR, KILO, -2));
}

TEST(UnitFacade, CopiesShareUntilTheirArrayIsReplaced)
{
    const auto gram = element(UNIT_G, MILLI, 1);
    const auto original = std::make_shared<Unit>(gram);
    Unit copy = *original;
    Unit copyOfReference(original);
    EXPECT_EQ(copy.elements, original->elements);
    EXPECT_EQ(copyOfReference.elements, original->elements);
    gram->prefix = KILO; // shows through every unit that holds the element
    EXPECT_EQ(copy.ToString(), u"kg");

    copy.addElement(perHr);
    EXPECT_EQ(copy.ToString(), u"kg/hr");
    EXPECT_EQ(copy.elements->back(), perHr);
    EXPECT_EQ(original->ToString(), u"kg");
    EXPECT_TRUE(copyOfReference.removeElement(UNIT_G));
    EXPECT_EQ(copyOfReference.ToString(), u"");
    EXPECT_EQ(original->ToString(), u"kg");

    const UnitValue value(5, original);
    const UnitValue sharing(std::make_shared<UnitValue>(value));
    EXPECT_EQ(sharing.unit, original);
}

TEST(UnitFacade, RemovalOfElements)
{
    Unit unit(*unitOf({mg, element(UNIT_L, NONE, -1), mg}));
    const auto array = unit.elements;
    EXPECT_FALSE(unit.removeElement(UNIT_MOL));
    EXPECT_EQ(unit.elements, array);
    EXPECT_TRUE(unit.removeElement(UNIT_G));
    EXPECT_EQ(unit.ToString(), u"/L");
    EXPECT_FALSE(unit.removeElement(UNIT_G));
    EXPECT_EQ(array->size(), 3U);
}

TEST(UnitFacade, ArithmeticIsReducedAndSharesNothing)
{
    const UnitValue dose(5,
                         unitOf({element(UNIT_G, MICRO, 1), element(UNIT_G_PT, KILO, -1), perMin}));
    const UnitValue weight(70, unitOf({element(UNIT_G_PT, KILO, 1)}));
    const UnitValue concentration = UnitValue(400, unitOf({mg})).div(UnitValue(250, unitOf({mL})));

    const UnitValue rate = dose.mul(weight);
    EXPECT_EQ(rate.ToString(0), u"350 mcg/min");
    EXPECT_NE(rate.unit->elements->front(), dose.unit->elements->front());
    const auto mLPerHr = unitOf({mL, perHr});
    const UnitValue pump = rate.div(concentration).convertTo(mLPerHr);
    EXPECT_EQ(pump.toNormalizedString(3), u"13.1 mL/hr");
    EXPECT_NE(pump.unit->elements->front(), mL);
    EXPECT_EQ(pump.toNormalized(1).ToString(4), u"0.0131 L/hr");

    // The target's elements of one kind reach the result merged.
    const UnitValue area =
        UnitValue(3, unitOf({element(UNIT_M, NONE, 2)}))
            .convertTo(unitOf({element(UNIT_CM, NONE, 1), element(UNIT_M, NONE, 1)}));
    EXPECT_EQ(area.unit->ToString(), u"m\u00B2");
}

TEST(UnitFacade, ClassesAndCompatibility)
{
    const Unit infusion(*unitOf({mL, perHr}));
    EXPECT_TRUE(infusion.compatibleWith(*unitOf({element(UNIT_L, NONE, 1), perMin})));
    EXPECT_FALSE(infusion.compatibleWith(unitOf({mg, perHr})));
    const std::pair<std::shared_ptr<UnitElement>, bool (Unit::*)() const> rows[] = {
        {perHr, &Unit::unitIsRate},
        {mL, &Unit::unitIsVolume},
        {element(UNIT_MOL, NONE, 1), &Unit::unitIsMol},
        {element(UNIT_G_PT, KILO, -1), &Unit::unitIsPrPt},
        {mg, &Unit::unitIsWeight},
        {element(UNIT_U, NONE, 1), &Unit::unitIsUnit},
    };
    for (const auto& [only, isOfClass] : rows)
        for (const auto& other : rows)
            EXPECT_EQ((Unit(only).*other.second)(), other.second == isOfClass)
                << static_cast<int>(only->unitType);
}

TEST(UnitFacade, NullReferencesAreReportedByName)
{
    Unit broken(*unitOf({mg, nullptr}));
    Unit empty;
    empty.elements = nullptr;
    UnitValue noUnit;
    noUnit.unit = nullptr;
    Unit unit(mg);
    const UnitValue value(1, unitOf({mg}));
    const std::tuple<const char*, std::function<void()>> rows[] = {
        {"'ue'", [&] { unit.addElement(nullptr); }},
        {"'ue'", [] { Unit(std::shared_ptr<UnitElement>()); }},
        {"'rhs'", [] { Unit(std::shared_ptr<Unit>()); }},
        {"'rhs'", [] { UnitElement(std::shared_ptr<UnitElement>()); }},
        {"'rhs'", [&] { mg->isEqual(nullptr); }},
        {"'unit_'", [] { UnitValue(1, nullptr); }},
        {"'rhs'", [] { UnitValue(std::shared_ptr<UnitValue>()); }},
        {"'rhs'", [&] { value.mul(nullptr); }},
        {"'rhs'", [&] { value.div(nullptr); }},
        {"'unit_'", [&] { value.convertTo(nullptr); }},
        {"'u'", [&] { unit.compatibleWith(nullptr); }},
        {"'UnitValue::unit'", [&] { noUnit.ToString(1); }},
        {"'UnitValue::unit'", [&] { value.mul(noUnit); }},
        {"'Unit::elements'", [&] { empty.ToString(); }},
        {"'Unit::elements'", [&] { empty.addElement(mg); }},
        {"'Unit::elements[1]'", [&] { broken.unitIsRate(); }},
        {"'Unit::elements[1]'", [&] { broken.removeElement(UNIT_G); }},
    };
    for (const auto& [name, call] : rows) {
        try {
            call();
            ADD_FAILURE() << name;
        } catch (const NullReferenceError& error) {
            EXPECT_NE(std::string(error.what()).find(name), std::string::npos) << error.what();
        }
    }
}

} // namespace
} // namespace Pelmora
