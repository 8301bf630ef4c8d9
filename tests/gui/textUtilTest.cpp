#include "pelmora/gui/textUtil.h"

#include "tests/printing.h"

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

using namespace std::string_view_literals;

TEST(TextUtil, Split)
{
    using Fields = std::vector<std::string>;
    const struct {
        std::string_view text;
        char separator;
        Fields all;
        Fields notEmpty;
    } rows[] = {
        {"a,,b", ',', {"a", "", "b"}, {"a", "b"}},
        {"", ',', {""}, {}},
        {"a,", ',', {"a", ""}, {"a"}},
        {",", ',', {"", ""}, {}},
        {",a;b", ',', {"", "a;b"}, {"a;b"}},
        {"a\0\xE9"sv, '\0', {"a", "\xE9"}, {"a", "\xE9"}},
        {"a\xE9\xE9z", '\xE9', {"a", "", "z"}, {"a", "z"}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(split(row.text, row.separator, false), row.all);
        EXPECT_EQ(split(row.text, row.separator, true), row.notEmpty);
    }
}

TEST(TextUtil, MakeLink)
{
    EXPECT_EQ(makeLink(u"dose", u""), u"dose");
    EXPECT_EQ(makeLink(u"", u""), u"");
    EXPECT_EQ(makeLink(u"", u"a"), u"<a href=\"a\"></a>");
    EXPECT_EQ(makeLink(u"<\u00E9>", u"\"&"), u"<a href=\"\"&\"><\u00E9></a>");
}

} // namespace
} // namespace Pelmora::Native
