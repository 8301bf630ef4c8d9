#include "pelmora/gui/files.h"

#include "pelmora/log/LogStream.h"

#include <memory>
#include <string>

#include <windows.h>

namespace Pelmora::Native
{
namespace
{

/// The second byte of a two-byte character does not count, though it may equal a separator.
bool endsInSeparator(const std::string& path)
{
    const char last = *CharPrevA(path.c_str(), path.c_str() + path.size());
    return last == '\\' || last == '/';
}

struct SearchClose {
    void operator()(HANDLE search) const { FindClose(search); }
};

} // namespace

bool pathExists(const AnsiText& path)
{
    const std::string& text = path.narrow();
    if (text.empty() || !path.isExact())
        return false;
    const std::string name = text.substr(0, text.size() - (endsInSeparator(text) ? 1 : 0));
    WIN32_FIND_DATAA found = {};
    const HANDLE search = FindFirstFileA(name.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    const std::unique_ptr<void, SearchClose> closing(search);
    return true;
}

void removeReadOnly(const AnsiText& path, bool logSuccess)
{
    const DWORD attributes =
        path.isExact() ? GetFileAttributesA(path.c_str()) : INVALID_FILE_ATTRIBUTES;
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0)
        return;
    const DWORD writable = attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY);
    const bool removed = SetFileAttributesA(path.c_str(), writable) != 0;
    // Success without the flag is reported as failure, on purpose.
    get_log() << (removed && logSuccess ? "Removed read-only attribute on "
                                        : "Could not remove read-only attribute on ")
              << path.narrow() << endl;
}

} // namespace Pelmora::Native
