#pragma once

#include <atomic>
#include <cstdint>

// What the host must provide to keep an object for each thread. The compilers' own thread_local
// ends the program when there is no memory for it.

namespace Pelmora::Native::Platform
{

/// What a thread has for itself; deleted when the thread ends.
class ThreadOwned
{
public:
    ThreadOwned() = default;
    ThreadOwned(const ThreadOwned&) = delete;
    ThreadOwned& operator=(const ThreadOwned&) = delete;
    virtual ~ThreadOwned() = default;
};

/// One place for such an object in each thread. Once it is destroyed, or where the host has no
/// place left, all threads find nothing in it. Where the library is unloaded before the threads
/// end, Linux keeps the objects of the other ones.
class ThreadSlot
{
public:
    ThreadSlot() noexcept;
    ThreadSlot(const ThreadSlot&) = delete;
    ThreadSlot& operator=(const ThreadSlot&) = delete;
    ~ThreadSlot();

    /// Null when the calling thread has none.
    ThreadOwned* get() const noexcept;

    /// Takes the object, which was made by `new`, unless it gives false: the host had no memory.
    /// Requires: get() is null.
    bool set(ThreadOwned* object) noexcept;

private:
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    std::atomic<std::uint32_t> index_ = none;
};

} // namespace Pelmora::Native::Platform
