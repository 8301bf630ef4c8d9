// The import pointers of some functions are defined here, so that the library calls these, which
// fail, instead.

#include "pelmora/gui/dateTime.h"
#include "pelmora/gui/files.h"

#include "tests/LogCapture.h"
#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace
{

BOOL WINAPI failingSetAttributes(const char*, DWORD)
{
    return FALSE;
}

int WINAPI failingFormat(LCID, DWORD, const SYSTEMTIME*, const char*, char* text, int)
{
    *text = '?';
    return 0;
}

} // namespace

extern "C" {
void* __imp_SetFileAttributesA = reinterpret_cast<void*>(failingSetAttributes);
void* __imp_GetDateFormatA = reinterpret_cast<void*>(failingFormat);
void* __imp_GetTimeFormatA = reinterpret_cast<void*>(failingFormat);
}

namespace Pelmora::Native
{
namespace
{

TEST(GuiFailures, ReadOnlyFilesStayReadOnly)
{
    const TemporaryFolder folder;
    const std::string file = folder.name("file");
    TemporaryFolder::write(folder.path("file"), "x");
    ASSERT_NE(SetFileAttributesW(folder.path("file").c_str(), FILE_ATTRIBUTE_READONLY), 0);
    const LogCapture log;
    removeReadOnly(file, true);
    EXPECT_EQ(log.text(), "Could not remove read-only attribute on " + file + "\n");
    SetFileAttributesW(folder.path("file").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(GuiFailures, NoDateIsNoText)
{
    EXPECT_EQ(currentDateText(true), "");
    EXPECT_EQ(currentTimeText(true), "");
}

} // namespace
} // namespace Pelmora::Native
