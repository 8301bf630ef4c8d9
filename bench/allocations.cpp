#include "bench/allocations.h"

#include <cstddef>

// Replaces glibc's functions for the whole process, which it allows; operator new comes here, too.

namespace
{

thread_local constinit std::size_t allocations = 0;

} // namespace

std::size_t Pelmora::Bench::allocationCount() noexcept
{
    return allocations;
}

extern "C" {

void* __libc_malloc(std::size_t size);                    // NOLINT: glibc's names
void* __libc_calloc(std::size_t count, std::size_t size); // NOLINT
void* __libc_realloc(void* memory, std::size_t size);     // NOLINT

void* malloc(std::size_t size) noexcept
{
    ++allocations;
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) noexcept
{
    ++allocations;
    return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size) noexcept
{
    ++allocations;
    return __libc_realloc(memory, size);
}

} // extern "C"
