// The example as its user meets it: its own process, driven through its window.

#include "bedside/controls.h"
#include "bedside/driver/BedsideProgram.h"

#include <optional>
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
    EXPECT_EQ(program.text(ID_LASTS), L"19 hr 5 min");
    EXPECT_EQ(program.text(ID_ERROR), L"");
    EXPECT_TRUE(program.isEnabled(ID_START));
    program.choose(ID_PANEL, L"Complete blood count");
    EXPECT_EQ(program.text(ID_LAB_VALUES + 2), L"6.2 \u00D7 10\u2079/L");

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
        {ID_DOSE, L"480", L"A pump cannot run at 1260 mL/hr, only at 0.1 mL/hr to 1200 mL/hr"},
        {ID_WEIGHT, L"1e3", L"The weight cannot be read: '1e3' is more than one number"},
        {ID_AMOUNT, L"1,000",
         L"The amount of drug in the bag cannot be read: '1,000' has a comma; "
         L"write numbers like 2500 or 2.5"},
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

TEST(Bedside, RefusesANumberThatTheLanguageReadsInTwoWays)
{
    const std::wstring inGerman = L"Die Dosis ist nicht lesbar: \u201E12.500\u201C ist auch als "
                                  L"Tausender lesbar; schreiben Sie 12500 oder 12.5000";
    const std::tuple<std::wstring, std::wstring, bool> rows[] = {
        {L"en", L"2.500", true},  {L"ja", L"2.500", true}, {L"da", L"2.500", false},
        {L"de", L"2.500", false}, {L"de", L"0.125", true}, {L"de", L"2.5000", true},
        {L"de", L"2.50", true},   {L"de", L".250", true},  {L"de", L"12.500", false},
    };
    std::optional<BedsideProgram> program;
    std::wstring spoken;
    for (const auto& [language, typed, isRead] : rows) {
        if (spoken != language)
            program.emplace(BedsideProgram::speaking(language));
        spoken = language;
        program->type(ID_DOSE, typed);
        EXPECT_EQ(program->isEnabled(ID_START), isRead)
            << testing::PrintToString(language) << ' ' << testing::PrintToString(typed);
    }
    EXPECT_EQ(program->text(ID_ERROR), inGerman);
}

TEST(Bedside, StartsAndStops)
{
    BedsideProgram program;
    program.press(ID_START);
    EXPECT_TRUE(program.isVisible(ID_STOP) && !program.isVisible(ID_START));
    EXPECT_EQ(program.focus(), ID_STOP);
    for (const int control :
         {ID_DRUG_SET, ID_DOSE, ID_DOSE_UNIT_SET, ID_WEIGHT, ID_AMOUNT_UNIT_SET})
        EXPECT_TRUE(program.isReadOnly(control) && program.isEnabled(control) &&
                    program.isVisible(control));
    EXPECT_EQ(program.text(ID_DRUG_SET), L"Dopamine");
    program.waitUntil("something given", [&] { return program.text(ID_GIVEN) > L"0.00 mL"; });

    program.press(ID_STOP);
    EXPECT_TRUE(program.isVisible(ID_START) && !program.isVisible(ID_STOP));
    EXPECT_EQ(program.focus(), ID_START);
    EXPECT_TRUE(program.isVisible(ID_DRUG) && !program.isReadOnly(ID_DOSE));

    const std::wstring given = program.text(ID_GIVEN);
    program.press(ID_START); // what was given stays given
    EXPECT_GE(program.text(ID_GIVEN), given);
    program.press(ID_STOP);
    program.pressEnter(ID_DOSE, L'4'); // another order, and nothing is started
    EXPECT_TRUE(program.isVisible(ID_START));
    EXPECT_EQ(program.text(ID_GIVEN), noResult);
    EXPECT_EQ(program.close(), 0u);
}

TEST(Bedside, StopsWithAnEmptyBag)
{
    BedsideProgram program;
    program.type(ID_AMOUNT, L"0.0021");
    program.type(ID_VOLUME, L"0.1");
    EXPECT_EQ(program.text(ID_RATE), L"1000 mL/hr");
    program.press(ID_START);
    program.waitUntil("an empty bag", [&] { return program.isVisible(ID_START); });
    EXPECT_EQ(program.text(ID_RATE), L"Bag empty");
    EXPECT_EQ(program.text(ID_GIVEN), L"0.10 mL");
    program.press(ID_START); // hangs a new bag
    EXPECT_EQ(program.text(ID_RATE), L"1000 mL/hr");
    EXPECT_TRUE(program.isVisible(ID_START));
}

} // namespace
} // namespace BedsideDriver
