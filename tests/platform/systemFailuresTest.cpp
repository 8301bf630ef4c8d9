// The import pointers of three functions are defined here, so that the library calls these instead.

#include "pelmora/platform/systemVersion.h"
#include "pelmora/platform/temporaryFolder.h"
#include "pelmora/platform/wholeFile.h"

#include "tests/TemporaryFolder.h"

#include <cstdlib>
#include <set>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

namespace
{

DWORD WINAPI failingGetTempPath(DWORD, char*)
{
    return 0;
}

std::set<DWORD> acceptedRecordSizes;

BOOL WINAPI choosyGetVersion(OSVERSIONINFOA* record)
{
    record->dwMajorVersion = record->dwOSVersionInfoSize;
    return acceptedRecordSizes.count(record->dwOSVersionInfoSize) > 0 ? TRUE : FALSE;
}

BOOL WINAPI failingWriteFile(HANDLE, const void*, DWORD, DWORD*, OVERLAPPED*)
{
    SetLastError(ERROR_DISK_FULL);
    return FALSE;
}

} // namespace

extern "C" {
void* __imp_WriteFile = reinterpret_cast<void*>(failingWriteFile);
void* __imp_GetTempPathA = reinterpret_cast<void*>(failingGetTempPath);
void* __imp_GetVersionExA = reinterpret_cast<void*>(choosyGetVersion);
}

namespace Pelmora::Native::Platform
{
namespace
{

TEST(SystemFailures, TemporaryFolderFallsBackToTheEnvironment)
{
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"TEMP=C:\\T", "TMP=C:\\U", "C:\\T\\"},
        {"TEMP=", "TMP=C:\\U", "C:\\U\\"},
        {"TEMP=", "TMP=", ".\\"},
    };
    for (const auto& [temp, tmp, folder] : rows) {
        _putenv(temp);
        _putenv(tmp);
        EXPECT_EQ(temporaryFolder(), folder);
    }
}

TEST(SystemFailures, FilesOnAFullDiskAreDeleted)
{
    const TemporaryFolder folder;
    EXPECT_EQ(writeWholeFile(folder.path("f").wstring(), std::vector<std::string>{"text"}).value(),
              ERROR_DISK_FULL);
    EXPECT_FALSE(std::filesystem::exists(folder.path("f")));
}

TEST(SystemFailures, VersionIsAskedWithBothRecords)
{
    acceptedRecordSizes = {156, 148};
    EXPECT_EQ(std::get<OsVersion>(systemVersion()).major, 156U);
    acceptedRecordSizes = {148};
    EXPECT_EQ(std::get<OsVersion>(systemVersion()).major, 148U);
    acceptedRecordSizes = {};
    EXPECT_TRUE(std::holds_alternative<std::monostate>(systemVersion()));
}

} // namespace
} // namespace Pelmora::Native::Platform
