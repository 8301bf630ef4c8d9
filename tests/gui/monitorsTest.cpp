#include "pelmora/gui/monitors.h"

#include "pelmora/gui/MonitorSystem.h"
#include "pelmora/gui/monitorWidth.h"
#include "pelmora/registry/RegistryKey.h"

#include <cstring>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

/// A width in the table while this object lives.
struct TableEntry {
    TableEntry(const std::string& identifier, std::uint32_t mm) : name(identifier)
    {
        table.open(HKEY_LOCAL_MACHINE, monitorWidthTable, OpenMode::AllAccess | OpenMode::Create);
        EXPECT_TRUE(table.writeDword(name, mm));
    }
    ~TableEntry() { table.deleteValue(name); }

    std::string name;
    RegistryKey table;
};

struct Adapter {
    std::string name;
    DWORD state;
    const char* monitorId; ///< null where no monitor can be had
};
std::vector<Adapter> adapters;

const auto left = reinterpret_cast<HMONITOR>(1);
const auto right = reinterpret_cast<HMONITOR>(2);

BOOL WINAPI informationOf(HMONITOR monitor, MONITORINFO* information)
{
    information->rcMonitor = monitor == left ? RECT{-1280, -200, 0, 824} : RECT{0, 0, 1920, 1080};
    information->rcWork = information->rcMonitor;
    information->rcWork.bottom -= 40;
    if (information->cbSize == sizeof(MONITORINFOEXA))
        std::strcpy(reinterpret_cast<MONITORINFOEXA*>(information)->szDevice,
                    monitor == left ? "left" : "right");
    return TRUE;
}

BOOL WINAPI enumerate(const char* name, DWORD index, DISPLAY_DEVICEA* device, DWORD)
{
    for (const Adapter& adapter : adapters) {
        if (name == nullptr ? index-- == 0 : adapter.monitorId != nullptr && adapter.name == name) {
            std::strcpy(device->DeviceName, adapter.name.c_str());
            std::strcpy(device->DeviceID, name != nullptr ? adapter.monitorId : "");
            device->StateFlags = adapter.state;
            return TRUE;
        }
    }
    return FALSE;
}

TEST(Monitors, OfSeveralTheRightOneIsMeasured)
{
    const MonitorSystem system(MonitorSystem::Functions{
        [](HWND window, DWORD) { return window == nullptr ? right : left; },
        [](POINT point, DWORD) { return point.x < 0 ? left : right; }, informationOf, enumerate});
    const TableEntry leftEntry("Pelmora-test-left", 310);
    const TableEntry rightEntry("Pelmora-test-right", 520);
    const HWND onLeft = GetDesktopWindow();
    const char* const leftId = "\\\\?\\DISPLAY#Pelmora-test-left#{x}";
    const char* const rightId = "\\\\?\\DISPLAY#Pelmora-test-right#{x}";
    constexpr DWORD on = DISPLAY_DEVICE_ATTACHED_TO_DESKTOP;
    const std::tuple<std::vector<Adapter>, int, int> rows[] = {
        // adapters, pixels per centimetre of the left and the right monitor
        {{{"right", on, rightId}, {"left", on, leftId}}, 41, 37},
        {{{"left", 0, leftId}, {"right", on, nullptr}}, 0, 0},
        {{{"left", on | DISPLAY_DEVICE_MIRRORING_DRIVER, leftId}}, 0, 0},
        {{{"right", on, "#absent#"}, {"left", on, leftId}}, 41, 0},
        // A monitor without an identifier ends the search.
        {{{"left", on, "MONITOR\\x\\"}, {"left", on, leftId}}, 0, 0},
    };
    for (const auto& [present, pixelsLeft, pixelsRight] : rows) {
        adapters = present;
        EXPECT_EQ(system.pixelsPerCm(onLeft), pixelsLeft);
        EXPECT_EQ(system.pixelsPerCm(nullptr), pixelsRight);
    }
    const RECT area = system.workAreaOfWindow(onLeft);
    EXPECT_EQ(std::pair(area.left, area.bottom), std::pair(-1280L, 784L));
    EXPECT_EQ(system.workAreaOfWindow(nullptr).left, 0);
    const HWND main =
        CreateWindowA("STATIC", "", WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(system.workAreaOfWindow(nullptr).left, -1280); // the thread's window is there
    DestroyWindow(main);
    SetCursorPos(7, 5);
    EXPECT_EQ(system.workAreaAtPoint(-1, -1).left, 0);
    EXPECT_EQ(system.workAreaAtPoint(-1, 5).left, -1280); // a point, not the cursor
}

TEST(Monitors, WithoutTheFunctionsThereIsOneMonitor)
{
    const MonitorSystem single(GetModuleHandleA("kernel32"));
    RECT whole = {};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &whole, 0);
    const RECT area = single.workAreaAtPoint(-5000, -5000);
    EXPECT_EQ(EqualRect(&area, &whole), TRUE);
    EXPECT_EQ(single.identifier(nullptr), "");
}

TEST(Monitors, TheScreenIsMeasuredByItsEntryInTheTable)
{
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const TableEntry entry(getMonitorIdentifier(nullptr), static_cast<std::uint32_t>(width / 4));
    EXPECT_EQ(getMonitorPixelsPerCm(nullptr), 40); // four pixels a millimetre
    RECT area = {};
    getWorkAreaOfWindow(area, nullptr);
    EXPECT_EQ(area.right, width);
}

} // namespace
} // namespace Pelmora::Native
