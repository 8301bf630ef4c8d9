#include "pelmora/gui/monitors.h"

#include "pelmora/gui/monitorQueries.h"
#include "pelmora/gui/monitorWidth.h"
#include "pelmora/registry/RegistryKey.h"

#include "tests/gui/Window.h"

#include <cstring>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

/// The table's entries for one monitor, which are put back when the test ends.
class TableEntry
{
public:
    explicit TableEntry(std::string identifier) : name_(std::move(identifier))
    {
        table_.open(HKEY_LOCAL_MACHINE, monitorWidthTable, OpenMode::AllAccess | OpenMode::Create);
        before_ = table_.readDword(name_, 0);
        table_.deleteValue(name_);
    }
    TableEntry(const TableEntry&) = delete;
    TableEntry& operator=(const TableEntry&) = delete;
    ~TableEntry()
    {
        table_.deleteValue(name_);
        if (before_ != 0)
            table_.writeDword(name_, before_);
    }
    void set(std::uint32_t mm) { EXPECT_TRUE(table_.writeDword(name_, mm)); }

private:
    std::string name_;
    RegistryKey table_;
    std::uint32_t before_;
};

constexpr RECT leftMonitor = {-1280, -200, 0, 824};
constexpr RECT rightMonitor = {0, 0, 1920, 1080};
const auto left = reinterpret_cast<HMONITOR>(1);
const auto right = reinterpret_cast<HMONITOR>(2);

HMONITOR WINAPI nearest(POINT point, DWORD)
{
    return point.x < 0 ? left : right;
}

HMONITOR WINAPI monitorOf(HWND window, DWORD)
{
    RECT area = {};
    GetWindowRect(window, &area);
    return nearest({area.left, area.top}, 0);
}

BOOL WINAPI informationOf(HMONITOR monitor, MONITORINFO* information)
{
    information->rcMonitor = monitor == left ? leftMonitor : rightMonitor;
    information->rcWork = information->rcMonitor;
    information->rcWork.bottom -= 40;
    if (information->cbSize == sizeof(MONITORINFOEXA))
        std::strcpy(reinterpret_cast<MONITORINFOEXA*>(information)->szDevice,
                    monitor == left ? "\\\\.\\DISPLAY2" : "\\\\.\\DISPLAY1");
    return TRUE;
}

struct Adapter {
    const char* name;
    DWORD state;
    const char* monitorId; ///< null where no monitor can be had
};

constexpr DWORD attached = DISPLAY_DEVICE_ATTACHED_TO_DESKTOP;

std::vector<Adapter> adapters;

BOOL WINAPI enumerate(const char* name, DWORD index, DISPLAY_DEVICEA* device, DWORD flags)
{
    if (name == nullptr) {
        if (index >= adapters.size())
            return FALSE;
        std::strcpy(device->DeviceName, adapters[index].name);
        device->StateFlags = adapters[index].state;
        return TRUE;
    }
    for (const Adapter& adapter : adapters) {
        if (std::strcmp(adapter.name, name) == 0 && index == 0 && adapter.monitorId != nullptr &&
            flags == EDD_GET_DEVICE_INTERFACE_NAME) {
            std::strcpy(device->DeviceID, adapter.monitorId);
            return TRUE;
        }
    }
    return FALSE;
}

const MonitorFunctions twoMonitors = {monitorOf, nearest, informationOf, enumerate};

TEST(Monitors, OfSeveralTheRightOneIsMeasured)
{
    TableEntry leftEntry("Pelmora-test-left");
    TableEntry rightEntry("Pelmora-test-right");
    leftEntry.set(310);
    rightEntry.set(520);
    const Window onLeft("STATIC", WS_POPUP, nullptr, {-900, 0, -800, 100});
    const Window onRight("STATIC", WS_POPUP, nullptr, {100, 0, 200, 100});
    const char* const leftName = "\\\\.\\DISPLAY2";
    const char* const rightName = "\\\\.\\DISPLAY1";
    const char* const leftId = "\\\\?\\DISPLAY#Pelmora-test-left#{x}";
    const char* const rightId = "\\\\?\\DISPLAY#Pelmora-test-right#{x}";
    const std::tuple<std::vector<Adapter>, int, int> rows[] = {
        {{}, 0, 0},
        {{{rightName, attached, rightId}, {leftName, attached, leftId}}, 41, 37},
        {{{rightName, attached, rightId}}, 0, 37},
        {{{leftName, 0, leftId}, {rightName, attached, nullptr}}, 0, 0},
        // A mirroring driver shows nothing, and a monitor without a width is passed over.
        {{{leftName, attached | DISPLAY_DEVICE_MIRRORING_DRIVER, leftId}}, 0, 0},
        {{{rightName, attached, "#Pelmora-test-absent#"}, {leftName, attached, leftId}}, 41, 0},
        // One without an identifier is not.
        {{{leftName, attached, "MONITOR\\x\\"}, {leftName, attached, leftId}}, 0, 0},
    };
    for (const auto& [present, pixelsLeft, pixelsRight] : rows) {
        adapters = present;
        EXPECT_EQ(monitorPixelsPerCm(twoMonitors, onLeft.get()), pixelsLeft);
        EXPECT_EQ(monitorPixelsPerCm(twoMonitors, onRight.get()), pixelsRight);
    }

    RECT area = {};
    workAreaOfWindow(twoMonitors, area, onLeft.get());
    EXPECT_EQ(area.left, leftMonitor.left);
    EXPECT_EQ(area.bottom, leftMonitor.bottom - 40);
    workAreaAtPoint(twoMonitors, area, -1, 5); // a point, not the cursor
    EXPECT_EQ(area.left, leftMonitor.left);
    SetCursorPos(7, 5);
    workAreaAtPoint(twoMonitors, area, -1, -1);
    EXPECT_EQ(area.left, rightMonitor.left);
}

TEST(Monitors, WithoutTheFunctionsThereIsOneMonitor)
{
    const MonitorFunctions found = lookUpMonitorFunctions(GetModuleHandleA("kernel32"));
    const Window window("STATIC", WS_POPUP, nullptr, {0, 0, 10, 10});
    RECT whole = {};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &whole, 0);
    for (const bool atPoint : {false, true}) {
        RECT area = {};
        if (atPoint)
            workAreaAtPoint(found, area, -5000, -5000);
        else
            workAreaOfWindow(found, area, window.get());
        EXPECT_EQ(EqualRect(&area, &whole), TRUE);
    }
    MONITORINFOEXA monitor = {};
    monitor.cbSize = sizeof monitor;
    EXPECT_TRUE(found.information(found.fromWindow(window.get(), 0), &monitor));
    EXPECT_STREQ(monitor.szDevice, "DISPLAY");
    EXPECT_EQ(found.fromPoint({-5000, 0}, MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_EQ(monitorPixelsPerCm(found, window.get()), 0);
    EXPECT_EQ(identifierOfMonitor(found, window.get()), "");
}

TEST(Monitors, TheSystemsOwn)
{
    const Window window("STATIC", WS_POPUP | WS_VISIBLE, nullptr, {0, 0, 10, 10});
    const std::string identifier = getMonitorIdentifier(window.get());
    ASSERT_NE(identifier, "");
    TableEntry entry(identifier);
    EXPECT_EQ(getMonitorPixelsPerCm(window.get()), 0);
    entry.set(520);
    const int width = GetSystemMetrics(SM_CXSCREEN);
    EXPECT_EQ(getMonitorPixelsPerCm(window.get()), pixelsPerCm(width, 520));
    EXPECT_GT(getMonitorPixelsPerCm(nullptr), 0);
    RECT ofWindow = {};
    RECT ofMain = {};
    getWorkAreaOfWindow(ofWindow, window.get());
    getWorkAreaOfWindow(ofMain, nullptr);
    EXPECT_EQ(ofWindow.right, width);
    EXPECT_EQ(EqualRect(&ofWindow, &ofMain), TRUE);
}

} // namespace
} // namespace Pelmora::Native
