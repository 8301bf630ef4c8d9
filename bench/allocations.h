#pragma once

#include <cstddef>

namespace Pelmora::Bench
{

/// How often this thread called malloc and its relatives so far, itself or through operator new.
std::size_t allocationCount() noexcept;

} // namespace Pelmora::Bench
