#include "pelmora/platform/temporaryFolder.h"

#include "pelmora/platform/environment.h"

#include <array>

#include <windows.h>

namespace Pelmora::Native::Platform
{

std::string temporaryFolder()
{
    std::array<char, 260> buffer = {};
    const DWORD length = GetTempPathA(static_cast<DWORD>(buffer.size()), buffer.data());
    if (length > 0 && length < buffer.size())
        return {buffer.data(), length};
    return firstOfEnvironment({"TEMP", "TMP"}, ".") + "\\";
}

} // namespace Pelmora::Native::Platform
