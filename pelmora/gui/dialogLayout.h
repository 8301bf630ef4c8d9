#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

// Internal: where the parts of a dialog template lie.

namespace Pelmora::Native
{

/// The fixed positions and sizes of one of the two layouts, in bytes.
struct DialogLayout {
    bool extended;
    std::size_t style;
    std::size_t itemCount;
    std::size_t position;
    std::size_t size;
    std::size_t headerSize;
    std::size_t itemHeaderSize;
    std::size_t fontFixedSize; ///< of the font block, before the face
};

/// The parts of one template, in bytes from its start.
struct DialogParts {
    const DialogLayout* layout;
    std::size_t caption;
    std::size_t captionLength; ///< in units, without the NUL
    std::size_t font;          ///< directly after the caption's NUL
    bool hasFont;
    bool hasFace;           ///< and weight, italic and character set in the extended layout
    std::size_t faceLength; ///< in units, without the NUL
    std::size_t items;      ///< the end of the font block, not aligned
    std::uint16_t itemCount;

    std::size_t fontBlockSize() const { return items - font; }
};

/// The style bit of a template that has a font.
inline constexpr std::uint32_t setFontStyle = 0x40;

/// In place of a point size: the system's font for messages. The font block ends after it.
inline constexpr std::int16_t messageFontSize = 0x7FFF;

constexpr std::size_t alignedTo4(std::size_t position)
{
    return (position + 3) & ~std::size_t(3);
}

/// None if the bytes are not a whole template with as many items as its header says.
std::optional<DialogParts> dialogParts(std::span<const std::byte> bytes);

} // namespace Pelmora::Native
