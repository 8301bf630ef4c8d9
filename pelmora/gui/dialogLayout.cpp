#include "pelmora/gui/dialogLayout.h"

#include "pelmora/gui/littleEndian.h"

#include <algorithm>

namespace Pelmora::Native
{
namespace
{

constexpr DialogLayout classic = {
    .extended = false,
    .style = 0,
    .itemCount = 8,
    .position = 10,
    .size = 14,
    .headerSize = 18,
    .itemHeaderSize = 18,
    .fontFixedSize = 2,
};
constexpr DialogLayout extended = {
    .extended = true,
    .style = 12,
    .itemCount = 16,
    .position = 18,
    .size = 22,
    .headerSize = 26,
    .itemHeaderSize = 24,
    .fontFixedSize = 6,
};

constexpr std::uint16_t ordinalMark = 0xFFFF;

/// Reads a template from its beginning. Once a step would leave it, the reader has failed for good.
class Reader
{
public:
    explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    bool failed() const { return failed_; }
    std::size_t position() const { return position_; }

    void skip(std::size_t count)
    {
        failed_ = failed_ || count > bytes_.size() - position_;
        if (!failed_)
            position_ += count;
    }

    std::uint16_t word()
    {
        const std::size_t at = position_;
        skip(2);
        return failed_ ? std::uint16_t(0) : readNumber<std::uint16_t>(bytes_, at);
    }

    /// Skips a string; gives the number of its units before the NUL.
    std::size_t string()
    {
        std::size_t length = 0;
        while (word() != 0)
            ++length;
        return length;
    }

    void stringOrOrdinal()
    {
        const std::size_t at = position_;
        if (word() == ordinalMark) {
            skip(2);
        } else if (!failed_) {
            position_ = at;
            string();
        }
    }

    void align() { skip(alignedTo4(position_) - position_); }

private:
    std::span<const std::byte> bytes_;
    std::size_t position_ = 0;
    bool failed_ = false;
};

void skipItem(Reader& reader, const DialogLayout& layout)
{
    reader.align();
    reader.skip(layout.itemHeaderSize);
    reader.stringOrOrdinal(); // class
    reader.stringOrOrdinal(); // title
    const std::size_t size = reader.word();
    // The size of the creation data counts its own two bytes in the classic layout only.
    const std::size_t counted = layout.extended ? 0 : 2;
    reader.skip(std::max(size, counted) - counted);
}

} // namespace

std::optional<DialogParts> dialogParts(std::span<const std::byte> bytes)
{
    if (bytes.size() < 4)
        return std::nullopt;
    DialogParts parts = {};
    const bool isExtended = readNumber<std::uint16_t>(bytes, 2) == 0xFFFF;
    parts.layout = isExtended ? &extended : &classic;
    Reader reader(bytes);
    reader.skip(parts.layout->headerSize);
    constexpr std::uint16_t onlyVersion = 1; // others are read as classic by some systems
    if (reader.failed() || (isExtended && readNumber<std::uint16_t>(bytes, 0) != onlyVersion))
        return std::nullopt;
    parts.hasFont = (readNumber<std::uint32_t>(bytes, parts.layout->style) & setFontStyle) != 0;
    parts.itemCount = readNumber<std::uint16_t>(bytes, parts.layout->itemCount);
    reader.stringOrOrdinal(); // menu
    reader.stringOrOrdinal(); // window class
    parts.caption = reader.position();
    parts.captionLength = reader.string();
    parts.font = reader.position();
    parts.hasFace = parts.hasFont && reader.word() != messageFontSize;
    if (parts.hasFace) {
        reader.skip(parts.layout->fontFixedSize - 2); // the size is read already
        parts.faceLength = reader.string();
    }
    parts.items = reader.position();
    for (unsigned int i = 0; i < parts.itemCount && !reader.failed(); ++i)
        skipItem(reader, *parts.layout);
    return reader.failed() ? std::nullopt : std::optional(parts);
}

} // namespace Pelmora::Native
