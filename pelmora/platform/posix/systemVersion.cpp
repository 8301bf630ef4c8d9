#include "pelmora/platform/systemVersion.h"

#include <sys/utsname.h>

namespace Pelmora::Native::Platform
{

SystemVersion systemVersion()
{
    utsname names = {};
    if (uname(&names) != 0)
        return {};
    return std::string(names.sysname) + " " + names.release + " " + names.machine;
}

} // namespace Pelmora::Native::Platform
