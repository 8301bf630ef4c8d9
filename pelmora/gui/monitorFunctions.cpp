#include "pelmora/gui/monitorFunctions.h"

#include <cstring>

namespace Pelmora::Native
{
namespace
{

constexpr const char* onlyDevice = "DISPLAY";

/// Stands for the one monitor; never dereferenced.
HMONITOR onlyMonitor()
{
    static int monitor;
    return reinterpret_cast<HMONITOR>(&monitor); // NOLINT: a handle is an opaque pointer
}

RECT onlyMonitorArea()
{
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

bool isOn(const RECT& area, const RECT& monitor)
{
    RECT common = {};
    return IntersectRect(&common, &area, &monitor) != 0;
}

HMONITOR onlyOr(bool shown, DWORD otherwise)
{
    const bool asked =
        otherwise == MONITOR_DEFAULTTOPRIMARY || otherwise == MONITOR_DEFAULTTONEAREST;
    return shown || asked ? onlyMonitor() : nullptr;
}

HMONITOR WINAPI onlyFromWindow(HWND window, DWORD otherwise)
{
    RECT area = {};
    const bool known = GetWindowRect(window, &area) != 0;
    return onlyOr(known && isOn(area, onlyMonitorArea()), otherwise);
}

HMONITOR WINAPI onlyFromPoint(POINT point, DWORD otherwise)
{
    const RECT monitor = onlyMonitorArea();
    return onlyOr(PtInRect(&monitor, point) != 0, otherwise);
}

BOOL WINAPI onlyInformation(HMONITOR monitor, MONITORINFO* information)
{
    if (monitor != onlyMonitor())
        return FALSE;
    information->rcMonitor = onlyMonitorArea();
    information->dwFlags = MONITORINFOF_PRIMARY;
    if (information->cbSize >= sizeof(MONITORINFOEXA))
        std::strcpy(reinterpret_cast<MONITORINFOEXA*>(information)->szDevice, // NOLINT: by its size
                    onlyDevice);
    return SystemParametersInfoA(SPI_GETWORKAREA, 0, &information->rcWork, 0);
}

BOOL WINAPI onlyDevices(const char* adapter, DWORD index, DISPLAY_DEVICEA* device, DWORD)
{
    if (adapter != nullptr || index != 0)
        return FALSE;
    std::strcpy(device->DeviceName, onlyDevice);
    device->StateFlags = DISPLAY_DEVICE_ATTACHED_TO_DESKTOP | DISPLAY_DEVICE_PRIMARY_DEVICE;
    return TRUE;
}

template <class Function>
bool find(HMODULE module, const char* name, Function& function)
{
    const FARPROC address = GetProcAddress(module, name);
    static_assert(sizeof address == sizeof function);
    std::memcpy(&function, &address, sizeof function);
    return address != nullptr;
}

} // namespace

MonitorFunctions lookUpMonitorFunctions(HMODULE module)
{
    MonitorFunctions found = {};
    if (find(module, "MonitorFromWindow", found.fromWindow) &&
        find(module, "MonitorFromPoint", found.fromPoint) &&
        find(module, "GetMonitorInfoA", found.information) &&
        find(module, "EnumDisplayDevicesA", found.enumerateDevices))
        return found;
    return {onlyFromWindow, onlyFromPoint, onlyInformation, onlyDevices};
}

const MonitorFunctions& monitorFunctions()
{
    static const MonitorFunctions functions = lookUpMonitorFunctions(GetModuleHandleA("USER32"));
    return functions;
}

} // namespace Pelmora::Native
