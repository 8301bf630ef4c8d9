#include "pelmora/gui/dateTime.h"

#include <functional>

#include <gtest/gtest.h>

#include <windows.h>

namespace Pelmora::Native
{
namespace
{

/// The user's own format of a moment, from the system's wide functions.
std::string formatted(const SYSTEMTIME& time, bool isDate, DWORD flags)
{
    wchar_t text[100] = {};
    if (isDate)
        GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, flags, &time, nullptr, text, 100, nullptr);
    else
        GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, flags, &time, nullptr, text, 100);
    char narrow[200] = {};
    WideCharToMultiByte(CP_ACP, 0, text, -1, narrow, sizeof narrow, nullptr, nullptr);
    return narrow;
}

TEST(DateTime, IsWrittenAsTheUserWritesIt)
{
    const struct {
        std::function<std::string()> text;
        bool isDate;
        DWORD flags;
    } rows[] = {
        {[] { return currentDateText(false); }, true, DATE_SHORTDATE},
        {[] { return currentDateText(true); }, true, DATE_LONGDATE},
        {[] { return currentTimeText(false); }, false, TIME_NOSECONDS},
        {[] { return currentTimeText(true); }, false, 0},
    };
    for (const auto& row : rows) {
        // Reads the clock: what is shown is the time before or the time after the call.
        SYSTEMTIME before = {};
        SYSTEMTIME after = {};
        GetLocalTime(&before);
        const std::string text = row.text();
        GetLocalTime(&after);
        EXPECT_TRUE(text == formatted(before, row.isDate, row.flags) ||
                    text == formatted(after, row.isDate, row.flags))
            << text;
        EXPECT_NE(text, "");
    }
}

} // namespace
} // namespace Pelmora::Native
