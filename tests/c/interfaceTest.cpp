#include "pelmora/c/pelmora.h"
#include "pelmora/units/unitText.h"

#include "tests/TemporaryFolder.h"

#include <bit>
#include <cmath>
#include <future>
#include <random>
#include <tuple>
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
    for (const auto& [prefix, kind, exponent] : elements)
        unit.elements.push_back({UnitTypeEnum(kind), UnitPrefix(prefix), exponent});
    return unit;
}

/// A number's bits or an answer, a unit, a text, so that results of every form are compared by one
/// line.
struct Outcome : std::tuple<std::uint64_t, Unit, GString> {
    Outcome(double number, const Unit& u)
        : tuple(std::bit_cast<std::uint64_t>(number), u, GString())
    {
    }
    Outcome(const UnitValue& value) : Outcome(value.value, value.unit) {}
    Outcome(const ScaledUnit& scaled) : Outcome(scaled.factor, scaled.unit) {}
    Outcome(const Unit& u) : Outcome(0, u) {}
    Outcome(bool answer) : tuple(answer, Unit(), GString()) {}
    Outcome(const GString& text) : tuple(0, Unit(), text) {}
};

template <class Function, class... Given>
Outcome ofC(Function* function, Given... given)
{
    using Size = std::size_t;
    double number = 0;
    int answer = 0;
    Elements room(24);
    WideChar text[2000] = {};
    Size count = 0;
    pelmora_status status = PELMORA_OK;
    if constexpr (std::is_invocable_v<Function, Given..., double*, pelmora_element*, Size, Size*>)
        status = function(given..., &number, room.data(), room.size(), &count);
    else if constexpr (std::is_invocable_v<Function, Given..., pelmora_element*, Size, Size*>)
        status = function(given..., room.data(), room.size(), &count);
    else if constexpr (std::is_invocable_v<Function, Given..., int*>)
        status = function(given..., &answer);
    else
        status = function(given..., text, std::size(text), nullptr);
    EXPECT_EQ(status, PELMORA_OK);
    room.resize(count);
    return answer == 1    ? Outcome(true)
           : text[0] != 0 ? Outcome(GString(text))
                          : Outcome(number, toUnit(room));
}

TEST(CInterface, CalculatesAsTheCppOneDoes)
{
    std::mt19937 random(7); // NOLINT: the same units in each run
    const auto upTo = [&](int first, int last) {
        return std::uniform_int_distribution<int>(first, last)(random);
    };
    for (int i = 0; i < 4000; ++i) {
        Elements x(static_cast<std::size_t>(upTo(1, upTo(0, 9) == 0 ? 12 : 5)));
        for (pelmora_element& element : x)
            element = {upTo(-4, 4), upTo(-1, 15), upTo(-4, 4)};
        Elements y = x;
        y[0] = {upTo(-3, 3), upTo(0, 12), upTo(-4, 4)};
        const auto *a = x.data(), *b = y.data();
        const std::size_t m = x.size(), n = y.size();
        const UnitValue p(std::ldexp(upTo(-999, 9999), upTo(-40, 20)), toUnit(x));
        const UnitValue q(upTo(-2, 999), toUnit(y));
        const int digits = upTo(-5, 12);
        double converted = 0;
        pelmora_value_convert(p.value, a, m, b, n, &converted);
        const std::pair<Outcome, Outcome> rows[] = {
            {{converted, {}}, {p.getConvertedValue(q.unit), {}}},
            {ofC(pelmora_unit_as_iso, a, m), p.unit.getAsIsoUnit()},
            {ofC(pelmora_unit_mul, a, m, b, n), p.unit.mul(q.unit)},
            {ofC(pelmora_unit_compatible, a, m, b, n), p.unit.compatibleWith(q.unit)},
            {ofC(pelmora_unit_equivalent, a, m, b, n), p.unit.isEquivalent(q.unit)},
            {ofC(pelmora_unit_text, a, m), p.unit.toString()},
            {ofC(pelmora_value_mul, p.value, a, m, q.value, b, n), p.mul(q)},
            {ofC(pelmora_value_div, p.value, a, m, q.value, b, n), p.div(q)},
            {ofC(pelmora_value_reduced, p.value, a, m), p.getReduced()},
            {ofC(pelmora_value_normalized, p.value, a, m, digits), p.toNormalized(digits)},
            {ofC(pelmora_value_text, p.value, a, m, digits), p.toString(digits)},
            {ofC(pelmora_value_normalized_text, p.value, a, m, digits),
             p.toNormalizedString(digits)},
        };
        for (const auto& row : rows)
            ASSERT_TRUE(row.first == row.second) << "row " << &row - rows << " of try " << i;
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
