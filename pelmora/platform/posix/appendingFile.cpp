#include "pelmora/platform/appendingFile.h"

#include <cerrno>
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
    // Nothing that others write to the stream waits while `append` goes past it.
    static_cast<void>(std::setvbuf(file, nullptr, _IONBF, 0));
    return file;
}

void append(std::FILE* file, std::string_view bytes) noexcept
{
    const int descriptor = fileno(file);
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

} // namespace Pelmora::Native::Platform
