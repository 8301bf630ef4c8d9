#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// Opens a text file in Notepad and does not wait; nothing happens where there is no Notepad, or no
/// memory.
void openInNotepad(const std::string& path) noexcept;

} // namespace Pelmora::Native::Platform
