#include "pelmora/gettext/utf8.h"

#include "pelmora/gettext/gstringUtil.h"
#include "tests/printing.h"

#include <array>
#include <memory>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(Utf8, DecodesEveryLengthAtItsLimits)
{
    const std::tuple<std::string, int, int, std::uint32_t> rows[] = {
        {"\x7F", 1, 1, 0x7F},
        {"\xC2\x80", 2, 2, 0x80},
        {"\xDF\xBF", 2, 2, 0x7FF},
        {"\xE0\xA0\x80", 3, 3, 0x800},
        {"\xED\xA0\xBD", 3, 3, 0xD83D},
        {"\xF0\x90\x80\x80", 4, 4, 0x10000},
        {"\xF7\xBF\xBF\xBF", 4, 4, 0x1FFFFF},
        {"\xF8\x88\x80\x80\x80", 5, 5, 0x200000},
        {"\xFC\x84\x80\x80\x80\x80", 6, 6, 0x4000000},
        {"\xFD\xBF\xBF\xBF\xBF\xBF", 6, 6, 0x7FFFFFFF},
        {"\xF0\x90\x80\x80", 3, utf8NoRoom, 0},
        {"\xE0\x9F\xBF", 3, utf8Malformed, 0},
        {"\xF0\x8F\xBF\xBF", 4, utf8Malformed, 0},
        {"\xF8\x87\xBF\xBF\xBF", 5, utf8Malformed, 0},
        {"\xFC\x83\xBF\xBF\xBF\xBF", 6, utf8Malformed, 0},
        {"\xC1\xBF", 3, utf8Malformed, 0},
        {"\xFE", 6, utf8Malformed, 0},
        {"\xE2\x82", 3, utf8Malformed, 0},
        {"\xE2\xC2\x80", 3, utf8Malformed, 0},
    };
    for (const auto& [bytes, available, length, expected] : rows) {
        // An allocation of exactly this size shows a read behind the end to the sanitizer.
        const auto exact = std::make_unique<char[]>(bytes.size());
        bytes.copy(exact.get(), bytes.size());
        const std::string_view text(exact.get(), bytes.size());
        std::uint32_t value = 0;
        EXPECT_EQ(decodeUtf8(text, available, value), length) << bytes;
        EXPECT_EQ(value, expected) << bytes;
        if (length < 1)
            continue;
        std::array<char, 6> room = {};
        ASSERT_EQ(encodeUtf8(value, room), length);
        EXPECT_EQ(std::string(room.data(), bytes.size()), bytes);
        EXPECT_EQ(encodeUtf8(value, std::span(room).first(bytes.size() - 1)), utf8NoRoom);
    }
    std::array<char, 8> room = {};
    EXPECT_EQ(encodeUtf8(0x80000000, room), utf8Malformed);
}

TEST(Utf8, TextsReadBack)
{
    const std::tuple<std::string, GString> rows[] = {
        {"", u""},
        {"\xC3\xA9", u"\u00E9"},
        {"12345678\xC3\xA9"
         "2345678\xE3\x82\xA2",
         u"12345678\u00E92345678\u30A2"},
        {"\xED\xA0\xBD\xED\xB8\x80", u"\xD83D\xDE00"},
        {std::string("a\0b", 3), WideString{'a', 0, 'b'}},
    };
    for (const auto& [utf8, text] : rows) {
        EXPECT_EQ(GString::from_utf8(utf8), text);
        EXPECT_EQ(text.to_utf8(), utf8);
        EXPECT_EQ(text.to_narrow(utf8CodePage), utf8);
    }
}

TEST(Utf8, MalformedTextThrowsWhereverItStands)
{
    for (const std::string bad : {"\xC0\x80", "\x80", "\xF0\x9F\x98\x80", "\xE3\x82", "\xFF"}) {
        for (std::size_t before = 0; before < 20; ++before) {
            const std::string text = std::string(before, 'x') + bad;
            try {
                GString::from_utf8(text);
                ADD_FAILURE() << text;
            } catch (const char* message) {
                EXPECT_STREQ(message, "UTF8 error: source too large");
            }
        }
    }
}

} // namespace
} // namespace Pelmora::Native
