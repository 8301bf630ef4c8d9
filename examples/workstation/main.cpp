// workstation: tells what the library finds on a simulator's computer. The settings that it tries
// out are taken away again.
//
// Exit status: 0, or 1 when a setting did not come back as it was written.

#include "MonitorWidth.h"

#include "pelmora/gui/dateTime.h"
#include "pelmora/gui/monitors.h"
#include "pelmora/log/LogStream.h"
#include "pelmora/registry/regi.h"

#include <fstream>
#include <iostream>
#include <string>

namespace
{

using namespace Pelmora::Native;

constexpr const char* settings = "Software\\Pelmora workstation";

/// The line below the date at the log's top.
std::string systemDescription(const std::string& logPath)
{
    std::ifstream log(logPath);
    std::string line;
    std::getline(log, line);
    std::getline(log, line);
    return line;
}

bool settingComesBack()
{
    const std::string value = "Anna Berg, 70 kg";
    const bool written = regiWrite(HKEY_CURRENT_USER, settings, "Patient", value, true);
    const std::string read = regiRead(HKEY_CURRENT_USER, settings, "Patient", "", true);
    const bool removed = regiDelete(HKEY_CURRENT_USER, settings, "Patient", true) &&
                         regiDeleteKey(HKEY_CURRENT_USER, settings, true);
    const bool gone = regiRead(HKEY_CURRENT_USER, settings, "Patient", "not there") == "not there";
    const bool all = written && read == value && removed && gone;
    std::cout << "A setting:      " << (all ? "written, read again and deleted" : "lost") << '\n';
    return all;
}

void describeMonitor()
{
    RECT area = {};
    getWorkAreaAtPoint(area, -1, -1);
    std::cout << "Work area:      " << area.right - area.left << " x " << area.bottom - area.top
              << " pixels from (" << area.left << ", " << area.top << ")\n";

    const std::string monitor = getMonitorIdentifier(nullptr);
    if (monitor.empty()) {
        std::cout << "Monitor:        the system does not tell\n";
        return;
    }
    constexpr std::uint32_t usualMm = 520;
    const Workstation::MonitorWidth width(monitor, usualMm);
    std::cout << "Monitor:        " << monitor << '\n';
    if (!width.error().empty())
        std::cout << "Its width:      not entered: " << width.error() << '\n';
    else
        std::cout << "Its width:      " << static_cast<std::int32_t>(width.mm())
                  << " mm in the table, " << getMonitorPixelsPerCm(nullptr)
                  << " pixels per centimetre\n";
}

} // namespace

int main()
{
    const std::string logPath = get_log().path();
    std::cout << "System:         " << systemDescription(logPath) << '\n';
    const bool works = settingComesBack();
    describeMonitor();
    std::cout << "Date and time:  " << currentDateText(false) << ' ' << currentTimeText(false)
              << ", " << currentDateText(true) << ' ' << currentTimeText(true) << '\n'
              << "Error log:      " << logPath << '\n';
    return works ? 0 : 1;
}
