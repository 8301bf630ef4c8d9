// What DialogTemplate asks the system.

#include "pelmora/gui/DialogTemplate.h"
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

} // namespace

bool DialogTemplate::load(HINSTANCE__* module, std::uint16_t resource)
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
    if (!valid())
        return none;
    const auto [face, pointSize] = getFont();
    if (face.empty() && pointSize == -1)
        return systemBaseUnits();
    const Gdi::ScreenDc screen;
    const int height = -MulDiv(pointSize, GetDeviceCaps(screen.get(), LOGPIXELSY), 72);
    Font font;
    if (!font.attach(CreateFontA(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET,
                                 OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                 DEFAULT_PITCH, face.c_str())))
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
    const DialogPoint base = getBaseUnits();
    return valid() ? DialogPoint{MulDiv(units.x, base.x, 4), MulDiv(units.y, base.y, 8)} : none;
}

DialogPoint DialogTemplate::pixelsToDialog(DialogPoint pixels) const
{
    const DialogPoint base = getBaseUnits();
    return valid() ? DialogPoint{MulDiv(pixels.x, 4, base.x), MulDiv(pixels.y, 8, base.y)} : none;
}

} // namespace Pelmora::Native
