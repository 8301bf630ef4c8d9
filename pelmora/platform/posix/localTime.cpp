#include "pelmora/platform/localTime.h"

#include <ctime>

namespace Pelmora::Native::Platform
{

LocalTime localNow() noexcept
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    tm local = {};
    localtime_r(&now.tv_sec, &local);
    const auto number = [](int value) { return static_cast<unsigned int>(value); };
    return {number(local.tm_year + 1900),
            number(local.tm_mon + 1),
            number(local.tm_mday),
            number(local.tm_hour),
            number(local.tm_min),
            number(local.tm_sec),
            static_cast<unsigned int>(now.tv_nsec / 1000000)};
}

} // namespace Pelmora::Native::Platform
