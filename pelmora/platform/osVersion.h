#pragma once

#include <cstdint>
#include <string>
#include <variant>

// What the host must tell about itself.

namespace Pelmora::Native::Platform
{

/// The version record of Windows.
struct OsVersion {
    std::uint32_t platform; ///< 0 Win32s, 1 Windows 9x, 2 Windows NT
    std::uint32_t major;
    std::uint32_t minor;
    std::uint32_t build;
    std::string servicePack; ///< "Service Pack 1"
};

/// The record where the system has one, a line of text where it has not, nothing when it does not
/// answer.
using SystemVersion = std::variant<std::monostate, OsVersion, std::string>;

SystemVersion systemVersion();

} // namespace Pelmora::Native::Platform
