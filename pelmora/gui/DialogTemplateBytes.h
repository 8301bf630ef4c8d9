#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/AnsiText.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace Pelmora::Native
{

struct DialogParts;

/// In dialog units or in pixels.
struct DialogPoint {
    int x; ///< to the right
    int y; ///< downwards
};
/// In dialog units or in pixels.
struct DialogSize {
    int width;  ///< to the right
    int height; ///< downwards
};

/// A private copy of a dialog template whose caption and font can be changed before a dialog is
/// made of it, in the system's classic or extended layout: DLGTEMPLATE and DLGTEMPLATEEX of the
/// Windows SDK. The items that follow the font stay as they are. On Windows, `DialogTemplate` also
/// loads templates and measures them.
///
/// An object without a template, and one whose bytes are not a whole template, give what each
/// operation names for that case and stay as they are. Copies are independent. An object is used
/// by one thread at a time.
class PELMORA_API DialogTemplateBytes
{
public:
    /// Without a template.
    DialogTemplateBytes() = default;
    /// With a copy of these bytes; of none, without a template.
    explicit DialogTemplateBytes(std::span<const std::byte> bytes) { assign(bytes); }
    DialogTemplateBytes(const DialogTemplateBytes&) = default;
    DialogTemplateBytes& operator=(const DialogTemplateBytes&) = default;
    /// What was moved from is without a template, or holds another.
    DialogTemplateBytes(DialogTemplateBytes&& other) noexcept
        : buffer_(std::move(other.buffer_)), size_(std::exchange(other.size_, 0))
    {
    }
    DialogTemplateBytes& operator=(DialogTemplateBytes&& other) noexcept
    {
        std::swap(buffer_, other.buffer_);
        std::swap(size_, other.size_);
        return *this;
    }
    ~DialogTemplateBytes() = default;

    /// The template, for functions such as DialogBoxIndirectParamA; aligned as they want it, valid
    /// until the next change. Empty without a template.
    std::span<const std::byte> bytes() const noexcept
    {
        return std::span(buffer_).first(static_cast<std::size_t>(size_));
    }

    /// Whether there is a template and its bytes are a whole one: header, texts, font and as many
    /// items as it says.
    bool valid() const noexcept;

    /// Empty without a template.
    GString getCaption() const;

    /// Up to the first NUL and 255 units. A caption that is 257 units or more longer than the old
    /// one changes nothing.
    void setCaption(const GString& caption);

    /// The face in the ANSI code page and the size in points; "" and -1 without a template or a
    /// font, "" and 0x7FFF where the template asks for the system's font for messages.
    std::pair<std::string, int> getFont() const;

    /// Sets the font. Weight, italic and character set stay, or are 0 where there was no face.
    /// False without a template and for a size of 0x7FFF. A face of 32 or more UTF-16 units does
    /// not fit: the template is left with a size and without a face, on purpose, and is of no use
    /// until it is loaded again.
    bool setFont(const AnsiText& face, std::int16_t pointSize);

    /// False without a template or a face, and for a size of 0x7FFF.
    bool setFontSize(std::int16_t pointSize);

    /// In dialog units; only the low 16 bits of each number count.
    void setPosition(DialogPoint position);
    void setSize(DialogSize size);

protected:
    /// Becomes a copy of these bytes; of none, without a template.
    void assign(std::span<const std::byte> bytes);

private:
    void makeRoom(const DialogParts& parts, std::ptrdiff_t growth);

    std::vector<std::byte> buffer_; ///< the template and zero bytes as room for growth
    std::int32_t size_ = 0;         ///< bytes in use
};

} // namespace Pelmora::Native
