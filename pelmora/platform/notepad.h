#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// Opens a text file in Notepad and does not wait; nothing happens where there is no Notepad.
void openInNotepad(const std::string& path);

} // namespace Pelmora::Native::Platform
