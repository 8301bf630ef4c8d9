#pragma once

#include "pelmora/export.h"

#include <string>

#include <windows.h>

// The part of the screen that a window may use, and the screen's physical scale. Rectangles are in
// screen pixels, right and bottom exclusive; a second monitor may have negative coordinates. The
// system may scale pixels for a process that does not declare itself aware of the monitors'
// scaling. May run in several threads at once.

namespace Pelmora::Native
{

/// Sets `area` to the work area (the screen without task bars) of the monitor nearest to the
/// window. Null stands for the calling thread's main window, its first visible one without an
/// owner; if there is none, the primary monitor counts. All 0 if the system fails.
PELMORA_API void getWorkAreaOfWindow(RECT& area, HWND window);

/// The same for the monitor nearest to a point; (-1, -1) stands for the mouse cursor.
PELMORA_API void getWorkAreaAtPoint(RECT& area, int x, int y);

/// Pixels per centimetre, rounded, across the monitor that shows most of the window, the primary
/// one when none does. 0 when its physical width is unknown.
///
/// The widths stand in the registry, "SOFTWARE\Tavelin\MonitorWidthsMM" below HKEY_LOCAL_MACHINE
/// as 64-bit programs see it: a REG_DWORD for each monitor, named as `getMonitorIdentifier` gives
/// it, in whole millimetres of visible screen. The library makes the key where the user may, and
/// never an entry.
PELMORA_API int getMonitorPixelsPerCm(HWND window);

/// The name under which the table has, or would have, the window's monitor, in the ANSI code page:
/// "ABC1234#5&1a2b3c&0&UID256", the model and where it is connected. Empty if the system does not
/// tell it.
PELMORA_API std::string getMonitorIdentifier(HWND window);

} // namespace Pelmora::Native
