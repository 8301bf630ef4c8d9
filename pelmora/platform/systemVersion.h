#pragma once

#include "pelmora/base/OsVersion.h"

#include <string>
#include <variant>

// What the host must tell about itself.

namespace Pelmora::Native::Platform
{

/// The record where the system has one, a line of text where it has not, nothing when it does not
/// answer.
using SystemVersion = std::variant<std::monostate, OsVersion, std::string>;

SystemVersion systemVersion();

} // namespace Pelmora::Native::Platform
