#include "pelmora/registry/systemErrorText.h"

#include <memory>

#include <windows.h>

namespace Pelmora::Native
{
namespace
{

struct LocalRelease {
    void operator()(char* text) const { LocalFree(text); }
};

} // namespace

std::string systemErrorText(std::uint32_t code)
{
    char* allocated = nullptr;
    const DWORD length = FormatMessageA(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, code, LANG_USER_DEFAULT,
        reinterpret_cast<char*>(&allocated), // NOLINT: the flag makes it the address of a pointer
        0, nullptr);
    const std::unique_ptr<char, LocalRelease> text(allocated);
    if (length == 0)
        return "Unknown error: " + std::to_string(static_cast<std::int32_t>(code));
    return {text.get(), length};
}

} // namespace Pelmora::Native
