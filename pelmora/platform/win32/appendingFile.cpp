#include "pelmora/platform/appendingFile.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace Pelmora::Native::Platform
{

std::FILE* openForAppending(const std::string& path, bool truncate)
{
    if (truncate) {
        std::FILE* const emptied = std::fopen(path.c_str(), "w");
        if (emptied == nullptr)
            return nullptr;
        static_cast<void>(std::fclose(emptied));
    }
    // The system moves to the end itself when the handle may append and do nothing else. The C
    // runtime's "a" seeks before it writes, and another program may write in between.
    HANDLE const handle = CreateFileA(path.c_str(), FILE_GENERIC_WRITE & ~FILE_WRITE_DATA,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return nullptr;
    const int descriptor =
        _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_APPEND | _O_TEXT | _O_NOINHERIT);
    if (descriptor < 0) {
        CloseHandle(handle);
        return nullptr;
    }
    std::FILE* const file = _fdopen(descriptor, "a");
    if (file == nullptr)
        _close(descriptor);
    return file;
}

void append(std::FILE* file, std::string_view bytes) noexcept
{
    static_cast<void>(std::fwrite(bytes.data(), 1, bytes.size(), file));
    static_cast<void>(std::fflush(file));
}

} // namespace Pelmora::Native::Platform
