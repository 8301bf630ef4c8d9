#pragma once

#include "pelmora/export.h"

#include <cstdint>

#include <windows.h>

// Drawing on device contexts. Nothing here throws; a device context is used by one thread at a
// time.

namespace Pelmora::Native
{

/// A rectangle by its corner and its size, in logical units of a device context or in pixels of a
/// picture. The latter are counted from its lower left corner, or from the upper left one of a
/// picture that is stored top-down, with a negative height.
struct Area {
    int x;      ///< of the corner
    int y;      ///< of the corner
    int width;  ///< from the corner
    int height; ///< from the corner
};

/// Draws the part `source` of a bitmap resource (type RT_BITMAP) of a module, null for the
/// program's own, scaled into `destination`. The system decides what empty and mirrored areas mean.
/// False, with one line in the error log: if there is no such resource or its header does not fit
/// its size, and then nothing is drawn; or if the system reports an error, which it does not do for
/// everything that it leaves undrawn.
///
/// Bitmaps have 1, 4, 8, 16, 24 or 32 bits. On purpose, one of 1 bit without a number of colours
/// needs a colour table of 16 entries, and colour masks after a header of 40 bytes are drawn as
/// pixels.
PELMORA_API bool showDib(HDC dc, std::uint16_t resource, const Area& destination,
                         const Area& source, HMODULE module = nullptr);

/// The same for a bitmap in memory. Requires: colour table and `bits` are as long as `information`
/// says; that is not checked.
PELMORA_API bool showDib(HDC dc, const BITMAPINFO* information, const void* bits,
                         const Area& destination, const Area& source);

/// Fills the rectangle with a colour, right and bottom exclusive; the column left of it and the
/// line above it are filled too. One that is 2 units or less wide or high is not drawn, on purpose.
PELMORA_API void drawSolidRect(HDC dc, int left, int top, int right, int bottom, COLORREF colour);

} // namespace Pelmora::Native
