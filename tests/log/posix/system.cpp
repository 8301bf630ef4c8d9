#include "tests/log/system.h"

#include <cstdlib>

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelmora
{

void leaveGreenwich()
{
    setenv("TZ", "<+07>-7", 1);
}

void forkAndEndTheChild()
{
    if (fork() == 0)
        std::exit(0);
    wait(nullptr);
}

void* loadLibrary(const char* path)
{
    return dlopen(path, RTLD_NOW);
}

void* symbolOf(void* library, const char* name)
{
    return dlsym(library, name);
}

void unloadLibrary(void* library)
{
    dlclose(library);
}

} // namespace Pelmora
