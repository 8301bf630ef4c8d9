#include "tests/faults/refusal.h"

#include <cstdlib>
#include <new>

// The program's own allocator; the system's libraries have others.

using namespace Pelmora::Faults;

void* operator new(std::size_t size)
{
    void* const block = isRefused() ? nullptr : std::malloc(size);
    if (block == nullptr)
        throw std::bad_alloc();
    ++liveBlocks;
    return block;
}

void operator delete(void* block) noexcept
{
    liveBlocks -= block == nullptr ? 0 : 1;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

void Pelmora::Faults::watchCrashes() {}
