#include "pelmora/gui/monitors.h"

#include "pelmora/gui/MonitorSystem.h"

namespace Pelmora::Native
{
namespace
{

/// The functions of user32, looked up once.
const MonitorSystem& monitorSystem()
{
    static const MonitorSystem system(GetModuleHandleA("USER32"));
    return system;
}

} // namespace

void getWorkAreaOfWindow(RECT& area, HWND window)
{
    area = monitorSystem().workAreaOfWindow(window);
}

void getWorkAreaAtPoint(RECT& area, int x, int y)
{
    area = monitorSystem().workAreaAtPoint(x, y);
}

int getMonitorPixelsPerCm(HWND window)
{
    return monitorSystem().pixelsPerCm(window);
}

std::string getMonitorIdentifier(HWND window)
{
    return monitorSystem().identifier(window);
}

} // namespace Pelmora::Native
