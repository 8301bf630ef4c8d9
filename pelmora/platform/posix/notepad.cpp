#include "pelmora/platform/notepad.h"

namespace Pelmora::Native::Platform
{

void openInNotepad(const std::string& /*path*/) {}

} // namespace Pelmora::Native::Platform
