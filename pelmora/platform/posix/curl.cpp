#include "pelmora/platform/posix/curl.h"

#include <stdexcept>

#include <dlfcn.h>

namespace Pelmora::Native::Platform
{
namespace
{

// The name of all versions that have the functions, and their binary interface.
constexpr const char* libraryName = "libcurl.so.4";

[[noreturn]] void fail()
{
    throw std::runtime_error("libcurl cannot be used; install it");
}

template <class Function>
void find(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(dlsym(library, name)); // NOLINT: its own type for it
    if (function == nullptr)
        fail();
}

Curl loadCurl()
{
    void* const library = dlopen(libraryName, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        fail();
    Curl loaded = {};
    find(library, "curl_global_init", loaded.globalInit);
    find(library, "curl_easy_init", loaded.init);
    find(library, "curl_easy_cleanup", loaded.cleanup);
    find(library, "curl_easy_setopt", loaded.setopt);
    find(library, "curl_easy_perform", loaded.perform);
    find(library, "curl_easy_getinfo", loaded.getinfo);
    find(library, "curl_easy_header", loaded.header);
    if (loaded.globalInit(CURL_GLOBAL_DEFAULT) != CURLE_OK)
        fail();
    return loaded;
}

} // namespace

const Curl& curl()
{
    static const Curl loaded = loadCurl();
    return loaded;
}

} // namespace Pelmora::Native::Platform
