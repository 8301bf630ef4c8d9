#include "pelmora/c/pelmora.h"

#include "tests/TemporaryFolder.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>

// The C library's allocator, which also serves the C interface's own C++ runtime.
extern "C" void* __libc_malloc(std::size_t size); // NOLINT

namespace
{

std::size_t allocations = 0;
bool isRefused = false;

} // namespace

extern "C" void* malloc(std::size_t size) noexcept
{
    ++allocations;
    return isRefused ? nullptr : __libc_malloc(size);
}

namespace
{

/// The first test, because what unwinds threads may be prepared by an exception before.
TEST(CInterface, LetsACancelledThreadGo)
{
    static std::atomic<bool> isWaiting;
    const pelmora_translator wait = [](const char*, pelmora_char16*, std::size_t, void*) {
        isWaiting = true;
        pause();
        return std::size_t(0);
    };
    const auto ask = [](void* logs) -> void* { // the log's header asks for its labels
        logs ? pelmora_log_line("lost") : pelmora_translate("Dose", nullptr, 0, nullptr);
        return nullptr;
    };
    pelmora_log_configure("pelmora-cancelled.txt", nullptr, 0);
    for (void* const logs : {static_cast<void*>(nullptr), static_cast<void*>(&isWaiting)}) {
        ASSERT_EQ(PELMORA_OK, pelmora_language_set_translator(wait, nullptr));
        isWaiting = false;
        pthread_t thread = 0;
        ASSERT_EQ(0, pthread_create(&thread, nullptr, ask, logs));
        while (!isWaiting)
            std::this_thread::yield();
        void* result = nullptr;
        EXPECT_EQ(0, pthread_cancel(thread));
        EXPECT_EQ(0, pthread_join(thread, &result));
        EXPECT_EQ(PTHREAD_CANCELED, result);
        ASSERT_EQ(PELMORA_OK, pelmora_language_set_translator(nullptr, nullptr));
    }
    pelmora_log_line("next");
    std::array<char, 200> path;
    ASSERT_EQ(PELMORA_OK, pelmora_log_path(path.data(), path.size(), nullptr));
    EXPECT_EQ("next\n", Pelmora::TemporaryFolder::read(path.data()));
    std::remove(path.data());
}

constexpr pelmora_element mgPerHr[] = {{PELMORA_MILLI, PELMORA_UNIT_G, 1},
                                       {PELMORA_NO_PREFIX, PELMORA_UNIT_HR, -1}};
constexpr pelmora_element gPerMin[] = {{PELMORA_NO_PREFIX, PELMORA_UNIT_G, 1},
                                       {PELMORA_NO_PREFIX, PELMORA_UNIT_MIN, -1}};

/// False under valgrind, which has an allocator of its own.
bool isOurAllocator()
{
    const std::size_t before = allocations;
    std::free(std::malloc(1));
    return allocations > before;
}

TEST(CInterface, CalculatesWithoutAllocating)
{
    if (!isOurAllocator())
        GTEST_SKIP();
    std::array<pelmora_char16, 80> text;
    std::array<pelmora_element, 8> unit;
    std::array<char, 40> narrow;
    std::size_t length = 0;
    double number = 0;
    int compatible = 0;
    const std::size_t before = allocations;
    pelmora_status failed = PELMORA_OK;
    failed |= pelmora_value_convert(5, mgPerHr, 2, gPerMin, 2, &number);
    failed |= pelmora_unit_compatible(mgPerHr, 2, gPerMin, 2, &compatible);
    failed |= pelmora_unit_text(mgPerHr, 2, text.data(), text.size(), &length);
    failed |= pelmora_value_text(1234567.5, mgPerHr, 2, 12, text.data(), text.size(), &length);
    failed |= pelmora_value_normalized_text(5e-7, mgPerHr, 2, 3, text.data(), text.size(), &length);
    failed |= pelmora_format_significant(1234567.5, 30, narrow.data(), narrow.size(), &length);
    failed |= pelmora_element_text(mgPerHr, 0, text.data(), text.size(), &length);
    failed |=
        pelmora_value_mul(5, mgPerHr, 2, 6, gPerMin, 2, &number, unit.data(), unit.size(), &length);
    EXPECT_EQ(0U, allocations - before);
    EXPECT_EQ(PELMORA_OK, failed);
}

TEST(CInterface, SaysThatMemoryRanOutWithoutMemory)
{
    if (!isOurAllocator())
        GTEST_SKIP();
    const std::string text(100, '<');
    std::array<char, 1000> buffer;
    const std::jthread other([&] { // has no place for messages yet
        isRefused = true;
        const pelmora_status status =
            pelmora_escape_narrow(text.data(), text.size(), buffer.data(), buffer.size(), nullptr);
        isRefused = false;
        EXPECT_EQ(PELMORA_OUT_OF_MEMORY, status);
        EXPECT_STREQ("out of memory, also for a message", pelmora_last_error());
        EXPECT_EQ(PELMORA_OK, pelmora_log_show_in_notepad(0));
        EXPECT_STREQ("", pelmora_last_error());
    });
}

} // namespace
