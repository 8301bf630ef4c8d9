#pragma once

#include "pelmora/base/OsVersion.h"
#include "pelmora/export.h"

#include <string>

namespace Pelmora::Native
{

class LogStream;

/// The name of the Windows version that a version record describes, with service pack and build:
/// "Windows XP Service Pack 3 (Build 2600)". The names are fixed: every major version 6 is "Windows
/// Vista", and later ones have only their numbers.
PELMORA_API std::string osDescription(const OsVersion& version);

/// Writes a line that names the running system: its description on Windows; on Linux what `uname`
/// gives, system, release and machine. Writes nothing when the system gives no answer.
/// For the thread that logs.
PELMORA_API void write_os_version(LogStream& log);

} // namespace Pelmora::Native
