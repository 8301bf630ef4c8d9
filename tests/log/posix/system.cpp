#include "tests/log/system.h"

#include <cstdio>
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

std::string nameOfSystem()
{
    std::FILE* const printed = popen("uname -srm", "r");
    char name[200] = {};
    const std::size_t length = std::fread(name, 1, sizeof name, printed);
    pclose(printed);
    return {name, length - 1}; // without the line's end
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
