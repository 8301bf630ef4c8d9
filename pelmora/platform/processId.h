#pragma once

#include <cstdint>

namespace Pelmora::Native::Platform
{

/// The number of this process, which a forked child does not share.
std::uint32_t processId() noexcept;

} // namespace Pelmora::Native::Platform
