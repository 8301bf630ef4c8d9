#include "pelmora/platform/systemVersion.h"

#include <windows.h>

namespace Pelmora::Native::Platform
{

SystemVersion systemVersion()
{
    OSVERSIONINFOEXA record = {};
    auto* const plainRecord = reinterpret_cast<OSVERSIONINFOA*>(&record);
    record.dwOSVersionInfoSize = sizeof(OSVERSIONINFOEXA);
    if (GetVersionExA(plainRecord) == 0) {
        record.dwOSVersionInfoSize = sizeof(OSVERSIONINFOA);
        if (GetVersionExA(plainRecord) == 0)
            return {};
    }
    const std::string servicePack(record.szCSDVersion,
                                  strnlen(record.szCSDVersion, sizeof record.szCSDVersion));
    return OsVersion{record.dwPlatformId, record.dwMajorVersion, record.dwMinorVersion,
                     record.dwBuildNumber, servicePack};
}

} // namespace Pelmora::Native::Platform
