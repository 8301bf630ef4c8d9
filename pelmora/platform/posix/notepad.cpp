#include "pelmora/platform/notepad.h"

namespace Pelmora::Native::Platform
{

void openInNotepad(const std::string& /*path*/) noexcept {}

} // namespace Pelmora::Native::Platform
