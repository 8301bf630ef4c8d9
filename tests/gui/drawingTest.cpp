#include "pelmora/gui/drawing.h"

#include "tests/LogCapture.h"
#include "tests/gui/Canvas.h"
#include "tests/gui/ResourceModule.h"

#include <cstring>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

constexpr COLORREF red = RGB(0xFF, 0, 0);
constexpr COLORREF green = RGB(0, 0xFF, 0);
constexpr int width = 5;
constexpr int height = 3;
constexpr Area whole = {0, 0, width, height};

/// No picture with this pattern can be turned over unseen.
bool isGreen(int x, int y)
{
    return (x * x + 2 * y) % 5 < 2;
}

/// The pattern as a bitmap resource.
std::vector<std::byte> pattern(std::uint16_t bitCount, bool topDown, std::uint32_t coloursUsed = 0)
{
    const std::size_t all = bitCount == 8 ? 256 : bitCount < 8 ? 16 : 0;
    const std::size_t pixels = 40 + 4 * (coloursUsed != 0 ? coloursUsed : all);
    const std::size_t line = (width * bitCount + 31U) / 32 * 4;
    std::vector<std::byte> bytes(pixels + line * height);
    const BITMAPINFOHEADER header = {
        40, width, topDown ? -height : height, 1, bitCount, 0, 0, 0, 0, coloursUsed, 0};
    const std::uint32_t table[] = {0xFF0000, 0x00FF00};
    std::memcpy(bytes.data(), &header, sizeof header);
    if (pixels > 40)
        std::memcpy(&bytes[40], table, sizeof table);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto bit = static_cast<unsigned int>(x) * bitCount;
            std::byte* const at =
                &bytes[pixels + line * static_cast<unsigned int>(topDown ? y : height - 1 - y) +
                       bit / 8];
            const std::uint32_t index = isGreen(x, y) ? 1 : 0;
            const std::uint32_t colour =
                bitCount == 16 ? (isGreen(x, y) ? 0x03E0U : 0x7C00U) : table[index];
            if (bitCount <= 8)
                *at |= static_cast<std::byte>(index << (8U - bitCount - bit % 8));
            else
                std::memcpy(at, &colour, bitCount / 8U);
        }
    }
    return bytes;
}

/// Whether each pixel of the pattern is there as a square so many pixels wide, and nothing else.
void expectPattern(const Canvas& canvas, int left, int top, int zoom)
{
    const RECT expected = {left, top, left + width * zoom, top + height * zoom};
    for (int y = 0; y < Canvas::size; ++y)
        for (int x = 0; x < Canvas::size; ++x)
            ASSERT_EQ(canvas.at(x, y), PtInRect(&expected, {x, y}) == 0 ? Canvas::paper
                                       : isGreen((x - left) / zoom, (y - top) / zoom) ? green
                                                                                      : red)
                << x << ' ' << y;
}

TEST(Drawing, PicturesOfEveryDepth)
{
    ResourceModule::Resources resources = {{200, pattern(8, false, 2)}, {201, pattern(1, true, 2)}};
    for (const unsigned int bitCount : {1, 4, 8, 16, 24, 32})
        for (const bool topDown : {false, true})
            resources[static_cast<std::uint16_t>(bitCount + (topDown ? 100 : 0))] =
                pattern(static_cast<std::uint16_t>(bitCount), topDown);
    const ResourceModule module(2, resources);
    const LogCapture log;
    for (const auto& [id, bytes] : resources) {
        for (const int zoom : {1, 3}) {
            SCOPED_TRACE(id);
            const Canvas canvas;
            SetStretchBltMode(canvas.dc(), HALFTONE);
            const Area destination = {4, 2, width * zoom, height * zoom};
            EXPECT_TRUE(showDib(canvas.dc(), id, destination, whole, module.get()));
            EXPECT_TRUE(showDib(canvas.dc(), id, {0, 0, 0, 0}, whole, module.get()));
            expectPattern(canvas, 4, 2, zoom);
            EXPECT_EQ(GetStretchBltMode(canvas.dc()), HALFTONE);
        }
    }
    EXPECT_EQ(log.text(), "");
}

TEST(Drawing, ResourcesThatAreNoPictures)
{
    const ResourceModule module(2, {{1, std::vector<std::byte>(100)}});
    const Canvas canvas;
    for (const bool exists : {false, true}) {
        const LogCapture log;
        EXPECT_FALSE(showDib(canvas.dc(), exists ? 1 : 999, whole, whole, module.get()));
        EXPECT_EQ(log.text(), "Utillib::showDib(..) resource error\n");
    }
}

TEST(Drawing, SolidRectangles)
{
    const std::pair<RECT, RECT> rows[] = {
        {{10, 10, 20, 20}, {9, 9, 20, 20}},
        {{3, 5, 6, 8}, {2, 4, 6, 8}},
        {{10, 10, 12, 40}, {}},
        {{10, 10, 30, 12}, {}},
        {{20, 20, 10, 10}, {}},
    };
    for (const auto& [asked, painted] : rows) {
        const Canvas canvas;
        const HGDIOBJ brush = GetCurrentObject(canvas.dc(), OBJ_BRUSH);
        drawSolidRect(canvas.dc(), asked.left, asked.top, asked.right, asked.bottom, red);
        for (int y = 0; y < Canvas::size; ++y)
            for (int x = 0; x < Canvas::size; ++x)
                ASSERT_EQ(canvas.at(x, y), PtInRect(&painted, {x, y}) != 0 ? red : Canvas::paper);
        EXPECT_EQ(GetCurrentObject(canvas.dc(), OBJ_BRUSH), brush);
    }
}

} // namespace
} // namespace Pelmora::Native
