#pragma once

#include <windows.h>

// What the window's owner-drawn controls show.

namespace Bedside
{

/// The patient's picture in the middle, as large as it fits; enlarged only by whole numbers.
void drawPatient(HDC dc, const RECT& area);

/// Centimetres as long as they are on the screen of the window's monitor, or a text that says that
/// the monitor is not known.
void drawRuler(HDC dc, const RECT& area, HWND window);

} // namespace Bedside
