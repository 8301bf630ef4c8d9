#include "pelmora/platform/stackTrace.h"

#include <array>
#include <cstdio>

#include <windows.h>

namespace Pelmora::Native::Platform
{
namespace
{

/// Module and offset, which a debugger or addr2line turns into a function.
std::string describe(void* address)
{
    HMODULE module = nullptr;
    std::array<char, MAX_PATH> name = {"?"};
    if (GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           static_cast<const char*>(address), &module) != 0)
        GetModuleFileNameA(module, name.data(), static_cast<DWORD>(name.size()));
    const auto offset = static_cast<char*>(address) - reinterpret_cast<char*>(module);
    std::array<char, MAX_PATH + 24> line = {};
    static_cast<void>(std::snprintf(line.data(), line.size(), "%s+0x%llx\n", name.data(),
                                    static_cast<unsigned long long>(offset)));
    return line.data();
}

} // namespace

std::string stackTrace()
{
    std::array<void*, 62> addresses = {};
    const auto count =
        CaptureStackBackTrace(1, static_cast<DWORD>(addresses.size()), addresses.data(), nullptr);
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += describe(addresses[i]);
    return text;
}

} // namespace Pelmora::Native::Platform
