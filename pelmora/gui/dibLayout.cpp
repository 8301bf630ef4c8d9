#include "pelmora/gui/dibLayout.h"

#include "pelmora/gui/littleEndian.h"

namespace Pelmora::Native
{
namespace
{

constexpr std::uint64_t smallestHeader = 40;

/// Those that matter here; all others are laid out as uncompressed pixels are.
enum class Compression : std::uint32_t {
    runLength8 = 1,
    runLength4 = 2,
    bitFields = 3,
    jpeg = 4,
    png = 5,
    alphaBitFields = 6,
};

/// The fields of a BITMAPINFOHEADER that tell how large everything is.
struct Header {
    std::uint64_t size;
    std::int64_t width;
    std::int64_t height; ///< negative: top-down
    std::uint32_t bitCount;
    Compression compression;
    std::uint64_t imageSize;
    std::uint64_t coloursUsed;
};

Header headerOf(std::span<const std::byte> resource)
{
    return {
        .size = readNumber<std::uint32_t>(resource, 0),
        .width = readNumber<std::int32_t>(resource, 4),
        .height = readNumber<std::int32_t>(resource, 8),
        .bitCount = readNumber<std::uint16_t>(resource, 14),
        .compression = Compression(readNumber<std::uint32_t>(resource, 16)),
        .imageSize = readNumber<std::uint32_t>(resource, 20),
        .coloursUsed = readNumber<std::uint32_t>(resource, 32),
    };
}

/// None for a combination that is refused.
std::optional<std::uint64_t> colourTableEntries(const Header& header)
{
    if (header.coloursUsed != 0)
        return header.bitCount >= 16 || header.coloursUsed == 0xFFFFFFFF
                   ? std::nullopt
                   : std::optional(header.coloursUsed);
    switch (header.bitCount) {
    case 1: // as many as with 4 bits, on purpose
    case 4:
        return 16;
    case 8:
        return 256;
    case 16:
    case 24:
    case 32:
        return 0;
    default:
        return std::nullopt;
    }
}

/// Whether the pixels need no more than `room` bytes.
bool fits(const Header& header, std::uint64_t room)
{
    using enum Compression;
    switch (header.compression) {
    case runLength8:
    case runLength4:
    case jpeg:
    case png:
        return header.imageSize > 0 && header.imageSize <= room;
    default:
        break;
    }
    const std::uint64_t lineBits = static_cast<std::uint64_t>(header.width) * header.bitCount;
    const std::uint64_t line = (lineBits + 31) / 32 * 4;
    const auto lines =
        static_cast<std::uint64_t>(header.height < 0 ? -header.height : header.height);
    return line == 0 || lines <= room / line;
}

/// Whether a resource of `size` bytes holds the colour masks that its compression needs. Their
/// place is fixed: in a long header, or directly after a short one.
bool hasItsMasks(const Header& header, std::uint64_t size)
{
    constexpr std::uint64_t endOfMasks = smallestHeader + 16;
    const bool needsMasks = header.compression == Compression::bitFields ||
                            header.compression == Compression::alphaBitFields;
    return !needsMasks || size >= endOfMasks;
}

} // namespace

std::optional<std::size_t> dibPixelOffset(std::span<const std::byte> resource)
{
    if (resource.size() < smallestHeader)
        return std::nullopt;
    const Header header = headerOf(resource);
    const auto entries = colourTableEntries(header);
    if (header.size < smallestHeader || header.width < 0 || !entries ||
        !hasItsMasks(header, resource.size()))
        return std::nullopt;
    const std::uint64_t offset = header.size + 4 * *entries;
    if (offset > resource.size() || !fits(header, resource.size() - offset))
        return std::nullopt;
    return static_cast<std::size_t>(offset);
}

} // namespace Pelmora::Native
