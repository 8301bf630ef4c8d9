#include "pelmora/gui/monitors.h"

#include "pelmora/gui/monitorQueries.h"
#include "pelmora/gui/monitorWidth.h"
#include "pelmora/registry/RegistryKey.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace Pelmora::Native
{
namespace
{

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

void copyWorkArea(const MonitorFunctions& system, RECT& area, HMONITOR monitor)
{
    MONITORINFO information = {};
    information.cbSize = sizeof information;
    system.information(monitor, &information);
    area = information.rcWork;
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

/// Calls `use` with the identifier of the monitor device on each adapter of the monitor, until one
/// gives true or has no identifier.
template <class Use>
void forEachIdentifier(const MonitorFunctions& system, const MONITORINFOEXA& monitor, Use use)
{
    for (DWORD index = 0;; ++index) {
        DISPLAY_DEVICEA adapter = {};
        adapter.cb = sizeof adapter;
        if (system.enumerateDevices(nullptr, index, &adapter, 0) == 0)
            return;
        if ((adapter.StateFlags & DISPLAY_DEVICE_ATTACHED_TO_DESKTOP) == 0 ||
            (adapter.StateFlags & DISPLAY_DEVICE_MIRRORING_DRIVER) != 0 ||
            textOf(adapter.DeviceName) != textOf(monitor.szDevice))
            continue;
        DISPLAY_DEVICEA device = {};
        device.cb = sizeof device;
        if (system.enumerateDevices(std::string(textOf(adapter.DeviceName)).c_str(), 0, &device,
                                    EDD_GET_DEVICE_INTERFACE_NAME) == 0)
            continue;
        // One that cannot be told apart ends the search, on purpose.
        const auto identifier = monitorIdentifier(textOf(device.DeviceID), isLeadByte);
        if (!identifier || use(*identifier))
            return;
    }
}

bool describeMonitor(const MonitorFunctions& system, HWND window, MONITORINFOEXA& monitor)
{
    monitor.cbSize = sizeof monitor;
    return system.information(system.fromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor) != 0;
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

void workAreaOfWindow(const MonitorFunctions& system, RECT& area, HWND window)
{
    const HWND shown = window != nullptr ? window : mainWindowOfThread();
    copyWorkArea(system, area, system.fromWindow(shown, MONITOR_DEFAULTTONEAREST));
}

void workAreaAtPoint(const MonitorFunctions& system, RECT& area, int x, int y)
{
    POINT point = {x, y};
    if (x == -1 && y == -1)
        GetCursorPos(&point);
    copyWorkArea(system, area, system.fromPoint(point, MONITOR_DEFAULTTONEAREST));
}

int monitorPixelsPerCm(const MonitorFunctions& system, HWND window)
{
    MONITORINFOEXA monitor = {};
    if (!describeMonitor(system, window, monitor))
        return 0;
    const std::int64_t widthInPixels =
        std::int64_t(monitor.rcMonitor.right) - monitor.rcMonitor.left;
    std::optional<int> result;
    forEachIdentifier(system, monitor, [&](const std::string& identifier) {
        result = pixelsPerCm(widthInPixels, widthInMm(identifier));
        return result.has_value();
    });
    return result.value_or(0);
}

std::string identifierOfMonitor(const MonitorFunctions& system, HWND window)
{
    std::string result;
    if (MONITORINFOEXA monitor = {}; describeMonitor(system, window, monitor))
        forEachIdentifier(system, monitor, [&](const std::string& identifier) {
            result = identifier;
            return true;
        });
    return result;
}

void getWorkAreaOfWindow(RECT& area, HWND window)
{
    workAreaOfWindow(monitorFunctions(), area, window);
}

void getWorkAreaAtPoint(RECT& area, int x, int y)
{
    workAreaAtPoint(monitorFunctions(), area, x, y);
}

int getMonitorPixelsPerCm(HWND window)
{
    return monitorPixelsPerCm(monitorFunctions(), window);
}

std::string getMonitorIdentifier(HWND window)
{
    return identifierOfMonitor(monitorFunctions(), window);
}

} // namespace Pelmora::Native
