// Any bytes as a bitmap resource.

#include "fuzz/FuzzedInput.h"
#include "pelmora/gui/dibLayout.h"

#include <optional>

using namespace Pelmora;

namespace
{

/// No number of a header, nor a product of two, can overflow here.
std::optional<std::size_t> pixelOffset(FuzzedInput input, std::size_t size)
{
    using Wide = __int128;
    if (size < 40)
        return std::nullopt;
    const Wide header = input.number<std::uint32_t>();
    const Wide width = input.number<std::int32_t>();
    const Wide height = input.number<std::int32_t>();
    input.number<std::uint16_t>(); // planes
    const Wide bits = input.number<std::uint16_t>();
    const std::uint32_t compression = input.number<std::uint32_t>();
    const Wide imageSize = input.number<std::uint32_t>();
    input.number<std::uint64_t>(); // resolution
    const std::uint32_t colours = input.number<std::uint32_t>();

    Wide entries = colours;
    if (colours == 0 && bits <= 8)
        entries = bits == 8 ? 256 : 16;
    const bool isKnownDepth =
        bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
    if (colours == 0 ? !isKnownDepth : bits >= 16 || colours == 0xFFFFFFFF)
        return std::nullopt;
    const bool hasMasks = compression == 3 || compression == 6;
    const bool isCompressed =
        compression == 1 || compression == 2 || compression == 4 || compression == 5;
    const Wide lines = height < 0 ? -height : height;
    const Wide pixels = isCompressed ? imageSize : (width * bits + 31) / 32 * 4 * lines;
    const Wide offset = header + 4 * entries;
    if (header < 40 || width < 0 || (hasMasks && size < 56) || (isCompressed && imageSize == 0) ||
        offset > size || offset + pixels > size)
        return std::nullopt;
    return static_cast<std::size_t>(offset);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::span bytes(reinterpret_cast<const std::byte*>(data), size);
    check(Native::dibPixelOffset(bytes) == pixelOffset(FuzzedInput(data, size), size));
    return 0;
}
