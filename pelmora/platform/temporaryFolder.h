#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// The user's folder for temporary files, with a separator at its end. On Windows that of the
/// system, or else the environment's TEMP or TMP, or the current folder; on Linux the environment's
/// TMPDIR, TEMP or TMP, or /tmp.
std::string temporaryFolder();

} // namespace Pelmora::Native::Platform
