#include "pelmora/gui/files.h"

#include "pelmora/log/LogStream.h"

#include <optional>
#include <utility>

#include <windows.h>

namespace Pelmora::Native
{
namespace
{

/// Not a byte of that value within a character of two bytes.
bool endsInSeparator(const std::string& path)
{
    const char last = *CharPrevA(path.c_str(), path.c_str() + path.size());
    return last == '\\' || last == '/';
}

/// The path in the ANSI code page, when that has all of it; a best fit would be another path.
std::optional<std::string> exactly(const GString& path)
{
    std::string narrow = path.to_narrow();
    return GString(narrow) == path ? std::optional(std::move(narrow)) : std::nullopt;
}

} // namespace

bool pathExists(const std::string& path)
{
    if (path.empty())
        return false;
    const std::string name = path.substr(0, path.size() - (endsInSeparator(path) ? 1 : 0));
    WIN32_FIND_DATAA found = {};
    const HANDLE search = FindFirstFileA(name.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return true;
}

bool pathExists(const GString& path)
{
    const auto narrow = exactly(path);
    return narrow && pathExists(*narrow);
}

void removeReadOnly(const std::string& path, bool logSuccess)
{
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0)
        return;
    const DWORD writable = attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY);
    const bool removed = SetFileAttributesA(path.c_str(), writable) != 0;
    // Success without the flag is reported as failure: kept, readers of logs know it.
    get_log() << (removed && logSuccess ? "Removed read-only attribute on "
                                        : "Could not remove read-only attribute on ")
              << path << endl;
}

void removeReadOnly(const GString& path, bool logSuccess)
{
    if (const auto narrow = exactly(path))
        removeReadOnly(*narrow, logSuccess);
}

} // namespace Pelmora::Native
