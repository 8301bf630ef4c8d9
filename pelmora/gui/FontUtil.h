#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/AnsiText.h"

#include <windows.h>

namespace Pelmora::Native
{

/// Owner of a GDI font. Moved and not copied; used by one thread at a time. A font that is selected
/// into a device context must be replaced there before its owner is destroyed.
class PELMORA_API Font
{
public:
    /// Without a font.
    Font() noexcept = default;
    Font(Font&& other) noexcept : handle_(other.detach()) {}
    Font& operator=(Font&& other) noexcept;
    ~Font() { reset(); }

    /// Deletes the font held and takes over another; false for null, which leaves none. A stock
    /// font may be attached as well: deleting it does nothing. Requires: nobody else owns the font.
    bool attach(HFONT font) noexcept;

    /// The font, now the caller's to delete; this object holds none.
    HFONT detach() noexcept;

    /// Null when none is held.
    HFONT get() const noexcept { return handle_; }

private:
    void reset() noexcept;

    HFONT handle_ = nullptr;
};

/// Fonts of the system's character set, and the measures of fonts.
///
/// Heights are in logical units of a device context and signed as for CreateFontA: a negative one
/// measures the characters, a positive one the line. Sizes are in decipoints (tenths of a point,
/// 720 an inch). Of a face's name 31 bytes count, in the ANSI code page. A device context that is
/// left out is one of the screen.
///
/// All functions may run in several threads at once, each with a device context of its own;
/// `create` only if the log may be used so.
namespace FontUtil
{

/// Creates a font in `font`. If that fails, the error log gets one line and `font` the system's own
/// font, so that it can be used in any case. True if it holds a font.
PELMORA_API bool create(Font& font, const AnsiText& face, int height, bool bold, bool italic);

/// The font alone, the caller's to delete; null when it cannot be created.
PELMORA_API HFONT createHandle(const AnsiText& face, int height, bool bold, bool italic);

/// The system character set: that of the ANSI code page, 0 (ANSI_CHARSET) for the Western European
/// one and where the code page has none.
PELMORA_API BYTE systemCharset();

/// Whether the system character set is not ANSI_CHARSET. Asked of the system once in a process.
PELMORA_API bool isNonAnsiSystem();

/// Whether "Small Fonts" is installed in the system character set. Asked of the system once in a
/// process.
PELMORA_API bool hasSmallFonts();

/// Whether a font of that face is installed, in one character set or in any.
PELMORA_API bool exists(const AnsiText& face, BYTE charset, HDC dc = nullptr);
PELMORA_API bool existsAnyCharset(const AnsiText& face, HDC dc = nullptr);

/// The height of the font's line (ascent and descent), or all its measures, in logical units. Null
/// stands for the device context's own font. 0, or zeros, when the system fails.
PELMORA_API int textHeight(HFONT font, HDC dc = nullptr);
PELMORA_API void textMetrics(TEXTMETRICA& metrics, HFONT font, HDC dc = nullptr);

/// The height for CreateFontA that gives characters of that size, never positive. Pixels are
/// rounded towards 0.
PELMORA_API int decipointsToHeight(int decipoints, HDC dc = nullptr);

/// The size of that height, rounded towards 0. Measures the point (0, height), not a distance: the
/// sign flips in mapping modes with y upwards, and a moved origin counts. 0 for a device context
/// without a resolution.
PELMORA_API int heightToDecipoints(int height, HDC dc = nullptr);

} // namespace FontUtil

} // namespace Pelmora::Native
