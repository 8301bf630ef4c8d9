#include "pelmora/formatter/Formatter.h"

#include <random>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native::Formatter
{
namespace
{

WideString wide(std::string_view text)
{
    return {text.begin(), text.end()};
}

TEST(Formatter, UnescapeUndoesEscape)
{
    const std::tuple<std::string, std::string> rows[] = {
        {"", ""},
        {"dose < 5 & > 3", "dose &lt; 5 &amp; &gt; 3"},
        {"<>&\"'", "&lt;&gt;&amp;&quot;&apos;"},
        {"&amp;", "&amp;amp;"},
        {"&lt", "&amp;lt"},
    };
    for (const auto& [plain, escaped] : rows) {
        EXPECT_EQ(escape(plain), escaped);
        EXPECT_EQ(unescape(escaped), plain);
        EXPECT_EQ(escape(wide(plain)), wide(escaped));
        EXPECT_EQ(unescape(wide(escaped)), wide(plain));
    }
    EXPECT_EQ(unescape(std::string_view("&lt;", 3)), "&lt");
    EXPECT_EQ(unescape("&amp;lt; &#60; & &nbsp; &LT; &amp"), "&lt; &#60; & &nbsp; &LT; &amp");
}

/// The two conversions in five passes each.
template <class Text>
Text inPasses(Text text, bool escapes)
{
    const std::pair<const char*, const char*> steps[] = {
        {"&", "&amp;"}, {">", "&gt;"}, {"\"", "&quot;"}, {"'", "&apos;"}, {"<", "&lt;"}};
    const auto same = [](std::string_view s) { return Text(s.begin(), s.end()); };
    for (std::size_t i = 0; i < std::size(steps); ++i) {
        const auto& step = steps[escapes ? i : std::size(steps) - 1 - i];
        text = escapes ? replaceAll(text, same(step.first), same(step.second))
                       : replaceAll(text, same(step.second), same(step.first));
    }
    return text;
}

TEST(Formatter, OnePassEqualsFivePasses)
{
    const std::string_view pieces[] = {"&",       "&amp;", "&lt;",  "&gt;", "amp;",
                                       "lt;",     "<",     "&quot", ";",    "&apos;",
                                       "'",       "\"",    ">",     "text", "\xA6\xA7\xBE\xBC\xA2",
                                       "\xC3\xA9"};
    std::mt19937 random(1);
    for (int round = 0; round < 1000; ++round) {
        std::string text;
        for (auto i = random() % (round % 50 == 0 ? 600 : 60); i > 0; --i)
            text += pieces[random() % std::size(pieces)];
        ASSERT_EQ(escape(text), inPasses(text, true));
        ASSERT_EQ(unescape(text), inPasses(text, false));
        ASSERT_EQ(escape(wide(text)), inPasses(wide(text), true));
        ASSERT_EQ(unescape(wide(text)), inPasses(wide(text), false));
        ASSERT_EQ(unescape(escape(text)), text);
    }
    // One special character at many places of a text that is otherwise skipped in blocks.
    for (std::size_t place = 0; place < 600; place += 7) {
        for (const char special : {'&', '>', '"', '\'', '<'}) {
            std::string text(600, '=');
            text[place] = special;
            ASSERT_EQ(escape(text), inPasses(text, true));
            ASSERT_EQ(escape(wide(text)), inPasses(wide(text), true));
            ASSERT_EQ(unescape(escape(text)), text);
            ASSERT_EQ(unescape(escape(wide(text))), wide(text));
        }
    }
}

TEST(Formatter, ReplaceAllDoesNotSearchWhatItPutIn)
{
    EXPECT_EQ(replaceAll("aaaa", "aa", "a"), "aa");
    EXPECT_EQ(replaceAll("abab", "ab", "xaby"), "xabyxaby");
    EXPECT_EQ(replaceAll("ab", "ab", ""), "");
    EXPECT_EQ(replaceAll("ab", "", "x"), "ab");
    EXPECT_EQ(replaceAll(wide("a.b"), wide("."), wide("::")), wide("a::b"));
}

} // namespace
} // namespace Pelmora::Native::Formatter
