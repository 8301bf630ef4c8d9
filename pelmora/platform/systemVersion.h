#pragma once

#include "pelmora/base/OsVersion.h"

#include <string>
#include <variant>

// What the host must tell about itself.

namespace Pelmora::Native::Platform
{

/// The version record on Windows, a line of text on other systems, or nothing when the system does
/// not answer.
using SystemVersion = std::variant<std::monostate, OsVersion, std::string>;

SystemVersion systemVersion();

} // namespace Pelmora::Native::Platform
