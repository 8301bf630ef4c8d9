#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// The library's one UTF-8 codec, in the form of RFC 2279: sequences have up to six bytes, and
// surrogates are encoded like any other value. Internal to the library.

namespace Pelmora::Native
{

struct Utf8Character {
    std::uint32_t value;
    std::size_t length; ///< of its sequence, in bytes
};

/// The character at the start of `text`. Nothing if its sequence is malformed, cut short or longer
/// than `longest` bytes. Requires: `text` is not empty.
std::optional<Utf8Character> decodeUtf8(std::string_view text, std::size_t longest) noexcept;

struct Utf8Sequence {
    std::array<char, 6> bytes;
    std::uint8_t length;

    std::string_view view() const noexcept { return {bytes.data(), length}; }
};

/// Requires: value <= 0x7FFFFFFF.
Utf8Sequence encodeUtf8(std::uint32_t value) noexcept;

/// How many of the leading bytes of `text` are ASCII.
std::size_t asciiPrefix(std::string_view text) noexcept;

} // namespace Pelmora::Native
