#include "pelmora/registry/RegistryKey.h"

#include "pelmora/registry/systemErrorText.h"

#include "tests/printing.h"
#include "tests/registry/TestKeys.h"

#include <filesystem>
#include <string_view>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

using namespace std::string_literals;

class RegistryKeyTest : public testing::Test
{
protected:
    RegistryKeyTest()
    {
        key.open(HKEY_CURRENT_USER, keys.path, OpenMode::AllAccess | OpenMode::Create);
    }

    /// Exactly these bytes, as another program may have stored them.
    void store(DWORD type, const std::string& bytes)
    {
        const std::string guarded = bytes + "xx"; // the system adds a terminator that follows
        EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, std::filesystem::path(keys.path).c_str(), L"x",
                                  type, guarded.data(), static_cast<DWORD>(bytes.size())),
                  0);
    }

    std::string binary(const char* name)
    {
        std::size_t size = 77;
        const auto bytes = key.readBinary(name, size);
        return bytes == nullptr ? "null " + std::to_string(size)
                                : std::string(reinterpret_cast<const char*>(bytes.get()), size);
    }

    TestKeys keys;
    RegistryKey key;
};

TEST_F(RegistryKeyTest, WhatIsWrittenIsReadAgain)
{
    for (const GString text : {u"", u"d\u00E9j\u00E0 vu"}) {
        EXPECT_TRUE(key.writeString(u"\u00E9", text));
        EXPECT_EQ(key.readString(u"\u00E9", u"default"), text);
    }
    EXPECT_TRUE(key.writeDword(u"number", 0x80000001));
    EXPECT_EQ(key.readDword("number", 5), 0x80000001);
    for (const std::string& bytes : {""s, "\0\1\xFF"s, std::string(5'000'000, 'x')}) {
        EXPECT_TRUE(key.writeBinary("bytes", bytes.data(), bytes.size()));
        EXPECT_EQ(binary("bytes"), bytes);
    }
    EXPECT_TRUE(key.writeWideString("wide", u"\u00B5 \u3042"));
    EXPECT_EQ(key.readWideString(u"wide", u"default"), u"\u00B5 \u3042");
    EXPECT_EQ(binary("wide").size(), 6U);

    const std::vector<GString> list = {u"a", u"\u00E9"};
    EXPECT_TRUE(key.writeMultiString(u"list", list));
    EXPECT_EQ(key.readMultiString(u"list"), list);
    std::string stored(20, '?');
    auto size = static_cast<DWORD>(stored.size());
    RegGetValueA(HKEY_CURRENT_USER, keys.path.c_str(), "list", RRF_RT_ANY, nullptr, stored.data(),
                 &size);
    EXPECT_EQ(stored.substr(0, 6), "a\0\xE9\0\0\0"s);
    EXPECT_EQ(key.flush(), 0);
}

std::string bytesOf(std::u16string_view text)
{
    return {reinterpret_cast<const char*>(text.data()), 2 * text.size()};
}

TEST_F(RegistryKeyTest, DataOfOthersIsTakenAsItIs)
{
    for (const auto& [bytes, text] :
         {std::pair(bytesOf(u"ab"), "a"s), {"", ""}, {"a", ""}, {bytesOf(u"a\0b\0"s), "a\0b"s}}) {
        store(REG_SZ, bytes);
        EXPECT_EQ(key.readString("x", "default"), text);
    }
    for (const char* const bytes : {"abc", "abcdefgh"}) {
        store(REG_DWORD, bytes);
        EXPECT_EQ(key.readDword("x", 5), 5U);
        EXPECT_EQ(key.lastError(), "");
    }
    store(REG_BINARY, "a\0b\0c"s);
    EXPECT_STREQ(key.readWideString("x", u"default").to_w_str(), L"ab"); // ends there
    for (const auto& [bytes, list] :
         {std::pair(bytesOf(u"a\0b"s), std::vector<std::string>{"a", "b"}),
          {bytesOf(u"a\0\0b\0\0"s), {"a"}},
          {"", {}}}) {
        store(REG_MULTI_SZ, bytes);
        EXPECT_EQ(key.readMultiString("x"), list);
    }
}

TEST_F(RegistryKeyTest, FailuresGiveTheDefaultAndSayWhy)
{
    const std::string notFound = systemErrorText(ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(systemErrorText(0xFFFFFFFE), "Unknown error: -2");
    EXPECT_NE(systemErrorText(ERROR_BAD_EXE_FORMAT).find("%1"), std::string::npos);
    EXPECT_EQ(key.readString(u"absent", u"default"), u"default");
    EXPECT_EQ(key.lastError(), notFound);
    EXPECT_TRUE(key.writeString("text", "7"));
    EXPECT_EQ(key.lastError(), "");
    EXPECT_EQ(key.readDword("text", 5), 5U);
    EXPECT_EQ(key.lastError(), "The value: 'text' has type: << 1, type expected:4");
    EXPECT_EQ(binary("text"), "null 0");
    EXPECT_TRUE(key.deleteValue(u"text") && !key.deleteValue("text"));
    EXPECT_NE(key.lastError(), ""); // deletion leaves it alone

    EXPECT_FALSE(key.openMachineOrUser(keys.path + "\\absent", OpenMode::Read));
    EXPECT_EQ(key.lastError(), notFound);
    EXPECT_FALSE(key.writeDword("number", 1));
    EXPECT_EQ(key.lastError(), "key not opened");
    EXPECT_EQ(key.valueNamesBegin(), key.valueNamesEnd());
}

TEST_F(RegistryKeyTest, NamesAreIterated)
{
    std::vector<std::string> names = {"", "\xE9", std::string(255, 'n')};
    for (const std::string& name : names)
        key.writeDword(name, 1);
    for (auto name = key.valueNamesBegin(); name != key.valueNamesEnd();)
        EXPECT_EQ(std::erase(names, *name++), 1U);
    EXPECT_TRUE(names.empty());
    EXPECT_EQ(*key.valueNamesEnd(), "");

    const std::string longest(16383, 'n'); // does not fit the iterator's buffer
    EXPECT_TRUE(key.writeDword(longest, 8));
    EXPECT_EQ(key.readDword(longest, 5), 8U);
    for (auto name = key.valueNamesBegin(); name != key.valueNamesEnd(); ++name)
        EXPECT_LE((*name).size(), 255U);
}

} // namespace
} // namespace Pelmora::Native
