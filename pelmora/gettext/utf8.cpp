#include "pelmora/gettext/utf8.h"

#include <array>
#include <cstring>

namespace Pelmora::Native
{
namespace
{

/// One length of sequence: its lead bytes, the data bits of the lead byte, the smallest second byte
/// behind the first of these lead bytes (less would be overlong), and the values that it encodes.
struct SequenceRow {
    std::uint8_t firstLead;
    std::uint8_t lastLead;
    std::uint8_t leadMask;
    std::uint8_t smallestSecond;
    std::uint8_t marker;
    std::uint32_t valueEnd;
};

constexpr std::array<SequenceRow, 6> sequences = {{
    {0x00, 0x7F, 0x7F, 0x00, 0x00, 0x80},
    {0xC2, 0xDF, 0x1F, 0x80, 0xC0, 0x800},
    {0xE0, 0xEF, 0x0F, 0xA0, 0xE0, 0x10000},
    {0xF0, 0xF7, 0x07, 0x90, 0xF0, 0x200000},
    {0xF8, 0xFB, 0x03, 0x88, 0xF8, 0x4000000},
    {0xFC, 0xFD, 0x01, 0x84, 0xFC, 0x80000000},
}};

} // namespace

int decodeUtf8(std::string_view text, int available, std::uint32_t& value) noexcept
{
    const auto byteAt = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i])
                               : static_cast<unsigned char>(0);
    };
    const unsigned char lead = byteAt(0);
    for (std::size_t extra = 0; extra < sequences.size(); ++extra) {
        const SequenceRow& row = sequences[extra];
        if (lead < row.firstLead || lead > row.lastLead)
            continue;
        const int length = static_cast<int>(extra) + 1;
        if (length > available)
            return utf8NoRoom;
        std::uint32_t decoded = lead & row.leadMask;
        for (std::size_t i = 1; i <= extra; ++i) {
            const auto bits = static_cast<std::uint32_t>(byteAt(i) ^ 0x80U);
            if (bits >= 0x40)
                return utf8Malformed;
            decoded = decoded << 6 | bits;
        }
        if (extra > 0 && lead == row.firstLead && byteAt(1) < row.smallestSecond)
            return utf8Malformed;
        value = decoded;
        return length;
    }
    return utf8Malformed;
}

int encodeUtf8(std::uint32_t value, std::span<char> room) noexcept
{
    for (std::size_t extra = 0; extra < sequences.size(); ++extra) {
        if (value >= sequences[extra].valueEnd)
            continue;
        if (extra >= room.size())
            return utf8NoRoom;
        for (std::size_t i = extra; i > 0; --i) {
            room[i] = static_cast<char>(0x80U | (value & 0x3FU));
            value >>= 6;
        }
        room[0] = static_cast<char>(sequences[extra].marker | value);
        return static_cast<int>(extra) + 1;
    }
    return utf8Malformed;
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
