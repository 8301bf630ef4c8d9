#include "pelmora/gui/DialogTemplate.h"

#include "pelmora/gui/FontUtil.h"
#include "pelmora/gui/dialogLayout.h"
#include "pelmora/gui/gdi.h"
#include "pelmora/gui/resources.h"

#include <string_view>

namespace Pelmora::Native
{
namespace
{

constexpr DialogPoint none = {-1, -1};

DialogPoint systemBaseUnits()
{
    const auto units = static_cast<DWORD>(GetDialogBaseUnits());
    return {LOWORD(units), HIWORD(units)};
}

HFONT fontOf(const DialogTemplate& dialog, const Gdi::ScreenDc& screen)
{
    const auto [face, pointSize] = dialog.getFont();
    const int height = -MulDiv(pointSize, GetDeviceCaps(screen.get(), LOGPIXELSY), 72);
    return CreateFontA(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                       face.c_str());
}

HFONT messageFont()
{
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) == 0)
        return nullptr;
    return CreateFontIndirectA(&metrics.lfMessageFont);
}

} // namespace

bool DialogTemplate::load(HMODULE module, std::uint16_t resource)
{
    const auto bytes = findResource(module, resource, ResourceType::dialog);
    if (bytes.data() == nullptr)
        return false;
    assign(bytes);
    return true;
}

DialogPoint DialogTemplate::getBaseUnits() const
{
    static constexpr std::string_view letters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const auto parts = dialogParts(bytes());
    if (!parts)
        return none;
    const Gdi::ScreenDc screen;
    Font font;
    if (!parts->hasFont || !font.attach(parts->hasFace ? fontOf(*this, screen) : messageFont()))
        return systemBaseUnits();
    const Gdi::Selection selected(screen.get(), font.get());
    TEXTMETRICA metrics = {};
    GetTextMetricsA(screen.get(), &metrics);
    SIZE width = {};
    const auto count = static_cast<int>(letters.size());
    GetTextExtentPoint32A(screen.get(), letters.data(), count, &width);
    return {static_cast<int>(width.cx + count / 2) / count,
            static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading)};
}

DialogPoint DialogTemplate::dialogToPixels(DialogPoint units) const
{
    if (!valid())
        return none;
    const DialogPoint base = getBaseUnits();
    return {MulDiv(units.x, base.x, 4), MulDiv(units.y, base.y, 8)};
}

DialogPoint DialogTemplate::pixelsToDialog(DialogPoint pixels) const
{
    if (!valid())
        return none;
    const DialogPoint base = getBaseUnits();
    return {MulDiv(pixels.x, 4, base.x), MulDiv(pixels.y, 8, base.y)};
}

} // namespace Pelmora::Native
