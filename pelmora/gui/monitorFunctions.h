#pragma once

#include <windows.h>

namespace Pelmora::Native
{

/// The system's multi-monitor functions, or what stands for them where the system has none.
struct MonitorFunctions {
    HMONITOR(WINAPI* fromWindow)(HWND, DWORD);
    HMONITOR(WINAPI* fromPoint)(POINT, DWORD);
    BOOL(WINAPI* information)(HMONITOR, MONITORINFO*);
    BOOL(WINAPI* enumerateDevices)(const char*, DWORD, DISPLAY_DEVICEA*, DWORD);
};

/// The functions by their names in a module. Where one is missing, all are replaced by functions
/// that know one monitor, the primary one: a device named "DISPLAY" whose work area is the
/// system's, and which does not tell what monitor it is.
MonitorFunctions lookUpMonitorFunctions(HMODULE module);

/// Those of user32, looked up once.
const MonitorFunctions& monitorFunctions();

} // namespace Pelmora::Native
