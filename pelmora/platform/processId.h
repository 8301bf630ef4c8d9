#pragma once

#include <cstdint>

namespace Pelmora::Native::Platform
{

/// Differs between a process and its forked children.
std::uint32_t processId() noexcept;

} // namespace Pelmora::Native::Platform
