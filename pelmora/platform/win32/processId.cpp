#include "pelmora/platform/processId.h"

#include <windows.h>

namespace Pelmora::Native::Platform
{

std::uint32_t processId() noexcept
{
    return GetCurrentProcessId();
}

} // namespace Pelmora::Native::Platform
