#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// The library's own UTF-8 codec, in the form of RFC 2279 with sequences of up to six bytes.
// Internal to the gettext folder; GString shows it to users.

namespace Pelmora::Native
{

constexpr int utf8Malformed = -1;
constexpr int utf8NoRoom = -2;

/// Decodes the character at the start of `text` into `value` and returns its length in bytes.
/// `utf8Malformed` for a sequence that is not well-formed, `utf8NoRoom` for a well-begun one of
/// more than `available` bytes. Encoded surrogates are accepted. What lies behind the end of `text`
/// counts as NUL and is never read. Requires: `text` is not empty.
int decodeUtf8(std::string_view text, int available, std::uint32_t& value) noexcept;

/// Encodes `value` at the start of `room` and returns the length in bytes. `utf8Malformed` for a
/// value above 0x7FFFFFFF, `utf8NoRoom` when the sequence is longer than `room`.
int encodeUtf8(std::uint32_t value, std::span<char> room) noexcept;

/// How many of the leading bytes of `text` are ASCII.
std::size_t asciiPrefix(std::string_view text) noexcept;

} // namespace Pelmora::Native
