#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// The calls that led here, one per line, the latest first; empty where the system does not tell.
std::string stackTrace();

} // namespace Pelmora::Native::Platform
