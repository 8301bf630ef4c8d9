#include "pelmora/api/serialize.h"

#include "tests/printing.h"

#include <sstream>

#include <cereal/archives/json.hpp>
#include <cereal/types/memory.hpp>
#include <cereal/types/vector.hpp>
#include <gtest/gtest.h>

namespace Pelmora
{
namespace
{

TEST(Serialize, UnitsThatShareStillShareAfterARoundTrip)
{
    const auto milligram =
        std::make_shared<UnitElement>(UnitTypeEnum::UNIT_G, UnitPrefix::MILLI, 1);
    const Unit dose(milligram);
    const UnitValue value(2.5, std::make_shared<Unit>(dose)); // shares the array of `dose`
    Unit other = dose;
    other.addElement(std::make_shared<UnitElement>(UnitTypeEnum::UNIT_HR, UnitPrefix::NONE, -1));

    std::stringstream stream;
    {
        cereal::JSONOutputArchive output(stream);
        output(dose, other, value);
    }
    Unit readDose;
    Unit readOther;
    UnitValue readValue;
    cereal::JSONInputArchive input(stream);
    input(readDose, readOther, readValue);

    EXPECT_EQ(readValue.ToString(1), u"2.5 mg");
    EXPECT_EQ(readOther.ToString(), u"mg/hr");
    EXPECT_EQ(readDose.elements, readValue.unit->elements);
    EXPECT_NE(readDose.elements, readOther.elements);
    readDose.elements->front()->prefix = UnitPrefix::KILO;
    EXPECT_EQ(readOther.ToString(), u"kg/hr");
}

} // namespace
} // namespace Pelmora
