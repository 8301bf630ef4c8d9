#include "pelmora/base/detail/utf8.h"

#include "pelmora/gettext/gstringUtil.h"
#include "tests/printing.h"

#include <algorithm>
#include <memory>
#include <random>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(Utf8, SequencesOfEveryLengthReachTheirLimits)
{
    const std::tuple<std::string, std::uint32_t> rows[] = {
        {"\x7F", 0x7F},
        {"\xC2\x80", 0x80},
        {"\xDF\xBF", 0x7FF},
        {"\xE0\xA0\x80", 0x800},
        {"\xED\xA0\xBD", 0xD83D},
        {"\xF0\x90\x80\x80", 0x10000},
        {"\xF7\xBF\xBF\xBF", 0x1FFFFF},
        {"\xF8\x88\x80\x80\x80", 0x200000},
        {"\xFC\x84\x80\x80\x80\x80", 0x4000000},
        {"\xFD\xBF\xBF\xBF\xBF\xBF", 0x7FFFFFFF},
    };
    for (const auto& [bytes, value] : rows) {
        SCOPED_TRACE(value);
        const auto character = decodeUtf8(bytes + "x", bytes.size());
        ASSERT_TRUE(character);
        EXPECT_EQ(character->value, value);
        EXPECT_EQ(character->length, bytes.size());
        EXPECT_EQ(encodeUtf8(value).view(), bytes);
        EXPECT_FALSE(decodeUtf8(bytes, bytes.size() - 1));
    }
}

TEST(Utf8, MalformedSequencesAreNotDecoded)
{
    for (const std::string bytes :
         {"\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xF8\x87\xBF\xBF\xBF", "\xFC\x83\xBF\xBF\xBF\xBF",
          "\xC1\xBF", "\xFE", "\xE2\x82", "\xE2\xC2\x80"}) {
        // An allocation of exactly this size shows the sanitizer a read beyond the end.
        const auto exact = std::make_unique<char[]>(bytes.size());
        bytes.copy(exact.get(), bytes.size());
        EXPECT_FALSE(decodeUtf8({exact.get(), bytes.size()}, 6)) << bytes;
    }
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

/// The UTF-16 of a text, made of one character after the other.
std::optional<WideString> fromCharacters(std::string_view utf8, Utf8Form form)
{
    WideString text;
    while (!utf8.empty()) {
        const auto character = decodeUtf8(utf8, form == Utf8Form::units ? 3 : 4);
        const std::uint32_t value = character ? character->value : 0xD800;
        if (!character || (form == Utf8Form::characters &&
                           (value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))))
            return std::nullopt;
        if (value > 0xFFFF)
            text += static_cast<WideChar>(0xD800 + ((value - 0x10000) >> 10));
        text += static_cast<WideChar>(value > 0xFFFF ? 0xDC00 + (value & 0x3FF) : value);
        utf8.remove_prefix(character->length);
    }
    return text;
}

TEST(Utf8, TextsConvertAsTheirCharacters)
{
    // The last ones are malformed in one form, those after them in both.
    const std::string_view pieces[] = {"x",
                                       "more ASCII than one step takes",
                                       "\xC3\xA9",
                                       "\xE0\xA0\x80",
                                       "\xE3\x82\xA2",
                                       "\xF0\x9F\x98\x80",
                                       "\xED\xA0\xBD",
                                       "\xED\xB8\x80",
                                       "\xF4\x90\x80\x80",
                                       "\xE0\x9F\xBF",
                                       "\x80",
                                       "\xE3\x82"};
    std::mt19937 random;
    for (int round = 0; round < 4000; ++round) {
        std::string text;
        const auto kinds = round % 4 == 0 ? std::size(pieces) : 5 + random() % 4;
        for (auto i = random() % (round % 8 == 0 ? 200 : 12); i > 0; --i)
            text += pieces[random() % kinds];
        for (const Utf8Form form : {Utf8Form::units, Utf8Form::characters}) {
            const auto wide = decodedUtf8(text, form);
            ASSERT_TRUE(wide == fromCharacters(text, form)) << text;
            if (wide) {
                ASSERT_EQ(encodedUtf8(*wide, form), text);
                ASSERT_EQ(isAscii(*wide), isAscii(text));
            }
        }
        const bool ascii =
            std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
        ASSERT_EQ(isAscii(text), ascii) << text;
    }
}

TEST(Utf8, TextsThatAreMalformedByNameThrowTheirMessage)
{
    try {
        GString::from_utf8("x\xF0\x9F\x98\x80");
        ADD_FAILURE();
    } catch (const char* message) {
        EXPECT_STREQ(message, "UTF8 error: source too large");
    }
}

} // namespace
} // namespace Pelmora::Native
