#include "pelmora/base/detail/utf8.h"

#include <cassert>
#include <cstring>

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

std::size_t asciiPrefix(std::string_view text) noexcept
{
    std::size_t length = 0;
    std::uint64_t block = 0;
    while (text.size() - length >= sizeof block) {
        std::memcpy(&block, text.data() + length, sizeof block);
        if ((block & 0x8080808080808080U) != 0)
            break;
        length += sizeof block;
    }
    while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80)
        ++length;
    return length;
}

} // namespace Pelmora::Native
