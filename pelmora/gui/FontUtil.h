#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/AnsiText.h"

#include <windows.h>

namespace Pelmora::Native
{

/// Owner of a GDI font. Moved and not copied; used by one thread at a time. A font that is selected
/// into a device context must be taken out of it before its owner goes.
class PELMORA_API Font
{
public:
    Font() noexcept = default;
    Font(Font&& other) noexcept : handle_(other.detach()) {}
    Font& operator=(Font&& other) noexcept;
    ~Font() { reset(); }

    /// Takes over a font in place of the one held, which is deleted; false for null, which leaves
    /// none. A stock font may be attached as well: deleting it does nothing. Requires: nobody else
    /// owns it.
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
/// is that of the characters, a positive one that of the line. Sizes are in tenths of a point, of
/// which 720 make an inch. Face names are in the ANSI code page and have at most 31 bytes that
/// count. Where a device context may be left out, one of the screen serves.
///
/// All functions may run in several threads at once, each with a device context of its own, and
/// `create` as far as the log allows.
namespace FontUtil
{

/// A font for `font`. One that cannot be created is one line in the error log, and the system's own
/// font takes its place, so that `font` can be used in any case; whether it holds one.
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

/// The font's measures in logical units; of the line, ascent and descent together, or all of them.
/// Those of the device context's own font for null, and 0, or zeros, when the system fails.
PELMORA_API int textHeight(HFONT font, HDC dc = nullptr);
PELMORA_API void textMetrics(TEXTMETRICA& metrics, HFONT font, HDC dc = nullptr);

/// The height for CreateFontA that gives characters of that size, never positive. Pixels are
/// rounded towards 0.
PELMORA_API int decipointsToHeight(int decipoints, HDC dc = nullptr);

/// The size of that height, rounded towards 0. A point at that height is measured: the sign turns
/// where a mapping mode points upwards, and origins other than 0 count. 0 for a device context that
/// has no resolution.
PELMORA_API int heightToDecipoints(int height, HDC dc = nullptr);

} // namespace FontUtil

} // namespace Pelmora::Native
