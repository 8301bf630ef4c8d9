#pragma once

#include "pelmora/gui/monitorFunctions.h"

#include <string>

// The queries of monitors.h on given functions of the system.

namespace Pelmora::Native
{

void workAreaOfWindow(const MonitorFunctions& system, RECT& area, HWND window);
void workAreaAtPoint(const MonitorFunctions& system, RECT& area, int x, int y);
int monitorPixelsPerCm(const MonitorFunctions& system, HWND window);
std::string identifierOfMonitor(const MonitorFunctions& system, HWND window);

} // namespace Pelmora::Native
