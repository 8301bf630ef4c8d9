#include "pelmora/platform/keepLoaded.h"

#include <dlfcn.h>

namespace Pelmora::Native::Platform
{

void keepLoaded() noexcept
{
    Dl_info here = {};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dladdr's own type for it
    if (dladdr(reinterpret_cast<const void*>(&keepLoaded), &here) == 0)
        return;
    if (void* const library = dlopen(here.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE))
        dlclose(library);
}

} // namespace Pelmora::Native::Platform
