#pragma once

// What the host must tell about the time.

namespace Pelmora::Native::Platform
{

/// A date and time of day on the user's clock.
struct LocalTime {
    unsigned int year;
    unsigned int month; ///< 1 to 12
    unsigned int day;   ///< 1 to 31
    unsigned int hour;
    unsigned int minute;
    unsigned int second;
    unsigned int millisecond;
};

LocalTime localNow() noexcept;

} // namespace Pelmora::Native::Platform
