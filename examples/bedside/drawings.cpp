#include "drawings.h"

#include "controls.h"

#include "translation/translation.h"

#include "pelmora/gui/FontUtil.h"
#include "pelmora/gui/drawing.h"
#include "pelmora/gui/monitors.h"

#include <algorithm>
#include <cmath>

namespace Bedside
{
namespace
{

using Pelmora::GString;
using Translation::tr;
namespace Native = Pelmora::Native;

constexpr COLORREF ink = RGB(60, 66, 74);

/// A font selected into a device context, which has its own back before the font goes.
class WithFont
{
public:
    WithFont(HDC dc, HFONT font) noexcept : dc_(dc), previous_(SelectObject(dc, font)) {}
    WithFont(const WithFont&) = delete;
    WithFont& operator=(const WithFont&) = delete;
    ~WithFont() { SelectObject(dc_, previous_); }

private:
    HDC dc_;
    HGDIOBJ previous_;
};

/// A white area with a thin frame; gives what is inside.
RECT drawCard(HDC dc, const RECT& area)
{
    FillRect(dc, &area, GetSysColorBrush(COLOR_WINDOW));
    FrameRect(dc, &area, GetSysColorBrush(COLOR_BTNSHADOW));
    RECT inside = area;
    InflateRect(&inside, -1, -1);
    return inside;
}

void drawLabel(HDC dc, const GString& text, RECT area, UINT format)
{
    SetTextColor(dc, ink);
    SetBkMode(dc, TRANSPARENT);
    DrawTextW(dc, text.to_w_str(), -1, &area, format | DT_NOPREFIX);
}

/// No thinner, because such rectangles are not drawn; they come out a pixel wider than asked for.
void drawTick(HDC dc, int x, int top, int length)
{
    Native::drawSolidRect(dc, x - 1, top, x + 2, top + length, ink);
}

void drawCentimetres(HDC dc, RECT area, int pixelsPerCm)
{
    constexpr int margin = 12;
    constexpr int unitWidth = 22;
    constexpr int longTick = 9;
    constexpr int shortTick = 5;
    constexpr UINT centred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
    area.right -= margin;
    RECT unit = {area.right - unitWidth, area.top + longTick, area.right, area.bottom};
    drawLabel(dc, u"cm", unit, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    for (int x = area.left + margin, cm = 0; x < unit.left; x += pixelsPerCm, ++cm) {
        drawTick(dc, x, area.top, longTick);
        if (const int half = x + pixelsPerCm / 2; half < unit.left)
            drawTick(dc, half, area.top, shortTick);
        const RECT below = {x - margin, unit.top, x + margin, area.bottom};
        drawLabel(dc, GString::from_number(cm, "%d"), below, centred);
    }
}

} // namespace

void drawPatient(HDC dc, const RECT& area)
{
    constexpr int width = 138;
    constexpr int height = 136;
    const RECT inside = drawCard(dc, area);
    const int roomX = inside.right - inside.left;
    const int roomY = inside.bottom - inside.top;
    const double fit = std::min(double(roomX) / double(width), double(roomY) / double(height));
    const double scale = fit < 1 ? fit : std::floor(fit);
    const int shownX = static_cast<int>(width * scale);
    const int shownY = static_cast<int>(height * scale);
    Native::showDib(
        dc, BEDSIDE_PATIENT,
        {inside.left + (roomX - shownX) / 2, inside.top + (roomY - shownY) / 2, shownX, shownY},
        {0, 0, width, height});
}

void drawRuler(HDC dc, const RECT& area, HWND window)
{
    constexpr int decipoints = 70;
    const RECT inside = drawCard(dc, area);
    Native::Font font;
    Native::FontUtil::create(font, "MS Shell Dlg",
                             Native::FontUtil::decipointsToHeight(decipoints, dc), false, false);
    const WithFont selected(dc, font.get());
    if (const int pixelsPerCm = Native::getMonitorPixelsPerCm(window); pixelsPerCm > 0) {
        drawCentimetres(dc, inside, pixelsPerCm);
    } else {
        const GString monitor(Native::getMonitorIdentifier(window));
        drawLabel(dc, GString::format(tr("The width of this monitor is not known: %s"), monitor),
                  inside, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    }
}

} // namespace Bedside
