#include "pelmora/gui/MonitorSystem.h"

#include "pelmora/gui/monitorWidth.h"
#include "pelmora/registry/RegistryKey.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

namespace Pelmora::Native
{
namespace
{

/// Writes the one device's name into a record's array.
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

BOOL CALLBACK keepMainWindow(HWND window, LPARAM result)
{
    if (IsWindowVisible(window) == 0 || GetWindow(window, GW_OWNER) != nullptr)
        return TRUE;
    *reinterpret_cast<HWND*>(result) = window; // NOLINT: the system hands the address through
    return FALSE;
}

HWND mainWindowOfThread()
{
    HWND window = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), keepMainWindow,
                      reinterpret_cast<LPARAM>(&window)); // NOLINT: as above
    return window;
}

bool isLeadByte(unsigned char byte)
{
    return IsDBCSLeadByte(byte) != 0;
}

/// A text that fills its array may have no terminator.
template <std::size_t size>
std::string_view textOf(const char (&text)[size])
{
    return {text, static_cast<std::size_t>(std::find(text, std::end(text), '\0') - text)};
}

std::uint32_t widthInMm(const std::string& identifier)
{
    RegistryKey table;
    if (!table.open(HKEY_LOCAL_MACHINE, monitorWidthTable,
                    OpenMode::Read | OpenMode::WriteOrRead | OpenMode::Create))
        return 0;
    return table.readDword(identifier, 0);
}

} // namespace

MonitorSystem::MonitorSystem(HMODULE module) noexcept
    : functions_{singleFromWindow, singleFromPoint, singleInformation, singleDevices}
{
    Functions found = {};
    if (find(module, "MonitorFromWindow", found.fromWindow) &&
        find(module, "MonitorFromPoint", found.fromPoint) &&
        find(module, "GetMonitorInfoA", found.information) &&
        find(module, "EnumDisplayDevicesA", found.enumerateDevices))
        functions_ = found;
}

RECT MonitorSystem::workArea(HMONITOR monitor) const
{
    MONITORINFO information = {};
    information.cbSize = sizeof information;
    functions_.information(monitor, &information);
    return information.rcWork;
}

RECT MonitorSystem::workAreaOfWindow(HWND window) const
{
    const HWND shown = window != nullptr ? window : mainWindowOfThread();
    return workArea(functions_.fromWindow(shown, MONITOR_DEFAULTTONEAREST));
}

RECT MonitorSystem::workAreaAtPoint(int x, int y) const
{
    POINT point = {x, y};
    if (x == -1 && y == -1)
        GetCursorPos(&point);
    return workArea(functions_.fromPoint(point, MONITOR_DEFAULTTONEAREST));
}

bool MonitorSystem::describe(HWND window, MONITORINFOEXA& monitor) const
{
    monitor.cbSize = sizeof monitor;
    return functions_.information(functions_.fromWindow(window, MONITOR_DEFAULTTOPRIMARY),
                                  &monitor) != 0;
}

/// Calls `use` with the identifier of the monitor device on each adapter of the monitor, until
/// `use` gives true.
template <class Use>
void MonitorSystem::forEachIdentifier(const MONITORINFOEXA& monitor, Use use) const
{
    for (DWORD index = 0;; ++index) {
        DISPLAY_DEVICEA adapter = {};
        adapter.cb = sizeof adapter;
        if (functions_.enumerateDevices(nullptr, index, &adapter, 0) == 0)
            return;
        if ((adapter.StateFlags & DISPLAY_DEVICE_ATTACHED_TO_DESKTOP) == 0 ||
            (adapter.StateFlags & DISPLAY_DEVICE_MIRRORING_DRIVER) != 0 ||
            textOf(adapter.DeviceName) != textOf(monitor.szDevice))
            continue;
        DISPLAY_DEVICEA device = {};
        device.cb = sizeof device;
        if (functions_.enumerateDevices(std::string(textOf(adapter.DeviceName)).c_str(), 0, &device,
                                        EDD_GET_DEVICE_INTERFACE_NAME) == 0)
            continue;
        // A device without an identifier ends the search, on purpose: no later adapter is tried.
        const auto identifier = monitorIdentifier(textOf(device.DeviceID), isLeadByte);
        if (!identifier || use(*identifier))
            return;
    }
}

int MonitorSystem::pixelsPerCm(HWND window) const
{
    MONITORINFOEXA monitor = {};
    if (!describe(window, monitor))
        return 0;
    const std::int64_t widthInPixels =
        std::int64_t(monitor.rcMonitor.right) - monitor.rcMonitor.left;
    std::optional<int> result;
    forEachIdentifier(monitor, [&](const std::string& identifier) {
        result = Native::pixelsPerCm(widthInPixels, widthInMm(identifier));
        return result.has_value();
    });
    return result.value_or(0);
}

std::string MonitorSystem::identifier(HWND window) const
{
    std::string result;
    if (MONITORINFOEXA monitor = {}; describe(window, monitor))
        forEachIdentifier(monitor, [&](const std::string& identifier) {
            result = identifier;
            return true;
        });
    return result;
}

} // namespace Pelmora::Native
