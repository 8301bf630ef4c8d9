#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// Internal: little-endian numbers in bytes, at any address.

namespace Pelmora::Native
{

/// Requires: at + sizeof(Number) <= bytes.size().
template <class Number>
Number readNumber(std::span<const std::byte> bytes, std::size_t at)
{
    Number number = 0;
    for (std::size_t i = sizeof(Number); i-- > 0;)
        number = static_cast<Number>(std::uint64_t(number) << 8U |
                                     std::to_integer<std::uint64_t>(bytes[at + i]));
    return number;
}

/// Requires: at + sizeof(Number) <= bytes.size().
template <class Number>
void writeNumber(std::span<std::byte> bytes, std::size_t at, Number number)
{
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes[at + i] = static_cast<std::byte>(std::uint64_t(number) >> 8U * i);
}

} // namespace Pelmora::Native
