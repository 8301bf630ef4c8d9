#include "pelmora/gui/drawing.h"

#include "pelmora/gui/dibLayout.h"
#include "pelmora/gui/gdi.h"
#include "pelmora/gui/resources.h"
#include "pelmora/log/LogStream.h"
#include "pelmora/registry/systemErrorText.h"

#include <span>

namespace Pelmora::Native
{
namespace
{

class StretchMode
{
public:
    StretchMode(HDC dc, int mode) noexcept : dc_(dc), previous_(SetStretchBltMode(dc, mode)) {}
    StretchMode(const StretchMode&) = delete;
    StretchMode& operator=(const StretchMode&) = delete;
    ~StretchMode() { SetStretchBltMode(dc_, previous_); }

private:
    HDC dc_;
    int previous_;
};

} // namespace

bool showDib(HDC dc, std::uint16_t resource, const Area& destination, const Area& source,
             HMODULE module)
{
    const std::span<const std::byte> bytes = findResource(module, resource, ResourceType::bitmap);
    const auto pixels = dibPixelOffset(bytes);
    if (!pixels) {
        get_log() << "Utillib::showDib(..) resource error" << endl;
        return false;
    }
    const auto* information = reinterpret_cast<const BITMAPINFO*>(bytes.data()); // NOLINT: it is
    return showDib(dc, information, bytes.data() + *pixels, destination, source);
}

bool showDib(HDC dc, const BITMAPINFO* information, const void* bits, const Area& destination,
             const Area& source)
{
    const StretchMode dropsPixels(dc, COLORONCOLOR);
    const int lines = StretchDIBits(dc, destination.x, destination.y, destination.width,
                                    destination.height, source.x, source.y, source.width,
                                    source.height, bits, information, DIB_RGB_COLORS, SRCCOPY);
    if (lines != static_cast<int>(GDI_ERROR))
        return true;
    const std::string reason = systemErrorText(GetLastError()); // before the log calls the system
    // Not named as in the other line, on purpose.
    get_log() << "Util::showDib(..) StretchDIBits bits error: " << reason << endl;
    return false;
}

void drawSolidRect(HDC dc, int left, int top, int right, int bottom, COLORREF colour)
{
    const Gdi::Object<HPEN> noPen(CreatePen(PS_NULL, 0, colour));
    const Gdi::Object<HBRUSH> brush(CreateSolidBrush(colour));
    if (noPen.get() == nullptr || brush.get() == nullptr)
        return;
    const Gdi::Selection pen(dc, noPen.get());
    const Gdi::Selection fill(dc, brush.get());
    const auto difference = [](int a, int b) { return std::int64_t(a) - b; };
    if (difference(right, left) > 2 && difference(bottom, top) > 2) {
        // One unit larger on every side, to make up for the null pen.
        const auto moved = [&](int edge, int by) {
            return static_cast<int>(difference(edge, -by));
        };
        Rectangle(dc, moved(left, -1), moved(top, -1), moved(right, 1), moved(bottom, 1));
        return;
    }
    // A small rectangle gets an outline only, and the null pen paints none: both on purpose.
    POINT before = {};
    MoveToEx(dc, left, top, &before);
    LineTo(dc, right, top);
    LineTo(dc, right, bottom);
    LineTo(dc, left, bottom);
    LineTo(dc, left, top);
    MoveToEx(dc, before.x, before.y, nullptr);
}

} // namespace Pelmora::Native
