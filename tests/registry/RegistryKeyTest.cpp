#include "pelmora/registry/RegistryKey.h"

#include "pelmora/registry/systemErrorText.h"

#include "tests/printing.h"
#include "tests/registry/TestKeys.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

using namespace std::string_literals;

constexpr OpenMode readWriteCreate = OpenMode::Read | OpenMode::Write | OpenMode::Create;

class RegistryKeyTest : public testing::Test
{
protected:
    RegistryKeyTest() { key.open(HKEY_CURRENT_USER, keys.path, readWriteCreate); }

    /// Exactly these bytes, as another program may have stored them.
    void store(const char* name, DWORD type, const std::string& bytes)
    {
        HKEY raw = nullptr;
        ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, keys.path.c_str(), 0, KEY_WRITE, &raw), 0);
        const std::wstring wideName(name, name + std::strlen(name));
        const std::string guarded = bytes + "xx"; // the system adds a terminator that follows
        EXPECT_EQ(RegSetValueExW(raw, wideName.c_str(), 0, type,
                                 reinterpret_cast<const BYTE*>(guarded.data()),
                                 static_cast<DWORD>(bytes.size())),
                  0);
        RegCloseKey(raw);
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
    for (const std::string text : {"", "dose", "d\xE9j\xE0 vu", "two\r\nlines"}) {
        EXPECT_TRUE(key.writeString("", text));
        EXPECT_EQ(key.readString("", "default"), text);
        EXPECT_TRUE(key.writeString(GString("\xE9"), GString(text)));
        EXPECT_EQ(key.readString(GString("\xE9"), u"default"), GString(text));
        EXPECT_EQ(key.readString("\xE9", "default"), text);
    }
    for (const std::uint32_t number : {0U, 1U, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_TRUE(key.writeDword(u"number", number));
        EXPECT_EQ(key.readDword("number", 5), number);
        EXPECT_EQ(key.readDword(u"number", 5), number);
    }
    for (const std::string& bytes : {""s, "\0\1\xFF"s, std::string(5'000'000, 'x')}) {
        EXPECT_TRUE(key.writeBinary("bytes", bytes.data(), bytes.size()));
        EXPECT_EQ(binary("bytes"), bytes);
    }
    for (const GString text : {u"", u"5 mcg\u00B5 \u3042", u"\xD83D\xDE00"}) {
        EXPECT_TRUE(key.writeWideString(u"wide", text));
        EXPECT_EQ(key.readWideString("wide", u"default"), text);
        EXPECT_EQ(binary("wide").size(), 2 * text.size());
    }
    EXPECT_EQ(key.flush(), 0);
    EXPECT_EQ(key.lastError(), "");
}

TEST_F(RegistryKeyTest, StringListsEndInOneNulMoreThanNeeded)
{
    const struct {
        std::vector<std::string> list;
        std::string stored;
    } rows[] = {
        {{}, "\0\0"s},
        {{"a", "b"}, "a\0b\0\0\0"s},
        {{"d\xE9"}, "d\xE9\0\0\0"s},
    };
    for (const auto& [list, stored] : rows) {
        std::vector<GString> wide(list.begin(), list.end());
        EXPECT_TRUE(key.writeMultiString(u"list", wide));
        EXPECT_EQ(key.readMultiString(u"list"), wide);
        EXPECT_TRUE(key.writeMultiString("list", list));
        EXPECT_EQ(key.readMultiString("list"), list);
        // As the system gives it to anyone else.
        std::string bytes(20, '?');
        auto size = static_cast<DWORD>(bytes.size());
        EXPECT_EQ(RegGetValueA(HKEY_CURRENT_USER, keys.path.c_str(), "list", RRF_RT_REG_MULTI_SZ,
                               nullptr, bytes.data(), &size),
                  0);
        EXPECT_EQ(bytes.substr(0, stored.size()), stored);
    }
}

/// A string's bytes as the registry stores them.
std::string utf16(const std::string& ascii)
{
    std::string bytes;
    for (const char character : ascii)
        bytes += {character, '\0'};
    return bytes;
}

TEST_F(RegistryKeyTest, DataOfOthersIsTakenAsItIs)
{
    store("open string", REG_SZ, utf16("ab"));
    store("no string", REG_SZ, "");
    store("half a unit", REG_SZ, "a");
    store("NUL inside", REG_SZ, utf16("a\0b\0"s));
    EXPECT_EQ(key.readString("open string", "default"), "a");
    EXPECT_EQ(key.readString("no string", "default"), "");
    EXPECT_EQ(key.readString("half a unit", "default"), "");
    EXPECT_EQ(key.readString("NUL inside", "default"), "a\0b"s);

    store("3 bytes", REG_DWORD, "abc");
    store("8 bytes", REG_DWORD, "abcdefgh");
    for (const char* name : {"3 bytes", "8 bytes"}) {
        EXPECT_EQ(key.readDword(name, 5), 5U);
        EXPECT_EQ(key.lastError(), "");
    }
    store("odd", REG_BINARY, "a\0b\0c"s);
    EXPECT_EQ(key.readWideString("odd", u"default"), u"ab");

    const struct {
        std::string bytes;
        std::vector<std::string> list;
    } lists[] = {
        {"", {}},
        {utf16("a"), {"a"}},
        {utf16("a\0b"s), {"a", "b"}},
        {utf16("a\0b\0"s), {"a", "b"}},
        {utf16("a\0\0b\0\0"s), {"a"}},
        {utf16("\0a\0\0"s), {}},
    };
    for (const auto& [bytes, list] : lists) {
        store("list", REG_MULTI_SZ, bytes);
        EXPECT_EQ(key.readMultiString("list"), list);
    }
}

TEST_F(RegistryKeyTest, FailuresGiveTheDefaultAndSayWhy)
{
    const std::string notFound = systemErrorText(ERROR_FILE_NOT_FOUND);
    EXPECT_NE(notFound.find("ound"), std::string::npos);
    EXPECT_EQ(systemErrorText(0xFFFFFFFE), "Unknown error: -2");

    EXPECT_EQ(key.readString(u"absent", u"default"), u"default");
    EXPECT_EQ(key.lastError(), notFound);
    EXPECT_FALSE(key.deleteValue("absent"));
    EXPECT_TRUE(key.writeString("text", "7"));
    EXPECT_EQ(key.readDword("text", 5), 5U);
    EXPECT_EQ(key.lastError(), "The value: 'text' has type: << 1, type expected:4");
    EXPECT_EQ(binary("text"), "null 0");
    EXPECT_EQ(key.lastError(), "The value: 'text' has type: << 1, type expected:3");
    EXPECT_EQ(key.readWideString("text", u"default"), u"default");
    EXPECT_TRUE(key.readMultiString("text").empty());
    EXPECT_EQ(key.lastError(), "The value: 'text' has type: << 1, type expected:7");
    EXPECT_FALSE(key.deleteValue("absent"));
    EXPECT_NE(key.lastError(), ""); // deletion leaves it alone
    EXPECT_TRUE(key.deleteValue(u"text"));
    EXPECT_TRUE(key.writeDword("number", 1));
    EXPECT_EQ(key.lastError(), "");

    EXPECT_FALSE(key.open(HKEY_CURRENT_USER, keys.path + "\\absent", OpenMode::Read));
    EXPECT_EQ(key.lastError(), notFound);
    EXPECT_FALSE(key.deleteValue("number"));
    EXPECT_EQ(key.lastError(), notFound);
    EXPECT_EQ(key.readDword("number", 5), 5U);
    EXPECT_EQ(key.lastError(), "key not opened");
    EXPECT_FALSE(key.writeMultiString("list", std::vector<std::string>()));
    EXPECT_NE(key.flush(), 0);
    EXPECT_EQ(key.valueNamesBegin(), key.valueNamesEnd());
}

TEST_F(RegistryKeyTest, MachineComesBeforeUser)
{
    RegistryKey machine;
    EXPECT_TRUE(key.writeString("root", "user"));
    RegistryKey found;
    EXPECT_TRUE(found.openMachineOrUser(keys.path, OpenMode::Read));
    EXPECT_EQ(found.readString("root", ""), "user");
    EXPECT_TRUE(machine.open(HKEY_LOCAL_MACHINE, GString(keys.path), readWriteCreate));
    EXPECT_TRUE(machine.writeString("root", "machine"));
    EXPECT_TRUE(found.openMachineOrUser(GString(keys.path), OpenMode::AllAccess));
    EXPECT_EQ(found.readString("root", ""), "machine");
    EXPECT_FALSE(found.openMachineOrUser(keys.path + "\\absent", OpenMode::WriteOrRead));
}

TEST_F(RegistryKeyTest, NamesAreIterated)
{
    EXPECT_EQ(key.valueNamesBegin(), key.valueNamesEnd());
    std::vector<std::string> names = {"", "a", "\xE9", std::string(255, 'n')};
    for (const std::string& name : names)
        key.writeDword(name, 1);
    std::vector<std::string> found;
    std::vector<GString> wide;
    for (auto name = key.valueNamesBegin(); name != key.valueNamesEnd();) {
        wide.push_back(name.wideName());
        const auto before = name++;
        found.push_back(*before);
    }
    EXPECT_TRUE(std::is_permutation(found.begin(), found.end(), names.begin(), names.end()));
    EXPECT_EQ(wide, std::vector<GString>(found.begin(), found.end()));
    EXPECT_EQ(*key.valueNamesEnd(), "");
}

TEST_F(RegistryKeyTest, NamesOfAnyLengthAreSafe)
{
    const std::string longName(16383, 'n');
    EXPECT_TRUE(key.writeDword(longName, 8));
    EXPECT_EQ(key.readDword(longName, 5), 8U);
    EXPECT_LE((*key.valueNamesBegin()).size(), 255U);
    EXPECT_FALSE(key.writeDword(longName + "n", 8));
    EXPECT_NE(key.lastError(), "");
}

} // namespace
} // namespace Pelmora::Native
