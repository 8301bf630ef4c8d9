#pragma once

#include <cstddef>

/// How often operator new was called so far in this program.
std::size_t allocationCount();
