#pragma once

#include <cstddef>
#include <optional>
#include <span>

// Internal: where the parts of a bitmap resource lie.

namespace Pelmora::Native
{

/// The position of the pixels in a bitmap resource, which is a BITMAPINFOHEADER or a later form of
/// it, a colour table of 4 bytes an entry, and the pixels. None if the header is not that of a
/// bitmap resource, or if header, table and pixels need more bytes than there are.
///
/// With 1 bit a pixel, a header that does not give the number of entries has 16 too, and colour
/// masks after a header count as pixels, both on purpose.
std::optional<std::size_t> dibPixelOffset(std::span<const std::byte> resource);

} // namespace Pelmora::Native
