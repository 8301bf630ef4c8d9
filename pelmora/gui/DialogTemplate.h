#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/AnsiText.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

// What a module handle of Windows points to, unless NO_STRICT is defined.
struct HINSTANCE__; // NOLINT: the system's own name

namespace Pelmora::Native
{

struct DialogParts;

/// A position or a size, in dialog units or in pixels.
struct DialogPoint {
    int x;
    int y;
};
struct DialogSize {
    int width;
    int height;
};

/// A private copy of a dialog resource whose caption and font can be changed before a dialog is
/// made of it (see `runModalDialog`), in the system's classic or extended layout: DLGTEMPLATE and
/// DLGTEMPLATEEX of the Windows SDK. The items behind the font stay as they are.
///
/// An object without a template, and one whose bytes are not a whole template, give what each
/// operation names for that case and stay as they are. Copies are independent. An object is used
/// by one thread at a time.
class PELMORA_API DialogTemplate
{
public:
    /// Without a template.
    DialogTemplate() = default;
    /// With a copy of these bytes; of none, without a template.
    explicit DialogTemplate(std::span<const std::byte> bytes) { assign(bytes); }
    DialogTemplate(const DialogTemplate&) = default;
    DialogTemplate& operator=(const DialogTemplate&) = default;
    /// What was moved from is without a template, or holds another.
    DialogTemplate(DialogTemplate&& other) noexcept
        : buffer_(std::move(other.buffer_)), size_(std::exchange(other.size_, 0))
    {
    }
    DialogTemplate& operator=(DialogTemplate&& other) noexcept
    {
        std::swap(buffer_, other.buffer_);
        std::swap(size_, other.size_);
        return *this;
    }
    ~DialogTemplate() = default;

    /// Takes a copy of a dialog resource of a module (an HMODULE), null for the program's own.
    /// False, with everything as it was, when there is no such resource. Only on Windows.
    bool load(HINSTANCE__* module, std::uint16_t resource);

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

    /// In dialog units, of which the low 16 bits count.
    void setPosition(DialogPoint position);
    void setSize(DialogSize size);

    /// How many pixels 4 horizontal and 8 vertical dialog units are, by the template's font on the
    /// screen, or by the system's font where it has none. -1 and -1 without a template. Only on
    /// Windows, as the next two.
    DialogPoint getBaseUnits() const;

    /// Rounded to nearest; -1 and -1 without a template.
    DialogPoint dialogToPixels(DialogPoint units) const;
    DialogPoint pixelsToDialog(DialogPoint pixels) const;

private:
    void assign(std::span<const std::byte> bytes);
    void makeRoom(const DialogParts& parts, std::ptrdiff_t growth);

    std::vector<std::byte> buffer_; ///< the template and zero bytes as room for growth
    std::int32_t size_ = 0;         ///< bytes in use
};

} // namespace Pelmora::Native
