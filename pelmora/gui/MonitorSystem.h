#pragma once

#include <string>

#include <windows.h>

// Internal: the queries of monitors.h on given functions of the system.

namespace Pelmora::Native
{

/// The monitors as the system's multi-monitor functions show them. Rectangles and numbers are as in
/// monitors.h.
class MonitorSystem
{
public:
    struct Functions {
        HMONITOR(WINAPI* fromWindow)(HWND, DWORD);
        HMONITOR(WINAPI* fromPoint)(POINT, DWORD);
        BOOL(WINAPI* information)(HMONITOR, MONITORINFO*);
        BOOL(WINAPI* enumerateDevices)(const char*, DWORD, DISPLAY_DEVICEA*, DWORD);
    };

    explicit MonitorSystem(const Functions& functions) noexcept : functions_(functions) {}

    /// With the functions by their names in a module. If one is missing, all are replaced by
    /// functions that know one monitor, the primary one: a device named "DISPLAY" whose work area
    /// is the system's, and which does not tell what monitor it is.
    explicit MonitorSystem(HMODULE module) noexcept;

    RECT workAreaOfWindow(HWND window) const;
    RECT workAreaAtPoint(int x, int y) const;
    int pixelsPerCm(HWND window) const;
    std::string identifier(HWND window) const;

private:
    RECT workArea(HMONITOR monitor) const;
    bool describe(HWND window, MONITORINFOEXA& monitor) const;
    template <class Use>
    void forEachIdentifier(const MONITORINFOEXA& monitor, Use use) const;

    Functions functions_;
};

} // namespace Pelmora::Native
