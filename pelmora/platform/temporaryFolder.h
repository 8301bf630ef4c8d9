#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// The user's folder for temporary files, with a separator at its end. Windows names it; if
/// it does not, the environment's TEMP or TMP, or the current folder serves. On Linux it is the
/// environment's TMPDIR, TEMP or TMP, or /tmp.
std::string temporaryFolder();

} // namespace Pelmora::Native::Platform
