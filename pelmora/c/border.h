#pragma once

#include "pelmora/c/lastError.h"
#include "pelmora/gettext/gstringUtil.h"
#include "pelmora/platform/forcedUnwind.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

// What the functions of the C interface are made of. Internal to the c folder.

namespace Pelmora::C
{

template <class T>
T& required(T* pointer, const char* parameter)
{
    if (pointer == nullptr) [[unlikely]]
        throw NullArgument{parameter};
    return *pointer;
}

/// `count` elements, which may be at null where there are none.
template <class T>
std::span<T> required(T* first, std::size_t count, const char* parameter)
{
    if (first == nullptr && count > 0) [[unlikely]]
        throw NullArgument{parameter};
    return {first, count};
}

/// A text with its length, or one that ends in a NUL.
template <class Char>
std::basic_string_view<Char> requiredText(const Char* first, std::size_t length,
                                          const char* parameter)
{
    if (length == PELMORA_NUL_TERMINATED)
        return &required(first, parameter);
    required(first, length, parameter);
    return {first, length};
}

template <class Char>
std::basic_string_view<Char> requiredText(const Char* first, const char* parameter)
{
    return requiredText(first, PELMORA_NUL_TERMINATED, parameter);
}

/// A result of fixed size in the caller's memory; one that nobody need want has no name.
template <class T>
class Result
{
public:
    Result(T* place, const char* parameter) : place_(place), parameter_(parameter) {}

    void check() const
    {
        if (parameter_ != nullptr)
            required(place_, parameter_);
    }
    void clear() const
    {
        if (place_ != nullptr)
            // NOLINTNEXTLINE(bugprone-sizeof-expression): for a handle, the pointer is meant
            *place_ = std::bit_cast<T>(std::array<std::byte, sizeof(T)>());
    }

private:
    T* place_;
    const char* parameter_;
};

constexpr const char* optional = nullptr;

/// A result of variable length in the caller's buffer, where a text ends in a NUL.
template <class T, bool isText>
class BufferResult
{
public:
    BufferResult(T* first, std::size_t capacity, std::size_t* length)
        : first_(first), capacity_(capacity), length_(length)
    {
    }

    void check() const { required(first_, capacity_, "buffer"); }
    void clear() const
    {
        if (first_ != nullptr && capacity_ > 0)
            end(first_);
        if (length_ != nullptr)
            *length_ = missing_;
    }

    pelmora_status put(std::span<const T> elements)
    {
        const std::size_t room = elements.size() + (isText ? 1 : 0);
        if (room > capacity_ && capacity_ > 0) {
            missing_ = elements.size();
            return fail(PELMORA_BUFFER_TOO_SMALL, "'buffer' is too small for the result");
        }
        if (capacity_ > 0)
            end(std::copy_n(elements.data(), elements.size(), first_));
        if (length_ != nullptr)
            *length_ = elements.size();
        return PELMORA_OK;
    }

private:
    static void end(T* place)
    {
        if constexpr (isText)
            *place = T{};
    }

    T* first_;
    std::size_t capacity_;
    std::size_t* length_;
    std::size_t missing_ = 0;
};

template <class Char>
using TextResult = BufferResult<Char, true>;
using BytesResult = BufferResult<std::byte, false>;

/// Calls `work`, which gives a status, once the results are known to have a place, and clears them
/// when it fails. No exception gets through but that of a cancelled thread.
template <class Work, class... Results>
pelmora_status guarded(const Work& work, const Results&... results)
{
    pelmora_status status = PELMORA_FAILED;
    try {
        (results.check(), ...);
        status = work();
    } catch (const Native::Platform::ForcedUnwind&) {
        throw;
    } catch (...) {
        status = failByException();
    }
    if (status == PELMORA_OK) [[likely]]
        return succeed();
    (results.clear(), ...);
    return status;
}

/// What `work` gives as the one result, a truth value as 0 or 1.
template <class T, class Work>
pelmora_status give(T* place, const char* parameter, const Work& work)
{
    return guarded(
        [&] {
            *place = static_cast<T>(work());
            return PELMORA_OK;
        },
        Result(place, parameter));
}

/// The text that `work` gives as the one result.
template <class Char, class Work>
// NOLINTNEXTLINE(readability-non-const-parameter): the result writes it
pelmora_status giveText(Char* buffer, std::size_t capacity, std::size_t* length, const Work& work)
{
    TextResult<Char> result(buffer, capacity, length);
    return guarded(
        [&] {
            const auto whole = work();
            return result.put(std::basic_string_view<Char>(whole));
        },
        result);
}

/// The handle that `work` makes as the one result.
template <class Handle, class Work>
pelmora_status giveHandle(Handle** place, const char* parameter, const Work& work)
{
    return give(place, parameter, [&] { return work().release(); });
}

} // namespace Pelmora::C
