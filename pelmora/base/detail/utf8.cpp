#include "pelmora/base/detail/utf8.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstring>
#include <tuple>
#include <type_traits>

namespace Pelmora::Native
{
namespace
{

/// The sequences of one length. The lead byte is the marker and, in the bits of the mask, the
/// highest bits of the value. A lead byte below `firstLead`, or a second byte below `minSecond`
/// after it, would encode a value that a shorter sequence holds.
struct SequenceRow {
    std::uint8_t marker;
    std::uint8_t leadMask;
    std::uint8_t firstLead;
    std::uint8_t minSecond;
    std::uint32_t largest;
};

constexpr std::array<SequenceRow, 6> sequences = {{
    {.marker = 0x00, .leadMask = 0x7F, .firstLead = 0x00, .minSecond = 0x00, .largest = 0x7F},
    {.marker = 0xC0, .leadMask = 0x1F, .firstLead = 0xC2, .minSecond = 0x80, .largest = 0x7FF},
    {.marker = 0xE0, .leadMask = 0x0F, .firstLead = 0xE0, .minSecond = 0xA0, .largest = 0xFFFF},
    {.marker = 0xF0, .leadMask = 0x07, .firstLead = 0xF0, .minSecond = 0x90, .largest = 0x1FFFFF},
    {.marker = 0xF8, .leadMask = 0x03, .firstLead = 0xF8, .minSecond = 0x88, .largest = 0x3FFFFFF},
    {.marker = 0xFC, .leadMask = 0x01, .firstLead = 0xFC, .minSecond = 0x84, .largest = 0x7FFFFFFF},
}};

/// How much is converted in one go: into an array on the stack, since a string's own room cannot be
/// written before it was filled with zeros.
constexpr std::size_t pieceLength = 512;

/// Most text is ASCII, of which this much is looked at in one step.
constexpr std::size_t blockLength = 16;

/// A block as machine words, of which the bits are set that ASCII does not have.
template <class Char>
class Block
{
public:
    explicit Block(const Char* text) noexcept
    {
        constexpr std::uint64_t notAscii =
            sizeof(Char) == 1 ? 0x8080808080808080U : 0xFF80FF80FF80FF80U;
        std::memcpy(words_.data(), text, sizeof words_);
        for (std::uint64_t& word : words_)
            word &= notAscii;
    }

    bool isAscii() const noexcept
    {
        return std::apply([](auto... words) { return (words | ...) == 0; }, words_);
    }

    /// How many characters at its start are ASCII. Requires: not all.
    std::size_t asciiLength() const noexcept
    {
        static_assert(std::endian::native == std::endian::little, "the first one is the lowest");
        std::size_t i = 0;
        while (words_[i] == 0)
            ++i;
        const auto bits = 64 * i + static_cast<std::size_t>(std::countr_zero(words_[i]));
        return bits / (8 * sizeof(Char));
    }

private:
    std::array<std::uint64_t, blockLength * sizeof(Char) / sizeof(std::uint64_t)> words_;
};

/// Copies the ASCII at the start of a text, and returns its length. Of what follows, it may write
/// up to a block that means nothing.
template <class From, class To>
std::size_t copyAscii(std::basic_string_view<From> text, To* out) noexcept
{
    std::size_t done = 0;
    while (text.size() - done >= blockLength) {
        // Arrays that overlap nothing, of which the compiler makes vector registers.
        std::array<std::make_unsigned_t<From>, blockLength> from;
        std::array<To, blockLength> to;
        std::memcpy(from.data(), text.data() + done, sizeof from);
        std::transform(from.begin(), from.end(), to.begin(),
                       [](auto character) { return static_cast<To>(character); });
        std::copy(to.begin(), to.end(), out + done); // memcpy would be checked at each step
        const Block block(text.data() + done);
        if (!block.isAscii())
            return done + block.asciiLength();
        done += blockLength;
    }
    for (const From* in = text.data();
         done < text.size() && std::make_unsigned_t<From>(in[done]) < 0x80; ++done)
        out[done] = static_cast<To>(in[done]);
    return done;
}

template <class Char>
bool isAsciiText(std::basic_string_view<Char> text) noexcept
{
    for (; text.size() >= blockLength; text.remove_prefix(blockLength))
        if (!Block(text.data()).isAscii())
            return false;
    return std::all_of(text.begin(), text.end(),
                       [](Char character) { return std::make_unsigned_t<Char>(character) < 0x80; });
}

constexpr Utf8Character malformed = {0, 0};

/// As `decodeUtf8`, but without the table: only for the sequences of two and three bytes that most
/// text is made of, and not for all of them.
Utf8Character decodeUsual(std::string_view text) noexcept
{
    const char* const bytes = text.data(); // a view would check each place once more
    const auto bits = [bytes](std::size_t i, unsigned int mask) -> std::uint32_t {
        return static_cast<unsigned char>(bytes[i]) & mask;
    };
    const auto continues = [bits](std::size_t i) { return bits(i, 0xC0) == 0x80; };
    const std::uint32_t lead = bits(0, 0xFF);
    if (lead > 0xE0 && lead < 0xF0 && text.size() >= 3 && continues(1) && continues(2))
        return {bits(0, 0x0F) << 12 | bits(1, 0x3F) << 6 | bits(2, 0x3F), 3};
    if (lead >= 0xC2 && lead < 0xE0 && text.size() >= 2 && continues(1))
        return {bits(0, 0x1F) << 6 | bits(1, 0x3F), 2};
    return malformed;
}

template <class Char>
std::size_t sizeBetween(const Char* first, const Char* last) noexcept
{
    return static_cast<std::size_t>(last - first);
}

bool isSurrogate(std::uint32_t value) noexcept
{
    return (value & 0xFFFFF800U) == 0xD800U;
}

bool isPair(WideChar first, WideChar second) noexcept
{
    return (first & 0xFC00U) == 0xD800U && (second & 0xFC00U) == 0xDC00U;
}

/// The character at the start of a text, in a form. Nothing optional is returned from here: where
/// it was written in parts and is copied whole, the processor waits.
Utf8Character decodeIn(Utf8Form form, std::string_view utf8) noexcept
{
    Utf8Character character = decodeUsual(utf8);
    if (character.length == 0)
        character = decodeUtf8(utf8, form == Utf8Form::units ? 3 : 4).value_or(malformed);
    const bool isForeign = form == Utf8Form::characters &&
                           (isSurrogate(character.value) || character.value > 0x10FFFF);
    return isForeign ? malformed : character;
}

WideChar* putUtf16(std::uint32_t value, WideChar* out) noexcept
{
    if (value >= 0x10000) {
        *out++ = static_cast<WideChar>(0xD7C0U + (value >> 10));
        value = 0xDC00U | (value & 0x3FFU);
    }
    *out++ = static_cast<WideChar>(value);
    return out;
}

/// As `encodeUtf8` does it, but without the table; requires: value > 0x7F.
char* putUtf8(std::uint32_t value, char* out) noexcept
{
    const auto put = [&out](std::uint32_t byte) { *out++ = static_cast<char>(byte); };
    if (value < 0x800) {
        put(0xC0U | value >> 6);
    } else {
        if (value < 0x10000) {
            put(0xE0U | value >> 12);
        } else {
            put(0xF0U | value >> 18);
            put(0x80U | (value >> 12 & 0x3FU));
        }
        put(0x80U | (value >> 6 & 0x3FU));
    }
    put(0x80U | (value & 0x3FU));
    return out;
}

} // namespace

std::optional<Utf8Character> decodeUtf8(std::string_view text, std::size_t longest) noexcept
{
    const auto byteAt = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    for (std::size_t extra = 0; extra < sequences.size(); ++extra) {
        const SequenceRow& row = sequences[extra];
        if (lead < row.firstLead || lead > (row.marker | row.leadMask))
            continue;
        const std::size_t length = extra + 1;
        if (length > longest || length > text.size())
            return std::nullopt;
        std::uint32_t value = lead & row.leadMask;
        for (std::size_t i = 1; i < length; ++i) {
            const auto bits = static_cast<std::uint32_t>(byteAt(i) ^ 0x80U);
            if (bits >= 0x40)
                return std::nullopt;
            value = value << 6 | bits;
        }
        if (extra > 0 && lead == row.firstLead && byteAt(1) < row.minSecond)
            return std::nullopt;
        return Utf8Character{value, length};
    }
    return std::nullopt;
}

Utf8Sequence encodeUtf8(std::uint32_t value) noexcept
{
    std::size_t extra = 0;
    while (extra < sequences.size() - 1 && value > sequences[extra].largest)
        ++extra;
    assert(value <= sequences[extra].largest);
    Utf8Sequence sequence = {{}, static_cast<std::uint8_t>(extra + 1)};
    for (std::size_t i = extra; i > 0; --i) {
        sequence.bytes[i] = static_cast<char>(0x80U | (value & 0x3FU));
        value >>= 6;
    }
    sequence.bytes[0] = static_cast<char>(sequences[extra].marker | value);
    return sequence;
}

std::optional<WideString> decodedUtf8(std::string_view utf8, Utf8Form form)
{
    WideString text;
    if (utf8.size() > pieceLength)
        text.reserve(utf8.size());
    // The units of a sequence that begins in the piece, or the rest of a block, may exceed it.
    std::array<WideChar, pieceLength + blockLength> piece;
    const char* in = utf8.data();
    const char* const end = in + utf8.size();
    while (in != end) {
        const char* const pieceEnd = in + std::min(sizeBetween(in, end), pieceLength);
        WideChar* out = piece.data();
        while (in < pieceEnd) {
            if (static_cast<unsigned char>(*in) < 0x80) {
                const std::size_t ascii =
                    copyAscii(std::string_view(in, sizeBetween(in, pieceEnd)), out);
                in += ascii;
                out += ascii;
                continue;
            }
            const Utf8Character character = decodeIn(form, {in, sizeBetween(in, end)});
            if (character.length == 0)
                return std::nullopt;
            in += character.length;
            out = putUtf16(character.value, out);
        }
        text.append(piece.data(), out);
    }
    return text;
}

std::string encodedUtf8(WideView text, Utf8Form form)
{
    constexpr std::size_t mostBytesOfUnit = 3;
    std::string utf8;
    std::array<char, mostBytesOfUnit*(pieceLength + 1) + blockLength> piece;
    const WideChar* in = text.data();
    const WideChar* const end = in + text.size();
    while (in != end) {
        const WideChar* const pieceEnd = in + std::min(sizeBetween(in, end), pieceLength);
        char* out = piece.data();
        while (in < pieceEnd) {
            if (*in < 0x80) {
                const std::size_t ascii = copyAscii(WideView(in, sizeBetween(in, pieceEnd)), out);
                in += ascii;
                out += ascii;
                continue;
            }
            std::uint32_t value = *in++;
            if (form == Utf8Form::characters && in != end && isPair(in[-1], *in))
                value = 0x10000U + ((value & 0x3FFU) << 10) + (*in++ & 0x3FFU);
            out = putUtf8(value, out);
        }
        utf8.append(piece.data(), out);
        const bool isStart = pieceEnd == text.data() + pieceLength;
        if (isStart && in != end) // The rest is likely to be as dense.
            utf8.reserve(utf8.size() * (text.size() / pieceLength + 1) / 16 * 17);
    }
    return utf8;
}

bool isAscii(std::string_view text) noexcept
{
    return isAsciiText(text);
}

bool isAscii(WideView text) noexcept
{
    return isAsciiText(text);
}

} // namespace Pelmora::Native
