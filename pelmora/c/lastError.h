#pragma once

#include "pelmora/c/pelmora.h"

#include <atomic>
#include <string_view>

// The message of each thread's last failure. Internal to the c folder.

namespace Pelmora::C
{

/// Keeps the message for the calling thread and gives `status`. It needs no memory but the block
/// that a thread gets with its first failure; without memory for it, a message that says so
/// stands for the thread that failed last.
pelmora_status fail(pelmora_status status, std::string_view message) noexcept;

/// The same for the exception that is being handled.
pelmora_status failByException() noexcept;

/// How many threads have a message. While it is 0, a success costs no look at the thread's own.
extern std::atomic<int> threadsWithMessage;

void dropMessage() noexcept;

inline pelmora_status succeed() noexcept
{
    if (threadsWithMessage.load(std::memory_order_relaxed) != 0) [[unlikely]]
        dropMessage();
    return PELMORA_OK;
}

/// A pointer that may not be null is: thrown by what checks it.
struct NullArgument {
    const char* parameter;
};

/// What a function ends with that cannot give its result.
struct Failure {
    pelmora_status status;
    const char* message;
};

} // namespace Pelmora::C
