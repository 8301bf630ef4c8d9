#include "pelmora/gui/dateTime.h"

#include <array>

#include <windows.h>

namespace Pelmora::Native
{
namespace
{

/// GetDateFormatA or GetTimeFormatA.
using Format = int(WINAPI*)(LCID, DWORD, const SYSTEMTIME*, const char*, char*, int);

template <std::size_t room>
std::string now(Format format, DWORD flags)
{
    SYSTEMTIME local = {};
    GetLocalTime(&local);
    std::array<char, room> text = {};
    if (format(LOCALE_USER_DEFAULT, flags, &local, nullptr, text.data(), room) == 0)
        return {};
    return text.data();
}

} // namespace

std::string currentDateText(bool longFormat)
{
    return now<80>(GetDateFormatA, longFormat ? DATE_LONGDATE : DATE_SHORTDATE);
}

std::string currentTimeText(bool withSeconds)
{
    return now<40>(GetTimeFormatA, withSeconds ? 0 : TIME_NOSECONDS);
}

} // namespace Pelmora::Native
