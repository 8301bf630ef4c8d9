// The example as its user meets it: its own process, driven through its window.

#include "bedside/controls.h"
#include "bedside/driver/BedsideProgram.h"

#include <tuple>

#include <gtest/gtest.h>

namespace BedsideDriver
{
namespace
{

const std::wstring noResult = L"\u2013";

TEST(Bedside, CalculatesWithTheWeightWhereTheDoseNeedsIt)
{
    BedsideProgram program;
    program.choose(ID_DRUG, L"Heparin"); // its numbers are entered as well
    EXPECT_EQ(program.text(ID_RATE), L"12.6 mL/hr");
    program.choose(ID_DRUG, L"Dopamine"); // 5 mcg/kg/min for 70 kg out of 400 mg in 250 mL
    program.type(ID_DOSE, L" 5 ");
    EXPECT_EQ(program.text(ID_RATE), L"13.1 mL/hr");
    EXPECT_EQ(program.text(ID_ORDERED), L"5.00 mcg/kg/min");
    EXPECT_EQ(program.text(ID_STRENGTH), L"1.60 mg/mL");
    EXPECT_EQ(program.text(ID_LASTS), L"19.0 hr");
    EXPECT_EQ(program.text(ID_ERROR), L"");
    EXPECT_TRUE(program.isEnabled(ID_START));

    program.type(ID_WEIGHT, L"unknown");
    EXPECT_FALSE(program.isEnabled(ID_START));
    program.choose(ID_DOSE_UNIT, L"mg/hr");
    EXPECT_FALSE(program.isEnabled(ID_WEIGHT));
    EXPECT_EQ(program.text(ID_RATE), L"3.12 mL/hr"); // 3.125, to even
    EXPECT_TRUE(program.isEnabled(ID_START));
    program.choose(ID_DOSE_UNIT, L"mcg/kg/min");
    EXPECT_TRUE(program.isEnabled(ID_WEIGHT));
    EXPECT_FALSE(program.isEnabled(ID_START));
}

TEST(Bedside, RefusesWhatIsNoOrder)
{
    const std::tuple<int, std::wstring, std::wstring> rows[] = {
        {ID_DOSE, L"", L"The dose is missing"},
        {ID_DOSE, L"\uFF15", L"The dose cannot be read: '\uFF15' does not begin with a number"},
        {ID_DOSE, L"500000000000",
         L"A pump cannot run at 1.31 GL/hr, only at 0.1 mL/hr to 1200 mL/hr"},
        {ID_WEIGHT, L"1e3", L"The weight cannot be read: '1e3' is more than one number"},
        {ID_AMOUNT, L"1,000",
         L"The amount of drug in the bag cannot be read: '1,000' has a comma; "
         L"write the decimal point as '.'"},
        {ID_VOLUME, L"-250",
         L"The volume of the bag cannot be read: '-250' does not begin with a number"},
    };
    BedsideProgram program;
    for (const auto& [field, typed, error] : rows) {
        const std::wstring before = program.text(field);
        program.type(field, typed);
        EXPECT_EQ(program.text(ID_ERROR), error);
        for (const int result : {ID_RATE, ID_ORDERED, ID_STRENGTH, ID_LASTS})
            EXPECT_EQ(program.text(result), noResult);
        EXPECT_FALSE(program.isEnabled(ID_START));
        program.type(field, before);
        EXPECT_EQ(program.text(ID_RATE), L"13.1 mL/hr");
    }
    program.choose(ID_AMOUNT_UNIT, L"units");
    EXPECT_NE(program.text(ID_ERROR), L"");
}

TEST(Bedside, StartsAndStops)
{
    BedsideProgram program;
    program.press(ID_START);
    EXPECT_TRUE(program.isVisible(ID_STOP) && !program.isVisible(ID_START));
    EXPECT_EQ(program.focus(), ID_STOP);
    for (const int control : {ID_DRUG, ID_DOSE, ID_DOSE_UNIT, ID_WEIGHT, ID_AMOUNT, ID_VOLUME})
        EXPECT_FALSE(program.isEnabled(control));
    program.waitUntil("something given", [&] { return program.text(ID_GIVEN) > L"0.00 mL"; });

    program.press(ID_STOP);
    EXPECT_TRUE(program.isVisible(ID_START) && !program.isVisible(ID_STOP));
    EXPECT_EQ(program.focus(), ID_START);
    EXPECT_TRUE(program.isEnabled(ID_DOSE) && program.isEnabled(ID_WEIGHT));

    const std::wstring given = program.text(ID_GIVEN);
    program.press(ID_START); // what was given stays given
    EXPECT_GE(program.text(ID_GIVEN), given);
    program.press(ID_STOP);
    program.type(ID_DOSE, L"4"); // another order
    EXPECT_EQ(program.text(ID_GIVEN), noResult);
    EXPECT_EQ(program.close(), 0u);
}

} // namespace
} // namespace BedsideDriver
