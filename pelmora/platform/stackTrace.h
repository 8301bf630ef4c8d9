#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// The calls that lead to this one, the latest first, one a line; empty where it cannot be had.
std::string stackTrace();

} // namespace Pelmora::Native::Platform
