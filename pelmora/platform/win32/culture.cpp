#include "pelmora/platform/culture.h"

#include <windows.h>

namespace Pelmora::Native::Platform
{

std::string cultureName()
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
    const int length = GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
    std::string narrow; // the names are ASCII
    for (int i = 0; i + 1 < length; ++i)
        narrow += static_cast<char>(name[i]);
    return narrow;
}

} // namespace Pelmora::Native::Platform
