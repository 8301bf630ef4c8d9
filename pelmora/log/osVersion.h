#pragma once

#include "pelmora/base/OsVersion.h"
#include "pelmora/export.h"

#include <string>

namespace Pelmora::Native
{

class LogStream;

/// The name of the Windows version that a version record describes, with service pack and build:
/// "Windows XP Service Pack 3 (Build 2600)". On purpose, every major version 6 is "Windows Vista",
/// and later ones have only their numbers.
PELMORA_API std::string osDescription(const OsVersion& version);

/// Writes a line that names the running system: on Windows its description, on Linux system,
/// release and machine as `uname` gives them. Writes nothing if the system does not answer. For the
/// thread that logs.
PELMORA_API void write_os_version(LogStream& log);

} // namespace Pelmora::Native
