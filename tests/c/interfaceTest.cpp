#include "pelmora/c/pelmora.h"
#include "pelmora/units/unitText.h"

#include "tests/TemporaryFolder.h"
#include "tests/units/sampleUnits.h"

#include <bit>
#include <cmath>
#include <future>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

using Elements = std::vector<pelmora_element>;

Unit toUnit(const Elements& elements)
{
    Unit unit;
    for (const pelmora_element& element : elements)
        unit.elements.push_back(
            {UnitTypeEnum(element.kind), UnitPrefix(element.prefix), element.exponent});
    return unit;
}

/// One result of many forms, so that those of C and of C++ are compared by one line: the number's
/// bits, the unit, the text and the status.
struct Outcome {
    std::uint64_t bits = 0;
    Unit unit = {};
    GString text = {};
    pelmora_status status = PELMORA_OK;

    Outcome() = default;
    Outcome(double number, const Unit& u, pelmora_status s = PELMORA_OK)
        : bits(std::bit_cast<std::uint64_t>(number)), unit(u), status(s)
    {
    }
    Outcome(const UnitValue& value) : Outcome(value.value, value.unit) {}
    Outcome(const ScaledUnit& scaled) : Outcome(scaled.factor, scaled.unit) {}
    Outcome(const GString& t) : text(t) {}
    Outcome(bool answer) : bits(answer) {}
    bool operator==(const Outcome&) const = default;
};

template <class... Arguments, class... Given>
Outcome callScaled(pelmora_status(PELMORA_CALL* function)(Arguments...), Given... given)
{
    double number = 0;
    Elements room(24);
    std::size_t count = 0;
    const auto status = function(given..., &number, room.data(), room.size(), &count);
    room.resize(count);
    return {number, toUnit(room), status};
}

template <class... Arguments, class... Given>
Outcome callUnit(pelmora_status(PELMORA_CALL* function)(Arguments...), Given... given)
{
    Elements room(24);
    std::size_t count = 0;
    const auto status = function(given..., room.data(), room.size(), &count);
    room.resize(count);
    return {0, toUnit(room), status};
}

template <class... Arguments, class... Given>
Outcome callText(pelmora_status(PELMORA_CALL* function)(Arguments...), Given... given)
{
    std::vector<WideChar> room(2000);
    std::size_t length = 0;
    Outcome outcome;
    outcome.status = function(given..., room.data(), room.size(), &length);
    outcome.text = WideView(room.data(), length);
    return outcome;
}

template <class... Arguments, class... Given>
Outcome ask(pelmora_status(PELMORA_CALL* function)(Arguments...), Given... given)
{
    int answer = -1;
    Outcome outcome;
    outcome.status = function(given..., &answer);
    outcome.bits = static_cast<std::uint64_t>(answer);
    return outcome;
}

TEST(CInterface, CalculatesAsTheCppOneDoes)
{
    std::mt19937 random(7); // NOLINT: the same units in each run
    const auto upTo = [&](int first, int last) {
        return std::uniform_int_distribution<int>(first, last)(random);
    };
    const auto randomElements = [&] {
        Elements elements(static_cast<std::size_t>(upTo(0, upTo(0, 9) == 0 ? 12 : 5)));
        for (pelmora_element& element : elements)
            element = {upTo(-4, 4), upTo(-1, 15), upTo(0, 20) == 0 ? lowest : upTo(-4, 4)};
        return elements;
    };
    for (int i = 0; i < 5000; ++i) {
        const Elements x = randomElements();
        const Elements y = upTo(0, 3) == 0 ? x : randomElements();
        const auto *a = x.data(), *b = y.data();
        const std::size_t m = x.size(), n = y.size();
        const UnitValue p(std::ldexp(upTo(-999, 9999), upTo(-40, 20)), toUnit(x));
        const UnitValue q(upTo(-2, 999), toUnit(y));
        const int number = upTo(-5, 12);
        UnitValue converted = p;
        converted.convertTo(q.unit);
        Unit rest = p.unit;
        rest.removeUnitType(UnitTypeEnum(number));

        const std::pair<Outcome, Outcome> rows[] = {
            // of C and of C++
            {callScaled(pelmora_unit_reduced, a, m), p.unit.getReduced()},
            {callScaled(pelmora_unit_as_iso, a, m), p.unit.getAsIsoUnit()},
            {callScaled(pelmora_unit_shift_prefix, a, m, number), p.unit.shiftPrefix(number)},
            {callUnit(pelmora_unit_mul, a, m, b, n), {0, p.unit.mul(q.unit)}},
            {callUnit(pelmora_unit_inverted, a, m), {0, p.unit.inverted()}},
            {callUnit(pelmora_unit_remove_kind, a, m, number), {0, rest}},
            {ask(pelmora_unit_compatible, a, m, b, n), p.unit.compatibleWith(q.unit)},
            {ask(pelmora_unit_equivalent, a, m, b, n), p.unit.isEquivalent(q.unit)},
            {ask(pelmora_unit_valid, a, m), p.unit.isValid()},
            {ask(pelmora_unit_has_kind, a, m, number, 1),
             p.unit.hasUnitType(UnitTypeEnum(number), 1)},
            {ask(pelmora_unit_is_rate, a, m), p.unit.unitIsRate()},
            {ask(pelmora_unit_is_volume, a, m), p.unit.unitIsVolume()},
            {ask(pelmora_unit_is_mol, a, m), p.unit.unitIsMol()},
            {ask(pelmora_unit_is_per_patient, a, m), p.unit.unitIsPrPt()},
            {ask(pelmora_unit_is_weight, a, m), p.unit.unitIsWeight()},
            {ask(pelmora_unit_is_unit, a, m), p.unit.unitIsUnit()},
            {callText(pelmora_unit_text, a, m), p.unit.toString()},
            {callScaled(pelmora_value_mul, p.value, a, m, q.value, b, n), p.mul(q)},
            {callScaled(pelmora_value_div, p.value, a, m, q.value, b, n), p.div(q)},
            {callScaled(pelmora_value_mul_reduced, p.value, a, m, q.value, b, n),
             p.mul(q).getReduced()},
            {callScaled(pelmora_value_div_reduced, p.value, a, m, q.value, b, n),
             p.div(q).getReduced()},
            {callScaled(pelmora_value_convert_reduced, p.value, a, m, b, n),
             converted.getReduced()},
            {callScaled(pelmora_value_inverted, p.value, a, m), p.inverted()},
            {callScaled(pelmora_value_reduced, p.value, a, m), p.getReduced()},
            {callScaled(pelmora_value_normalized, p.value, a, m, number), p.toNormalized(number)},
            {callText(pelmora_value_text, p.value, a, m, number), p.toString(number)},
            {callText(pelmora_value_normalized_text, p.value, a, m, number),
             p.toNormalizedString(number)},
        };
        for (const auto& row : rows)
            ASSERT_TRUE(row.first == row.second) << "row " << &row - rows << " of try " << i;
        double result = 0;
        ASSERT_EQ(PELMORA_OK, pelmora_value_convert(p.value, a, m, b, n, &result));
        ASSERT_EQ(Outcome(p.getConvertedValue(q.unit), {}), Outcome(result, {})) << i;
    }
}

TEST(CInterface, EachThreadHasItsOwnLastError)
{
    const auto failWith = [](const char* format) {
        std::size_t length = 0;
        EXPECT_EQ(PELMORA_NULL_ARGUMENT, pelmora_from_signed(0, format, nullptr, 9, &length));
    };
    failWith("%d");
    std::async(std::launch::async, [&] {
        EXPECT_STREQ("", pelmora_last_error());
        EXPECT_EQ(PELMORA_NULL_ARGUMENT, pelmora_unit_valid(nullptr, 1, nullptr));
        EXPECT_STREQ("'result' is null", pelmora_last_error());
    }).get();
    EXPECT_STREQ("'buffer' is null", pelmora_last_error());
    EXPECT_EQ(PELMORA_OK, pelmora_log_show_in_notepad(0));
    EXPECT_STREQ("", pelmora_last_error());
}

TEST(CInterface, AppendsToTheLogOfAnEarlierProcessWhenTold)
{
    const auto log = std::filesystem::temp_directory_path() / "pelmora-c-appended.txt";
    TemporaryFolder::write(log, "earlier\n");
    pelmora_log_configure("pelmora-c-appended.txt", nullptr, 1);
    pelmora_log_line("later");
    EXPECT_EQ(TemporaryFolder::read(log).find("earlier\n"), 0U);
}

TEST(CInterface, CutsLongMessagesBetweenCharacters)
{
    using Text = std::basic_string<WideChar>;
    for (std::size_t size = 300; size < 900; ++size) {
        const Text text = Text(size % 3, u'x') + Text(size / 3, u'\u4E00'); // of three bytes
        pelmora_xml* xml = nullptr;
        ASSERT_EQ(PELMORA_OK, pelmora_xml_create(&xml));
        EXPECT_EQ(PELMORA_SYSTEM, pelmora_xml_parse_file(xml, text.c_str()));
        const std::string message = pelmora_last_error();
        pelmora_xml_destroy(xml);
        EXPECT_LE(message.size(), 511U);
        if (size < 600)
            continue; // other text is cut, or none
        EXPECT_GT(message.size(), 508U);
        EXPECT_EQ(0, (message.size() - message.find("\xE4")) % 3);
    }
}

} // namespace
} // namespace Pelmora::Native
