#include "pelmora/platform/threadSlot.h"

#include <pthread.h>

namespace Pelmora::Native::Platform
{
namespace
{

extern "C" void deleteThreadOwned(void* object)
{
    delete static_cast<ThreadOwned*>(object);
}

} // namespace

ThreadSlot::ThreadSlot() noexcept
{
    pthread_key_t key = 0;
    if (pthread_key_create(&key, deleteThreadOwned) == 0)
        index_ = key;
}

ThreadSlot::~ThreadSlot()
{
    delete get();
    if (const std::uint32_t key = index_.exchange(none); key != none)
        pthread_key_delete(key);
}

ThreadOwned* ThreadSlot::get() const noexcept
{
    const std::uint32_t key = index_;
    return key == none ? nullptr : static_cast<ThreadOwned*>(pthread_getspecific(key));
}

bool ThreadSlot::set(ThreadOwned* object) noexcept
{
    const std::uint32_t key = index_;
    return key != none && pthread_setspecific(key, object) == 0;
}

} // namespace Pelmora::Native::Platform
