#include "pelmora/platform/wholeFile.h"

#include "pelmora/platform/systemError.h"

#include <algorithm>
#include <array>

#include <windows.h>

namespace Pelmora::Native::Platform
{
namespace
{

class File
{
public:
    File(const WideString& name, DWORD access, DWORD sharing, DWORD disposition)
        : handle_(CreateFileW(name.c_str(), access, sharing, nullptr, disposition,
                              FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File()
    {
        if (valid())
            CloseHandle(handle_);
    }

    bool valid() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle_; }

private:
    HANDLE handle_;
};

std::error_code lastError()
{
    return {static_cast<int>(GetLastError()), systemErrors()};
}

std::error_code writeAll(HANDLE file, std::string_view bytes)
{
    constexpr std::size_t largestPiece = 1U << 30U;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(bytes.size(), largestPiece));
        if (WriteFile(file, bytes.data(), size, &written, nullptr) == 0)
            return lastError();
        bytes.remove_prefix(written);
    }
    return {};
}

} // namespace

std::error_code readWholeFile(const WideString& name, std::string& bytes)
{
    const File file(name, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    if (!file.valid())
        return lastError();
    bytes.clear();
    std::array<char, 65536> piece;
    for (;;) {
        DWORD read = 0;
        if (ReadFile(file.get(), piece.data(), static_cast<DWORD>(piece.size()), &read, nullptr) ==
            0)
            return lastError();
        if (read == 0)
            return {};
        bytes.append(piece.data(), read);
    }
}

std::error_code deleteFile(const WideString& name)
{
    if (DeleteFileW(name.c_str()) != 0 || GetLastError() == ERROR_FILE_NOT_FOUND)
        return {};
    return lastError();
}

std::error_code writeWholeFile(const WideString& name, std::span<const std::string> pieces)
{
    std::error_code error;
    {
        const File file(name, GENERIC_WRITE, 0, CREATE_ALWAYS);
        if (!file.valid())
            return lastError();
        for (auto piece = pieces.begin(); piece != pieces.end() && !error; ++piece)
            error = writeAll(file.get(), *piece);
    }
    if (error)
        DeleteFileW(name.c_str());
    return error;
}

} // namespace Pelmora::Native::Platform
