#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// Opens a text file in Notepad and does not wait; does nothing on a system without Notepad, or
/// without memory.
void openInNotepad(const std::string& path) noexcept;

} // namespace Pelmora::Native::Platform
