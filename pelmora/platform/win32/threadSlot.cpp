#include "pelmora/platform/threadSlot.h"

#include <windows.h>

namespace Pelmora::Native::Platform
{
namespace
{

void WINAPI deleteThreadOwned(void* object)
{
    delete static_cast<ThreadOwned*>(object);
}

} // namespace

ThreadSlot::ThreadSlot() noexcept : index_(FlsAlloc(deleteThreadOwned))
{
    static_assert(none == FLS_OUT_OF_INDEXES);
}

ThreadSlot::~ThreadSlot()
{
    if (const std::uint32_t index = index_.exchange(none); index != none)
        FlsFree(index); // deletes the objects of all threads
}

ThreadOwned* ThreadSlot::get() const noexcept
{
    const std::uint32_t index = index_;
    return index == none ? nullptr : static_cast<ThreadOwned*>(FlsGetValue(index));
}

bool ThreadSlot::set(ThreadOwned* object) noexcept
{
    const std::uint32_t index = index_;
    return index != none && FlsSetValue(index, object) != 0;
}

} // namespace Pelmora::Native::Platform
