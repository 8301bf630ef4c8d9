#include "pelmora/gui/drawing.h"

#include "pelmora/gui/gdi.h"

#include "tests/LogCapture.h"
#include "tests/gui/ResourceModule.h"

#include <array>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

constexpr int width = 5;
constexpr int height = 3;
constexpr Area whole = {0, 0, width, height};

/// A picture in memory to draw on, at first of one colour.
class Canvas
{
public:
    static constexpr int size = 40;

    Canvas() { FillRect(dc(), &all, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH))); }

    HDC dc() const { return dc_.get(); }

    /// Whether the area has the colours that it should, and nothing else has changed.
    template <class Colour>
    void expect(const RECT& area, Colour colourAt) const
    {
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                ASSERT_EQ(GetPixel(dc(), x, y),
                          PtInRect(&area, {x, y}) != 0 ? colourAt(x, y) : RGB(128, 128, 128))
                    << x << ' ' << y;
    }

private:
    static constexpr RECT all = {0, 0, size, size};
    static constexpr BITMAPINFO format = {
        {sizeof(BITMAPINFOHEADER), size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};

    Gdi::MemoryDc dc_;
    Gdi::Object<HBITMAP> bitmap_{
        CreateDIBSection(dc(), &format, DIB_RGB_COLORS, nullptr, nullptr, 0)};
    Gdi::Selection selection_{dc(), bitmap_.get()};
};

/// Lines of black and white that cannot be turned over unseen, each of two bytes.
constexpr std::uint8_t pattern[] = {0xB0, 0, 0x10, 0, 0xC8, 0};

COLORREF patternAt(int x, int y)
{
    return (pattern[2 * y] << x & 0x80) != 0 ? RGB(255, 255, 255) : RGB(0, 0, 0);
}

/// The pattern as a bitmap resource.
std::vector<std::byte> picture(std::uint16_t bitCount, bool topDown)
{
    const std::size_t pixels = 40 + (bitCount == 8 ? 1024 : bitCount < 8 ? 64 : 0);
    std::vector<std::byte> bytes(pixels + (width * bitCount + 31U) / 32 * 4 * height);
    auto* const information = reinterpret_cast<BITMAPINFO*>(bytes.data());
    information->bmiHeader = {40, width, topDown ? -height : height, 1, bitCount, 0, 0, 0, 0, 0, 0};
    const Gdi::Object<HBITMAP> bitmap(CreateBitmap(width, height, 1, 1, pattern));
    GetDIBits(Gdi::MemoryDc().get(), bitmap.get(), 0, height, &bytes[pixels], information,
              DIB_RGB_COLORS);
    return bytes;
}

TEST(Drawing, PicturesOfEveryDepth)
{
    ResourceModule::Resources resources;
    for (const auto bitCount : std::to_array<std::uint16_t>({1, 4, 8, 16, 24, 32}))
        for (const bool topDown : {false, true})
            resources.emplace(bitCount * (topDown ? 10 : 1), picture(bitCount, topDown));
    const ResourceModule module(RT_BITMAP, resources);
    for (const auto& [id, bytes] : resources) {
        for (const int zoom : {1, 3}) {
            SCOPED_TRACE(id);
            const Canvas canvas;
            SetStretchBltMode(canvas.dc(), HALFTONE);
            const Area area = {4, 2, width * zoom, height * zoom};
            EXPECT_TRUE(showDib(canvas.dc(), id, area, whole, module.get()));
            EXPECT_TRUE(showDib(canvas.dc(), id, {0, 0, 0, 0}, whole, module.get()));
            canvas.expect({4, 2, 4 + width * zoom, 2 + height * zoom},
                          [&](int x, int y) { return patternAt((x - 4) / zoom, (y - 2) / zoom); });
            EXPECT_EQ(GetStretchBltMode(canvas.dc()), HALFTONE);
        }
    }
    const Canvas canvas;
    EXPECT_TRUE(showDib(canvas.dc(), 320, {4, 2, 2, 1}, {2, 1, 2, 1}, module.get())); // a part
    canvas.expect({4, 2, 6, 3}, [](int x, int) { return patternAt(x - 2, 1); });
    const LogCapture log;
    EXPECT_FALSE(showDib(Canvas().dc(), 999, whole, whole, module.get()));
    EXPECT_EQ(log.text(), "Utillib::showDib(..) resource error\n");
}

TEST(Drawing, SolidRectangles)
{
    const std::pair<RECT, RECT> rows[] = {
        // what is asked for and what is painted
        {{3, 5, 6, 8}, {2, 4, 6, 8}},
        {{10, 10, 12, 40}, {}},
        {{10, 10, 30, 12}, {}},
    };
    for (const auto& [asked, painted] : rows) {
        constexpr COLORREF red = RGB(255, 0, 0);
        const Canvas canvas;
        drawSolidRect(canvas.dc(), asked.left, asked.top, asked.right, asked.bottom, red);
        canvas.expect(painted, [](int, int) { return red; });
    }
}

} // namespace
} // namespace Pelmora::Native
