#include "tests/faults/refusal.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <string_view>

#include <dlfcn.h>
#include <execinfo.h>
#include <unistd.h>

// The process's allocator, also that of the system's libraries. The C library's own does the work.
// Nothing here asks for aligned blocks.

using namespace Pelmora::Faults;

extern "C" {
void* __libc_malloc(std::size_t size);                    // NOLINT
void* __libc_calloc(std::size_t count, std::size_t size); // NOLINT
void* __libc_realloc(void* block, std::size_t size);      // NOLINT
void __libc_free(void* block);                            // NOLINT

static void* counted(void* block, long blocks = 1)
{
    if (block == nullptr)
        errno = ENOMEM;
    else
        liveBlocks += blocks;
    return block;
}

void* malloc(std::size_t size) noexcept
{
    return counted(isRefused() ? nullptr : __libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size) noexcept
{
    return counted(isRefused() ? nullptr : __libc_calloc(count, size));
}

void* realloc(void* block, std::size_t size) noexcept
{
    return counted(isRefused() ? nullptr : __libc_realloc(block, size), block == nullptr ? 1 : 0);
}

void free(void* block) noexcept
{
    liveBlocks -= block == nullptr ? 0 : 1;
    __libc_free(block);
}
}

/// Names the innermost module behind the C library and the allocator.
static void nameModule(int signal)
{
    allocationsLeft = 0;
    std::array<void*, 64> frames;
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    bool isBehind = false;
    for (int i = 0; i < count; ++i) {
        Dl_info info = {};
        dladdr(frames[static_cast<std::size_t>(i)], &info);
        const std::string_view file = info.dli_fname == nullptr ? "" : info.dli_fname;
        const bool isSystem =
            file.find("/libc.so") != file.npos ||
            (info.dli_sname != nullptr && info.dli_sname == std::string_view("free"));
        if (isBehind && !isSystem) {
            std::printf(" in %s", file.substr(file.rfind('/') + 1).data());
            break;
        }
        isBehind = isBehind || isSystem;
    }
    std::fflush(stdout);
    _exit(128 + signal);
}

void Pelmora::Faults::watchCrashes()
{
    std::array<void*, 1> frame;
    backtrace(frame.data(), 1); // loads what it needs
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGABRT, SIGALRM})
        std::signal(signal, nameModule);
    constexpr unsigned int longest = 300;
    alarm(longest);
}
