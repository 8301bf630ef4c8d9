#include "pelmora/platform/keepLoaded.h"

#include <windows.h>

namespace Pelmora::Native::Platform
{

void keepLoaded() noexcept
{
    HMODULE unused = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<const wchar_t*>(&keepLoaded), // NOLINT: its own type for it
                       &unused);
}

namespace
{

/// What the linker's option "nodelete" does on Linux.
[[maybe_unused]] const bool keptFromTheStart = (keepLoaded(), true);

} // namespace

} // namespace Pelmora::Native::Platform
