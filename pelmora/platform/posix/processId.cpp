#include "pelmora/platform/processId.h"

#include <unistd.h>

namespace Pelmora::Native::Platform
{

std::uint32_t processId() noexcept
{
    return static_cast<std::uint32_t>(getpid());
}

} // namespace Pelmora::Native::Platform
