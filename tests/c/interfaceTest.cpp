#include "pelmora/c/pelmora.h"
#include "pelmora/units/unitText.h"

#include "tests/TemporaryFolder.h"

#include <bit>
#include <cmath>
#include <future>
#include <random>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(CInterface, CalculatesAsTheCppOneDoes)
{
    std::mt19937 random(7); // NOLINT: the same units in each run
    const auto upTo = [&](int first, int last) {
        return std::uniform_int_distribution<int>(first, last)(random);
    };
    const auto bits = [](double number) { return std::bit_cast<std::uint64_t>(number); };
    for (int i = 0; i < 4000; ++i) {
        pelmora_element a[5], b[5];
        Unit x, y;
        for (int k = 0; k < 5; ++k) {
            a[k] = {upTo(-3, 3), upTo(0, 13), upTo(-4, 4)};
            b[k] = {upTo(-3, 3), a[k].kind, i % 2 == 0 ? a[k].exponent : upTo(-4, 4)};
            x.elements.push_back({UnitTypeEnum(a[k].kind), UnitPrefix(a[k].prefix), a[k].exponent});
            y.elements.push_back({UnitTypeEnum(b[k].kind), UnitPrefix(b[k].prefix), b[k].exponent});
        }
        const int digits = upTo(-5, 12);
        const UnitValue p(std::ldexp(upTo(-999, 9999), upTo(-40, 20)), x), q(upTo(-2, 999), y);
        const UnitValue product = p.mul(q), quotient = p.div(q).getReduced();
        double number = 0;
        std::size_t count = 0;
        int yes = 0;
        pelmora_element room[10];
        WideChar text[500];
        pelmora_value_mul(p.value, a, 5, q.value, b, 5, &number, room, 10, &count);
        pelmora_value_text(number, room, count, digits, text, 500, nullptr);
        ASSERT_EQ(bits(number), bits(product.value)) << i;
        ASSERT_EQ(GString(text), product.toString(digits)) << i;
        pelmora_value_div_reduced(p.value, a, 5, q.value, b, 5, &number, room, 10, &count);
        pelmora_value_normalized_text(number, room, count, digits, text, 500, nullptr);
        ASSERT_EQ(bits(number), bits(quotient.value)) << i;
        ASSERT_EQ(GString(text), quotient.toNormalizedString(digits)) << i;
        pelmora_value_convert(p.value, a, 5, b, 5, &number);
        ASSERT_EQ(bits(number), bits(p.getConvertedValue(y))) << i;
        pelmora_unit_compatible(a, 5, b, 5, &yes);
        ASSERT_EQ(yes == 1, x.compatibleWith(y)) << i;
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
