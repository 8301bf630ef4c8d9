#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace Pelmora::Native
{

/// Where the pixels begin in a bitmap resource: a BITMAPINFOHEADER or a later form of it, a colour
/// table with 4 bytes an entry, and the pixels. None when the header's numbers are not those of a
/// bitmap that may stand in a resource, or when header, table and pixels together would need more
/// bytes than there are.
///
/// A header that does not say how many entries the table has stands for 16 also with 1 bit a pixel,
/// and colour masks behind a header are counted as pixels, both on purpose.
std::optional<std::size_t> dibPixelOffset(std::span<const std::byte> resource);

} // namespace Pelmora::Native
