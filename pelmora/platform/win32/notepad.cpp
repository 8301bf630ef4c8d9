#include "pelmora/platform/notepad.h"

#include <windows.h>

namespace Pelmora::Native::Platform
{

void openInNotepad(const std::string& path)
{
    WinExec(("notepad " + path).c_str(), SW_SHOWNORMAL);
}

} // namespace Pelmora::Native::Platform
