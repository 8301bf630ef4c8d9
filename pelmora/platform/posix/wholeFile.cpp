#include "pelmora/platform/wholeFile.h"

#include "pelmora/platform/posix/utf16.h"
#include "pelmora/platform/systemError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>

#include <unistd.h>

namespace Pelmora::Native::Platform
{
namespace
{

struct Closer {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, Closer>;

std::error_code lastError()
{
    if (errno == ENOMEM)
        throw std::bad_alloc();
    return {errno, systemErrors()};
}

} // namespace

std::error_code readWholeFile(const WideString& name, std::string& bytes)
{
    const File file(std::fopen(toUtf8(name).c_str(), "rb"));
    if (file == nullptr)
        return lastError();
    bytes.clear();
    std::array<char, 65536> piece;
    while (const std::size_t read = std::fread(piece.data(), 1, piece.size(), file.get()))
        bytes.append(piece.data(), read);
    return std::ferror(file.get()) != 0 ? lastError() : std::error_code();
}

std::error_code deleteFile(const WideString& name)
{
    if (unlink(toUtf8(name).c_str()) == 0 || errno == ENOENT)
        return {};
    return lastError();
}

std::error_code writeWholeFile(const WideString& name, std::span<const std::string> pieces)
{
    const std::string path = toUtf8(name);
    File file(std::fopen(path.c_str(), "wb"));
    if (file == nullptr)
        return lastError();
    const bool written = std::all_of(pieces.begin(), pieces.end(), [&](const std::string& piece) {
        return std::fwrite(piece.data(), 1, piece.size(), file.get()) == piece.size();
    });
    // The last bytes leave the buffer only here.
    if (std::fclose(file.release()) == 0 && written)
        return {};
    const int error = errno;
    unlink(path.c_str());
    errno = error;
    return lastError();
}

} // namespace Pelmora::Native::Platform
