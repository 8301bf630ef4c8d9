#include "pelmora/gui/files.h"
#include "pelmora/gui/dateTime.h"

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
    for (const auto& [lacking, named] :
         {std::pair(u"/\u3042\u3042\u3042.txt", "/abc.txt"), {u"/\uFF43\u00E9", "/c\xE9"}}) {
        const std::string other = folder.name(named);
        TemporaryFolder::write(other, "x");
        SetFileAttributesA(other.c_str(), FILE_ATTRIBUTE_READONLY);
        const GString path = GString(folder.name("")) + lacking;
        EXPECT_FALSE(pathExists(path));
        removeReadOnly(path, true);
        EXPECT_NE(GetFileAttributesA(other.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
        SetFileAttributesA(other.c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    EXPECT_FALSE(pathExists(""));
}

TEST(DateTime, TheLongFormsSayMore)
{
    EXPECT_LT(currentDateText(false).size(), currentDateText(true).size());
    EXPECT_LT(currentTimeText(false).size(), currentTimeText(true).size());
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
