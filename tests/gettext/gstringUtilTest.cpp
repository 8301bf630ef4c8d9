#include "pelmora/gettext/gstringUtil.h"
#include "tests/printing.h"

#include <set>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(GString, ToLongReadsAsWcstolOnWindows)
{
    const std::tuple<GString, std::int32_t, bool> rows[] = {
        {u"42x", 42, false},
        {u"", 0, true},
        {u" \t-7", -7, true},
        {u"+7", 7, true},
        {u"\u3000-\uFF14\u0662", -42, true},
        {u"7 ", 7, false},
        {u"  ", 0, false},
        {u"-", 0, false},
        {u"--1", 0, false},
        {u"0x10", 0, false},
        {u"2147483647", 2147483647, true},
        {u"2147483648", 2147483647, true},
        {u"-2147483648", -2147483647 - 1, true},
        {u"-99999999999999999999", -2147483647 - 1, true},
        {WideString{'4', 0, '2'}, 4, false},
    };
    for (const auto& [text, value, isWhole] : rows) {
        SCOPED_TRACE(testing::PrintToString(text));
        bool ok = !isWhole;
        EXPECT_EQ(text.to_long(&ok), value);
        EXPECT_EQ(ok, isWhole);
        EXPECT_EQ(text.to_long(), value);
    }
    // Digits of seventeen scripts and ASCII; before a digit also two signs and 24 kinds of space.
    int digits = 0;
    int beforeDigits = 0;
    for (unsigned int unit = 1; unit <= 0xFFFF; ++unit) {
        bool ok = false;
        WideString text(1, static_cast<WideChar>(unit));
        GString(text).to_long(&ok);
        digits += ok ? 1 : 0;
        GString(text + WideChar('7')).to_long(&ok);
        beforeDigits += ok ? 1 : 0;
    }
    EXPECT_EQ(digits, 18 * 10);
    EXPECT_EQ(beforeDigits, digits + 2 + 24);
}

TEST(GString, OnlyTrueAndFalseAreBooleans)
{
    bool ok = false;
    EXPECT_TRUE(GString::from_bool(true).to_bool(&ok) && ok);
    EXPECT_TRUE(!GString::from_bool(false).to_bool(&ok) && ok);
    for (const GString text : {u"True", u"true ", u"tru", u"", u"1"})
        EXPECT_TRUE(!text.to_bool(&ok) && !ok) << testing::PrintToString(text);
    EXPECT_EQ(GString::from_bool(true) + GString::from_bool(false), u"truefalse");
}

TEST(GString, TemporaryBuffersLastForFifteenMoreCalls)
{
    const auto text = [](int i) { return GString::from_number(i, "caf\xE9 %d"); };
    std::vector<const char*> ansi;
    std::vector<const char*> other;
    for (int i = 0; i < 16; ++i) {
        ansi.push_back(text(i).to_temp_c_str());
        other.push_back(text(i).to_temp_c_str(65001));
    }
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(ansi[static_cast<std::size_t>(i)], "caf\xE9 " + std::to_string(i));
        EXPECT_EQ(other[static_cast<std::size_t>(i)], "caf\xC3\xA9 " + std::to_string(i));
    }
    // The 17th call takes the first one's slot, whose buffer is long enough already.
    EXPECT_STREQ(text(16).to_temp_c_str(), "caf\xE9 16");
    EXPECT_STREQ(ansi[1], "caf\xE9 1");
    EXPECT_STREQ(other[0], "caf\xC3\xA9 0");
    EXPECT_EQ(std::set<const char*>(ansi.begin(), ansi.end()).size(), 16U);
}

TEST(GString, TemporaryBuffersAreSharedByThreads)
{
    const auto use = [] {
        for (int i = 0; i < 20000; ++i)
            static_cast<void>(GString(u"text of a thread").to_temp_c_str());
    };
    std::thread other(use);
    use();
    other.join();
}

/// Uses the buffers while the process ends, when the statics of the library may have gone.
struct LateUser {
    ~LateUser()
    {
        if (std::string(GString(u"late").to_temp_c_str()) != "late")
            std::abort();
    }
} lateUser;

} // namespace
} // namespace Pelmora::Native
