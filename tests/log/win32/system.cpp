#include "tests/log/system.h"

#include <cstdlib>

#include <windows.h>

namespace Pelmora
{

void leaveGreenwich()
{
    _putenv("TZ="); // which GetLocalTime does not know either
}

void forkAndEndTheChild() {}

std::string nameOfSystem()
{
    return "Windows ";
}

void* loadLibrary(const char* path)
{
    return LoadLibraryA(path);
}

void* symbolOf(void* library, const char* name)
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void unloadLibrary(void* library)
{
    FreeLibrary(static_cast<HMODULE>(library));
}

} // namespace Pelmora
