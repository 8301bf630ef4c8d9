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
    for (const std::string name : {"caf\xE9.txt", "sub\\", "sub/", "*.txt", ""})
        EXPECT_TRUE(pathExists(folder.name(name))) << name;
    for (const std::string name : {"cafe.txt", "sub//", "*.doc", "sub/none"})
        EXPECT_FALSE(pathExists(GString(folder.name(name)))) << name;
    EXPECT_FALSE(pathExists(""));
}

TEST(Files, RemoveReadOnly)
{
    const TemporaryFolder folder;
    const std::string file = folder.name("caf\xE9.txt");
    TemporaryFolder::write(folder.path(L"caf\u00E9.txt"), "x");
    constexpr DWORD hidden = FILE_ATTRIBUTE_HIDDEN;
    const std::tuple<DWORD, bool, const char*> rows[] = {
        // attributes, log success, what the log says
        {hidden, true, nullptr},
        {hidden | FILE_ATTRIBUTE_READONLY, true, "Removed read-only attribute on "},
        {hidden | FILE_ATTRIBUTE_READONLY, false, "Could not remove read-only attribute on "},
    };
    for (const auto& [attributes, logSuccess, text] : rows) {
        SetFileAttributesA(file.c_str(), attributes);
        const LogCapture log;
        removeReadOnly(GString(file), logSuccess);
        EXPECT_EQ(log.text(), text == nullptr ? "" : text + file + "\n");
        EXPECT_EQ(GetFileAttributesA(file.c_str()) & ~DWORD(FILE_ATTRIBUTE_ARCHIVE), hidden);
    }
}

} // namespace
} // namespace Pelmora::Native
