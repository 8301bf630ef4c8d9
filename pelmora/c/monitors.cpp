#include "pelmora/gui/monitors.h"
#include "pelmora/c/systemBorder.h"

#include <bit>

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

/// The area that `ask` sets.
template <class Ask>
pelmora_status giveArea(pelmora_rectangle* area, const Ask& ask)
{
    return give(area, "area", [&] {
        RECT work = {};
        ask(work);
        if (work.right <= work.left)
            throw Failure{PELMORA_SYSTEM, "the system does not tell the work area"};
        return std::bit_cast<pelmora_rectangle>(work);
    });
}

} // namespace

pelmora_status pelmora_work_area_of_window(void* window, pelmora_rectangle* area)
{
    return giveArea(
        area, [&](RECT& work) { Native::getWorkAreaOfWindow(work, static_cast<HWND>(window)); });
}

pelmora_status pelmora_work_area_at_point(int32_t x, int32_t y, pelmora_rectangle* area)
{
    return giveArea(area, [&](RECT& work) { Native::getWorkAreaAtPoint(work, x, y); });
}

pelmora_status pelmora_monitor_pixels_per_cm(void* window, int32_t* pixels)
{
    return give(pixels, "pixels",
                [&] { return Native::getMonitorPixelsPerCm(static_cast<HWND>(window)); });
}

pelmora_status pelmora_monitor_identifier(void* window, char* buffer, size_t capacity,
                                          size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return Native::getMonitorIdentifier(static_cast<HWND>(window)); });
}
