#include "pelmora/gui/monitorFunctions.h"

#include <cstring>
#include <string_view>

namespace Pelmora::Native
{
namespace
{

/// Names the device in a record's array.
template <std::size_t size>
void nameDevice(char (&name)[size])
{
    constexpr std::string_view singleDevice = "DISPLAY";
    name[singleDevice.copy(name, size - 1)] = '\0';
}

/// Stands for the one monitor; never dereferenced.
HMONITOR singleMonitor()
{
    static int monitor;
    return reinterpret_cast<HMONITOR>(&monitor); // NOLINT: a handle is an opaque pointer
}

// The library asks for the nearest or the primary monitor, which this one always is.
HMONITOR WINAPI singleFromWindow(HWND, DWORD)
{
    return singleMonitor();
}

HMONITOR WINAPI singleFromPoint(POINT, DWORD)
{
    return singleMonitor();
}

BOOL WINAPI singleInformation(HMONITOR monitor, MONITORINFO* information)
{
    if (monitor != singleMonitor())
        return FALSE;
    information->rcMonitor = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    information->dwFlags = MONITORINFOF_PRIMARY;
    if (information->cbSize >= sizeof(MONITORINFOEXA))
        nameDevice(reinterpret_cast<MONITORINFOEXA*>(information)->szDevice); // NOLINT: by its size
    return SystemParametersInfoA(SPI_GETWORKAREA, 0, &information->rcWork, 0);
}

BOOL WINAPI singleDevices(const char* adapter, DWORD index, DISPLAY_DEVICEA* device, DWORD)
{
    if (adapter != nullptr || index != 0)
        return FALSE;
    nameDevice(device->DeviceName);
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
    return {singleFromWindow, singleFromPoint, singleInformation, singleDevices};
}

const MonitorFunctions& monitorFunctions()
{
    static const MonitorFunctions functions = lookUpMonitorFunctions(GetModuleHandleA("USER32"));
    return functions;
}

} // namespace Pelmora::Native
