// The import pointer of one function is defined here, so that the library calls this instead.

#include "pelmora/log/LogStream.h"

#include <cstdio>
#include <cstdlib>

#include <gtest/gtest.h>

#include <windows.h>

namespace
{

UINT WINAPI printedStart(const char* command, UINT)
{
    std::fputs(command, stderr);
    return 33;
}

} // namespace

extern "C" {
void* __imp_WinExec = reinterpret_cast<void*>(printedStart);
}

namespace Pelmora::Native
{
namespace
{

TEST(NotepadDeathTest, ShowsTheFinishedLogWhenAskedTo)
{
    for (const bool shows : {false, true})
        EXPECT_EXIT(
            {
                log_settings().file_name = "pelmora-notepad.txt";
                set_show_in_notepad(shows);
                get_log();
                std::exit(0);
            },
            testing::ExitedWithCode(0), shows ? "^notepad .*pelmora-notepad.txt$" : "^$");
}

} // namespace
} // namespace Pelmora::Native
