#include "pelmora/gettext/gstringUtil.h"
#include "tests/printing.h"

#include <cmath>
#include <limits>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(Format, ConversionsAreThoseOfC)
{
    const GString drug(u"\u30C9\u30D1");
    const char* narrow = "caf\xE9";
    const std::tuple<GString, GString> rows[] = {
        {GString::format(u"plain"), u"plain"},
        {GString::format(u"100%% of %s", narrow), u"100% of caf\u00E9"},
        {GString::format(u"%s|%ls|%S|%hs", drug, u"wide", drug.text(), std::string("std")),
         drug + u"|wide|" + drug + u"|std"},
        {GString::format(u"[%6s][%-6s][%.2s][%*s]", "ab", "ab", "abc", -4, "x"),
         u"[    ab][ab    ][ab][x   ]"},
        {GString::format(u"%d %i %u %ld %lld", -1, -2, 3000000000U, 5L, 1LL << 40),
         u"-1 -2 3000000000 5 1099511627776"},
        {GString::format(u"%u %x %#X %d %hd %hhu", -1, 255, 255, 4294967295U, 65537, 257),
         u"4294967295 ff 0XFF -1 1 1"},
        {GString::format(u"%+05d|%-5d|%#x|%08.3f|%.*f", 42, 42, 255, 3.14159, 1, 2.25),
         u"+0042|42   |0xff|0003.142|2.2"},
        {GString::format(u"%.*d %#g", -1, 5, 0.0001), u"5 0.000100000"},
        {GString::format(u"%e %.3g %G", 1234.5, 1234.5, 1e-10), u"1.234500e+03 1.23e+03 1E-10"},
        // What the runtimes' own printf functions make different things of.
        {GString::format(u"%+ u|% x|%#u|%#.o|%#.x|%.d", 42U, 42, 42, 0, 0, 0), u"42|2a|42|0||"},
        {GString::format(u"% 05d|%-05d|%05.3d|%#07x|%#o", 42, 42, 42, 42, 8),
         u" 0042|42   |  042|0x0002a|010"},
        {GString::format(u"%f|%05E|%#.3g|%#g", -std::nan(""), 1 / 0.0, 100.0, 999999.95),
         u"-nan|  INF|100.|1.00000e+06"},
        {GString::format(u"%010.2a|%A", 1.5, 1.0), u"0x01.80p+0|0X1P+0"},
        {GString::format(u"%c%c %5c", 'm', 0x00B2, 'x'), u"m\u00B2     x"},
        {GString::format(u"%I64d", std::numeric_limits<std::int64_t>::min()),
         u"-9223372036854775808"},
        {GString::format(u"%p", reinterpret_cast<const void*>(0x1F)), u"000000000000001F"},
        {GString::format(u"%s", static_cast<const char*>(nullptr)), u"(null)"},
    };
    for (const auto& [formatted, expected] : rows)
        EXPECT_EQ(formatted, expected);
}

TEST(Format, WhatDoesNotFitIsWrittenAsItStands)
{
    const std::tuple<GString, GString> rows[] = {
        {GString::format(u"%s of %d", 5, "mg"), u"%s of %d"},
        {GString::format(u"%d %d", 1), u"1 %d"},
        {GString::format(u"%n%d", 7), u"%n7"},
        {GString::format(u"50 % more", 7), u"50 % more"},
        {GString::format(u"%1$s", "x"), u"%1$s"},
        {GString::format(u"50%", 7), u"50%"},
        {GString::format(u"%f", 7), u"%f"},
        {GString::format(u"%I6262d", 7), u"%I6262d"},
    };
    for (const auto& [formatted, expected] : rows)
        EXPECT_EQ(formatted, expected);
}

TEST(Format, LongResultsAreCut)
{
    for (const std::size_t length : {511U, 512U, 513U, 65535U}) {
        const GString text(WideString(length, 'x'));
        EXPECT_EQ(GString::format(u"%s", text), text) << length;
    }
    WideString cut(65535, 'x');
    cut += WideChar(0);
    EXPECT_EQ(GString::format(u"%s", GString(WideString(70000, 'x'))), cut);
    EXPECT_EQ(GString::format(u"%2000000000d", 1).size(), 65536U);
    EXPECT_EQ(GString::format(u"%.2000000000f", 1.0).size(), 65536U);
}

TEST(Format, NumbersOfEveryTypeAreCutAfterFiftyBytes)
{
    EXPECT_EQ(GString::from_number(-5, "%d mg"), u"-5 mg");
    EXPECT_EQ(GString::from_number(std::uint32_t(4000000000), "%u"), u"4000000000");
    EXPECT_EQ(GString::from_number(std::int64_t(-5000000000), "%d"), u"-5000000000");
    EXPECT_EQ(GString::from_number(~std::uint64_t(0), "%llu"), u"18446744073709551615");
    EXPECT_EQ(GString::from_number(1234.5, "%.3e \xB5g"), u"1.234e+03 \u00B5g");
    EXPECT_EQ(GString::from_number(5UL, "%s"), u"%s");
    EXPECT_EQ(GString::from_number(1, "%050d").size(), 50U);
    EXPECT_EQ(GString::from_number(1, "%051d"), GString(WideString(50, '0')));
}

} // namespace
} // namespace Pelmora::Native
