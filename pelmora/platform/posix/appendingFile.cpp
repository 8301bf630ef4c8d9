#include "pelmora/platform/appendingFile.h"

#include <new>

#include <fcntl.h>
#include <unistd.h>

namespace Pelmora::Native::Platform
{

std::FILE* openForAppending(const std::string& path, bool truncate)
{
    constexpr mode_t readAndWriteAsTheUserAllows = 0666;
    const int descriptor =
        open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | (truncate ? O_TRUNC : 0),
             readAndWriteAsTheUserAllows);
    if (descriptor < 0)
        return nullptr;
    std::FILE* const file = fdopen(descriptor, "a");
    if (file == nullptr) { // only for want of memory
        close(descriptor);
        throw std::bad_alloc();
    }
    return file;
}

} // namespace Pelmora::Native::Platform
