#include "pelmora/gui/files.h"

#include "tests/LogCapture.h"
#include "tests/TemporaryFolder.h"

#include <tuple>

#include <gtest/gtest.h>

#include <windows.h>

namespace Pelmora::Native
{
namespace
{

TEST(Files, PathExists)
{
    const TemporaryFolder folder;
    TemporaryFolder::write(folder.path(L"caf\u00E9.txt"), "x");
    std::filesystem::create_directory(folder.path("sub"));
    const std::tuple<std::string, bool> rows[] = {
        {"caf\xE9.txt", true},
        {"caf\xE9.txt/", true},
        {"CAF\xC9.TXT", true},
        {"cafe.txt", false},
        {"caf\xE9", false},
        {"sub", true},
        {"sub\\", true},
        {"sub/", true},
        {"sub//", false},
        {"sub\\*", true},
        {"*.txt", true},
        {"*.doc", false},
        {"sub/none", false},
        {std::string(300, 'x'), false},
        {"", true},
    };
    for (const auto& [name, exists] : rows) {
        EXPECT_EQ(pathExists(folder.name(name)), exists) << name;
        EXPECT_EQ(pathExists(GString(folder.name(name))), exists) << name;
    }
    EXPECT_FALSE(pathExists(""));
    EXPECT_FALSE(pathExists(GString()));
    EXPECT_FALSE(pathExists("/"));
}

TEST(Files, RemoveReadOnly)
{
    const TemporaryFolder folder;
    const std::string file = folder.name("caf\xE9.txt");
    TemporaryFolder::write(folder.path(L"caf\u00E9.txt"), "x");
    const std::tuple<DWORD, bool, DWORD, const char*> rows[] = {
        // attributes, log success, attributes afterwards, what the log says
        {FILE_ATTRIBUTE_HIDDEN, true, FILE_ATTRIBUTE_HIDDEN, nullptr},
        {FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN, true, FILE_ATTRIBUTE_HIDDEN,
         "Removed read-only attribute on "},
        {FILE_ATTRIBUTE_READONLY, false, FILE_ATTRIBUTE_NORMAL,
         "Could not remove read-only attribute on "},
    };
    for (const bool wide : {false, true}) {
        for (const auto& [attributes, logSuccess, remaining, text] : rows) {
            SetFileAttributesA(file.c_str(), attributes);
            const LogCapture log;
            if (wide)
                removeReadOnly(GString(file), logSuccess);
            else
                removeReadOnly(file, logSuccess);
            EXPECT_EQ(log.text(), text == nullptr ? "" : text + file + "\n");
            constexpr DWORD looked = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN;
            EXPECT_EQ(GetFileAttributesA(file.c_str()) & looked, remaining & looked);
        }
    }
    const LogCapture log;
    removeReadOnly(folder.name("none"), true);
    EXPECT_EQ(log.text(), "");
}

} // namespace
} // namespace Pelmora::Native
