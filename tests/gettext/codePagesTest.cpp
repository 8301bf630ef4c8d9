#include "pelmora/gettext/gstringUtil.h"
#include "tests/printing.h"

#include <cstdint>
#include <ctime>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(CodePages, TextsOfBothSidesMatch)
{
    const std::tuple<unsigned int, std::string, GString> rows[] = {
        {0, "", u""},
        {99999, "", u""},
        {0, "b\xE9zier \x80\x96", u"b\u00E9zier \u20AC\u2013"},
        {1252, "\x81\x8D", u"\u0081\u008D"},
        {1250, "\xB9\xE8", u"\u0105\u010D"},
        {1258, "a\xEC", u"a\u0301"}, // never composed
        {437, "\x81\xE1", u"\u00FC\u00DF"},
        {1, "\x9B", u"\u00A2"},              // the OEM page, 437
        {1026, "\xC4\x96\xA2\x85", u"Dose"}, // has ASCII elsewhere
        {20866, "\xC1", u"\u0430"},
        {28591, "\x80\xE9", u"\u0080\u00E9"},
        {932, "\x93\x8C\x8B\x9E\\~", u"\u6771\u4EAC\\~"},
        {932, "\x80\xA0\xFD\xFE\xFF", u"\u0080\uF8F0\uF8F1\uF8F2\uF8F3"},
        {949, "\x80\xFF", u"\u0080\uF8F7"},
        {936, "\xFF", u"\uF8F5"},
        {949, "\xBC\xAD\xBF\xEF", u"\uC11C\uC6B8"},
        {936, "\xB1\xB1\xBE\xA9", u"\u5317\u4EAC"},
    };
    for (const auto& [codePage, narrow, text] : rows) {
        SCOPED_TRACE(codePage);
        EXPECT_EQ(GString(narrow, codePage), text);
        EXPECT_EQ(text.to_narrow(codePage), narrow);
    }
    const std::string four = GString(u"\U0001F600").to_narrow(54936); // not known everywhere
    EXPECT_TRUE(four.empty() || four == "\x94\x39\xFC\x36") << four;
    const std::string plus = GString(u"+").to_narrow(65000); // nor is UTF-7
    EXPECT_TRUE(plus.empty() || plus == "+-") << plus;
}

TEST(CodePages, WhatHasNoCounterpartIsReplaced)
{
    const std::tuple<unsigned int, GString, std::string> toNarrow[] = {
        {0, u"\u0101\u0142\uFF01\uFF5E\u2032\u2212", "al!~'-"}, // best fits
        {0, u"\u0080\u0093\u009D", "??\x9D"},
        {0, u"\u6771\u2603!", "?\?!"},
        {0, u"\xD83D\xDE00x", "??x"},
        {932, u"\u6771\uC11C", "\x93\x8C?"},
        {99999, u"\u00E9", ""},
    };
    for (const auto& [codePage, text, narrow] : toNarrow)
        EXPECT_EQ(text.to_narrow(codePage), narrow) << codePage;
    const std::tuple<unsigned int, std::string, GString> toWide[] = {
        {65001, "\xF0\x9F\x98\x80", u"\xD83D\xDE00"},
        {65001, "a\xF0\x9F\x98z\xE2\x82", u"a\uFFFDz\uFFFD"},
        {65001, "\xC0\x80\xFF\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        {932, "\x93\x8C\x81", u"\u6771\u30FB"},
        {932, "\x81\xFF!", u"\u30FB!"},
        {932, "\xFC\xFF!", u"\u30FB!"},
        {949, "\xA2\xE8z", u"?z"},
        {1253, "\x81\x9F", u"\u0081\u009F"},
        {936, "\xB1\xB1\x81 ", u"\u5317?"},
        {950, "\xA4\x40\xFE\xFF!", u"\u4E00?!"},
        {1361, "\xF9\xFF\xD8\xFF!", u"?\?!"},
        {65001, "\xC1\xBF\xF5\x80\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        {99999, "\xE9", u""},
    };
    for (const auto& [codePage, narrow, text] : toWide)
        EXPECT_EQ(GString(narrow, codePage), text) << codePage;
}

TEST(CodePages, BestFitsAreThoseOfWindows)
{
    WideString all;
    for (unsigned int unit = 1; unit <= 0xFFFF; ++unit)
        if (unit < 0xE000 || unit > 0xF8FF) // without the user-defined characters
            all += static_cast<WideChar>(unit);
    const std::pair<unsigned int, std::uint32_t> rows[] = {
        {932, 3351354414}, {936, 1121192449}, {949, 2300239412}, {1252, 1278725639}};
    for (const auto& [codePage, expected] : rows) {
        std::uint32_t hash = 2166136261; // FNV-1a
        for (const char byte : GString(all).to_narrow(codePage))
            hash = (hash ^ static_cast<unsigned char>(byte)) * 16777619U;
        EXPECT_EQ(hash, expected) << codePage;
    }
}

TEST(CodePages, UnencodableTextTakesTimeInProportion)
{
    WideString text;
    for (unsigned int i = 0; i < 600000; ++i)
        text += static_cast<WideChar>(0x4E00 + i % 20000);
    const std::clock_t start = std::clock();
    EXPECT_EQ(GString(text).to_narrow(1252), std::string(text.size(), '?'));
    EXPECT_LT(std::clock() - start, 3 * CLOCKS_PER_SEC); // far less, even under valgrind
}

TEST(CodePages, ConversionsEndAtTheFirstNul)
{
    EXPECT_EQ(GString(std::string_view("ab\0cd", 5)), u"ab");
    EXPECT_EQ(GString(std::string_view("\xE9\0cd", 4), 932), GString("\xE9", 932));
    EXPECT_EQ(GString(std::string_view("\0\xE9", 2), 932), u"");
    EXPECT_EQ(GString(WideString{'a', 0, 'b'}).to_narrow(), "a");
    EXPECT_EQ(GString(WideString{0xE9, 0, 'b'}).to_narrow(), "\xE9");
}

} // namespace
} // namespace Pelmora::Native
