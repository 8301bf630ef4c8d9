#include "pelmora/platform/localTime.h"

#include <windows.h>

namespace Pelmora::Native::Platform
{

LocalTime localNow() noexcept
{
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    return {now.wYear,   now.wMonth,  now.wDay,         now.wHour,
            now.wMinute, now.wSecond, now.wMilliseconds};
}

} // namespace Pelmora::Native::Platform
