#include "pelmora/gui/DialogTemplateBytes.h"

#include "pelmora/gui/dialogLayout.h"
#include "pelmora/gui/littleEndian.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace Pelmora::Native
{
namespace
{

/// The most bytes that a caption may grow by at once.
constexpr std::ptrdiff_t mostCaptionGrowth = 512;
/// A face with its NUL, in units.
constexpr std::size_t faceRoom = 32;
/// The usual changes need no new buffer: a longer caption, a point size and a face.
constexpr std::size_t spareBytes = mostCaptionGrowth + 2 + 2 * faceRoom;

GString readText(std::span<const std::byte> bytes, std::size_t at, std::size_t length)
{
    WideString text(length, 0);
    for (std::size_t i = 0; i < length; ++i)
        text[i] = static_cast<WideChar>(readNumber<std::uint16_t>(bytes, at + 2 * i));
    return text;
}

/// The text and a NUL.
void writeText(std::span<std::byte> bytes, std::size_t at, WideView text)
{
    for (std::size_t i = 0; i <= text.size(); ++i)
        writeNumber(bytes, at + 2 * i,
                    static_cast<std::uint16_t>(i < text.size() ? text[i] : WideChar(0)));
}

} // namespace

void DialogTemplateBytes::assign(std::span<const std::byte> bytes)
{
    // size_ has 32 bits; real templates are far smaller.
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    bytes = bytes.first(std::min(bytes.size(), most));
    std::vector<std::byte> buffer(bytes.size() + spareBytes);
    std::copy(bytes.begin(), bytes.end(), buffer.begin());
    buffer_ = std::move(buffer);
    size_ = static_cast<std::int32_t>(bytes.size());
}

/// Moves the items for a font block that will end `growth` bytes later, or earlier if that is
/// negative.
void DialogTemplateBytes::makeRoom(const DialogParts& parts, std::ptrdiff_t growth)
{
    const std::size_t fontEnd = parts.items;
    const std::size_t newEnd = fontEnd + static_cast<std::size_t>(growth);
    const std::size_t from = alignedTo4(fontEnd);
    const std::size_t to = alignedTo4(newEnd);
    const auto used = static_cast<std::size_t>(size_);
    const std::size_t itemBytes = parts.itemCount > 0 ? used - from : 0;
    // A template without items need not end at a multiple of 4: it is as long as its font block.
    const std::size_t newUsed = std::max(used + to - from, newEnd);
    if (newUsed > buffer_.size())
        buffer_.resize(newUsed + spareBytes);
    std::memmove(buffer_.data() + to, buffer_.data() + from, itemBytes);
    size_ = static_cast<std::int32_t>(newUsed);
}

bool DialogTemplateBytes::valid() const noexcept
{
    return dialogParts(bytes()).has_value();
}

GString DialogTemplateBytes::getCaption() const
{
    const auto parts = dialogParts(bytes());
    return parts ? readText(buffer_, parts->caption, parts->captionLength) : GString();
}

void DialogTemplateBytes::setCaption(const GString& caption)
{
    constexpr std::size_t longest = 255;
    const auto parts = dialogParts(bytes());
    if (!parts)
        return;
    WideView text = caption;
    text = text.substr(0, text.find(WideChar(0)));
    const auto growthTo = [&](std::size_t length) {
        return 2 * (static_cast<std::ptrdiff_t>(length) -
                    static_cast<std::ptrdiff_t>(parts->captionLength));
    };
    if (growthTo(text.size()) > mostCaptionGrowth)
        return;
    text = text.substr(0, longest);
    if (const std::ptrdiff_t growth = growthTo(text.size()); growth != 0) {
        // Items that move towards the caption overwrite what is left of the font block.
        const auto font = buffer_.begin() + static_cast<std::ptrdiff_t>(parts->font);
        const std::vector<std::byte> fontBlock(
            font, font + static_cast<std::ptrdiff_t>(parts->fontBlockSize()));
        makeRoom(*parts, growth);
        std::copy(fontBlock.begin(), fontBlock.end(),
                  buffer_.begin() + static_cast<std::ptrdiff_t>(parts->font) + growth);
    }
    writeText(buffer_, parts->caption, text);
}

std::pair<std::string, int> DialogTemplateBytes::getFont() const
{
    const auto parts = dialogParts(bytes());
    if (!parts || !parts->hasFont)
        return {"", -1};
    const auto pointSize = readNumber<std::int16_t>(buffer_, parts->font);
    if (!parts->hasFace)
        return {"", pointSize};
    const std::size_t face = parts->font + parts->layout->fontFixedSize;
    return {readText(buffer_, face, parts->faceLength).to_narrow(), pointSize};
}

bool DialogTemplateBytes::setFont(const AnsiText& face, std::int16_t pointSize)
{
    const auto parts = dialogParts(bytes());
    if (!parts || pointSize == messageFontSize)
        return false;
    const GString text(face.narrow());
    const bool fits = text.size() < faceRoom;
    const std::size_t fixed = parts->layout->fontFixedSize;
    const std::size_t newSize = fixed + (fits ? 2 * (text.size() + 1) : 0);
    makeRoom(*parts, static_cast<std::ptrdiff_t>(newSize) -
                         static_cast<std::ptrdiff_t>(parts->fontBlockSize()));
    const std::span<std::byte> bytes(buffer_);
    const std::size_t style = parts->layout->style;
    writeNumber(bytes, style, readNumber<std::uint32_t>(bytes, style) | setFontStyle);
    if (!parts->hasFace) // a new block leaves weight, italic and character set to the system
        std::fill_n(buffer_.begin() + static_cast<std::ptrdiff_t>(parts->font), fixed, std::byte());
    writeNumber(bytes, parts->font, pointSize);
    if (fits)
        writeText(bytes, parts->font + fixed, text);
    return true;
}

bool DialogTemplateBytes::setFontSize(std::int16_t pointSize)
{
    const auto parts = dialogParts(bytes());
    if (!parts || !parts->hasFace || pointSize == messageFontSize)
        return false;
    writeNumber(std::span(buffer_), parts->font, pointSize);
    return true;
}

void DialogTemplateBytes::setPosition(DialogPoint position)
{
    if (const auto parts = dialogParts(bytes())) {
        const std::span<std::byte> bytes(buffer_);
        writeNumber(bytes, parts->layout->position, static_cast<std::uint16_t>(position.x));
        writeNumber(bytes, parts->layout->position + 2, static_cast<std::uint16_t>(position.y));
    }
}

void DialogTemplateBytes::setSize(DialogSize size)
{
    if (const auto parts = dialogParts(bytes())) {
        const std::span<std::byte> bytes(buffer_);
        writeNumber(bytes, parts->layout->size, static_cast<std::uint16_t>(size.width));
        writeNumber(bytes, parts->layout->size + 2, static_cast<std::uint16_t>(size.height));
    }
}

} // namespace Pelmora::Native
