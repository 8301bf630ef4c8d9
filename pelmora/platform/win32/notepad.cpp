#include "pelmora/platform/notepad.h"

#include <new>

#include <windows.h>

namespace Pelmora::Native::Platform
{

void openInNotepad(const std::string& path) noexcept
{
    try {
        WinExec(("notepad " + path).c_str(), SW_SHOWNORMAL);
    } catch (const std::bad_alloc&) {
    }
}

} // namespace Pelmora::Native::Platform
