#include "pelmora/gui/textUtil.h"

#include "tests/printing.h"

#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(TextUtil, Split)
{
    using Fields = std::vector<std::string>;
    const std::tuple<std::string, Fields, Fields> rows[] = {
        {"a,,b", {"a", "", "b"}, {"a", "b"}},
        {"", {""}, {}},
        {",", {"", ""}, {}},
        {",a;\xE9", {"", "a;\xE9"}, {"a;\xE9"}},
    };
    for (const auto& [text, all, notEmpty] : rows) {
        EXPECT_EQ(split(text, ',', false), all);
        EXPECT_EQ(split(text, ',', true), notEmpty);
    }
}

TEST(TextUtil, MakeLink)
{
    EXPECT_EQ(makeLink(u"dose", u""), u"dose");
    EXPECT_EQ(makeLink(u"<\u00E9>", u"\"&"), u"<a href=\"\"&\"><\u00E9></a>");
}

} // namespace
} // namespace Pelmora::Native
