#pragma once

#include <cstdint>
#include <string>

namespace Pelmora::Native
{

/// What Windows reports about its version.
struct OsVersion {
    std::uint32_t platform;  ///< 0 Win32s, 1 Windows 9x, 2 Windows NT
    std::uint32_t major;     ///< 6 in 6.1
    std::uint32_t minor;     ///< 1 in 6.1
    std::uint32_t build;     ///< such as 7601
    std::string servicePack; ///< such as "Service Pack 1", or empty
};

} // namespace Pelmora::Native
