#pragma once

#include "pelmora/base/wideChar.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
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

/// What a surrogate pair is in UTF-8.
enum class Utf8Form {
    units,      ///< two sequences of three bytes; one of four bytes is malformed
    characters, ///< one sequence of four bytes, as RFC 3629 says; encoded surrogates are malformed
};

/// The UTF-16 of a whole text; nothing if it is malformed.
std::optional<WideString> decodedUtf8(std::string_view utf8, Utf8Form form);

/// The UTF-8 of a whole text. A surrogate that is not part of a pair becomes three bytes in both
/// forms.
std::string encodedUtf8(WideView text, Utf8Form form);

bool isAscii(std::string_view text) noexcept;
bool isAscii(WideView text) noexcept;

} // namespace Pelmora::Native
