#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// The user's folder for temporary files, with a separator at its end. On Windows that of the
/// system, or else the environment's TEMP or TMP; on Linux its TMPDIR, TEMP or TMP; "." when there
/// is none of them.
std::string temporaryFolder();

} // namespace Pelmora::Native::Platform
