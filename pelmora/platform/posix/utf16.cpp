#include "pelmora/platform/posix/utf16.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace Pelmora::Native::Platform
{
namespace
{

constexpr std::size_t pieceSize = 512; // units that are converted on the stack
constexpr std::size_t mostBytesOfUnit = 3;

/// Text is mostly ASCII, and compilers make wide instructions of loops of a fixed length.
constexpr std::size_t blockSize = 16;

/// Copies the blocks of ASCII at the start of `from`, and returns how much that was.
template <class From, class To>
std::size_t copyAsciiBlocks(std::basic_string_view<From> from, To* to)
{
    std::size_t done = 0;
    for (; from.size() - done >= blockSize; done += blockSize) {
        const From* const block = from.data() + done;
        std::uint16_t bits = 0;
        for (std::size_t i = 0; i < blockSize; ++i)
            bits |= static_cast<std::make_unsigned_t<From>>(block[i]);
        if (bits >= 0x80)
            break;
        for (std::size_t i = 0; i < blockSize; ++i)
            to[done + i] = static_cast<To>(block[i]);
    }
    return done;
}

bool isPair(WideChar first, WideChar second)
{
    return (first & 0xFC00U) == 0xD800U && (second & 0xFC00U) == 0xDC00U;
}

char* putUtf8(std::uint32_t character, char* out)
{
    const auto put = [&out](std::uint32_t byte) { *out++ = static_cast<char>(byte); };
    const auto putRest = [&](unsigned shift) { put(0x80U | (character >> shift & 0x3FU)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | character >> 6U);
        putRest(0);
    } else if (character < 0x10000) {
        put(0xE0U | character >> 12U);
        putRest(6);
        putRest(0);
    } else {
        put(0xF0U | character >> 18U);
        putRest(12);
        putRest(6);
        putRest(0);
    }
    return out;
}

char* putUtf8(WideView text, char* out)
{
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t ascii = copyAsciiBlocks(text.substr(i), out);
        i += ascii;
        out += ascii;
        for (const std::size_t end = std::min(text.size(), i + blockSize); i < end; ++i) {
            std::uint32_t character = text[i];
            if (i + 1 < text.size() && isPair(text[i], text[i + 1]))
                character = 0x10000U + ((character & 0x3FFU) << 10U) + (text[++i] & 0x3FFU);
            out = putUtf8(character, out);
        }
    }
    return out;
}

WideChar* putUtf16(std::uint32_t character, WideChar* out)
{
    if (character < 0x10000) {
        *out++ = static_cast<WideChar>(character);
        return out;
    }
    character -= 0x10000;
    *out++ = static_cast<WideChar>(0xD800U | (character >> 10U & 0x3FFU));
    *out++ = static_cast<WideChar>(0xDC00U | (character & 0x3FFU));
    return out;
}

WideChar* putUtf16(std::string_view utf8, WideChar* out)
{
    for (std::size_t i = 0; i < utf8.size();) {
        const std::size_t ascii = copyAsciiBlocks(utf8.substr(i), out);
        i += ascii;
        out += ascii;
        for (const std::size_t end = std::min(utf8.size(), i + blockSize); i < end;) {
            const auto lead = static_cast<unsigned char>(utf8[i++]);
            const unsigned int more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
            std::uint32_t character = more == 0 ? lead : lead & (0x3FU >> more);
            for (unsigned int k = 0; k < more && i < utf8.size(); ++k)
                character = character << 6U | (static_cast<unsigned char>(utf8[i++]) & 0x3FU);
            out = putUtf16(character, out);
        }
    }
    return out;
}

} // namespace

std::string toUtf8(WideView text)
{
    std::string utf8;
    utf8.reserve(text.size());
    std::array<char, pieceSize * mostBytesOfUnit> bytes;
    while (!text.empty()) {
        std::size_t size = std::min(text.size(), pieceSize);
        if (size < text.size() && isPair(text[size - 1], text[size]))
            --size;
        char* const end = putUtf8(text.substr(0, size), bytes.data());
        utf8.append(bytes.data(), end);
        text.remove_prefix(size);
    }
    return utf8;
}

WideString toUtf16(std::string_view utf8)
{
    WideString text(utf8.size(), WideChar(0)); // more than enough
    const WideChar* const end = putUtf16(utf8, text.data());
    text.resize(static_cast<std::size_t>(end - text.data()));
    return text;
}

} // namespace Pelmora::Native::Platform
