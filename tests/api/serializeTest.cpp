#include "pelmora/api/serialize.h"

#include "tests/printing.h"

#include <sstream>

#include <cereal/archives/json.hpp>
#include <cereal/types/memory.hpp>
#include <cereal/types/string.hpp>
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
    cereal::JSONOutputArchive{stream}(dose, other, value);
    Unit readDose;
    Unit readOther;
    UnitValue readValue;
    cereal::JSONInputArchive{stream}(readDose, readOther, readValue);

    EXPECT_EQ(readValue.ToString(1), u"2.5 mg");
    EXPECT_EQ(readOther.ToString(), u"mg/hr");
    EXPECT_EQ(readDose.elements, readValue.unit->elements);
    EXPECT_NE(readDose.elements, readOther.elements);
    readDose.elements->front()->prefix = UnitPrefix::KILO;
    EXPECT_EQ(readOther.ToString(), u"kg/hr");
}

TEST(Serialize, AReportComesBackWhole)
{
    using Report = ExceptionData;
    Report report(u"no \u00E9lan", u"ward", u"trace", u"site", Report::prio_enum::PRIO_NOTE,
                  u"parameters \xD83D\xDE00", Report::type_enum::TYPE_DEBUGMESSAGE, u"log");
    std::stringstream stream;
    cereal::JSONOutputArchive{stream}(report);
    Report read;
    cereal::JSONInputArchive{stream}(read);
    EXPECT_EQ(read.mMessage + read.mSource + read.mStackTrace + read.mTargetSite,
              u"no \u00E9lanwardtracesite");
    EXPECT_EQ(read.mParameters + read.mDestination, u"parameters \xD83D\xDE00log");
    EXPECT_EQ(read.mDateTime, report.mDateTime);
    EXPECT_EQ(read.mPriority, report.mPriority);
    EXPECT_EQ(read.mType, report.mType);
}

} // namespace
} // namespace Pelmora
