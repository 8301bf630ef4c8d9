#pragma once

#include <cstdint>

#include <windows.h>

namespace Pelmora::Native
{

/// A picture in memory to draw on, at first of one colour.
class Canvas
{
public:
    static constexpr int size = 40;
    static constexpr COLORREF paper = RGB(10, 20, 30);

    Canvas()
    {
        BITMAPINFO information = {};
        information.bmiHeader = {
            sizeof(BITMAPINFOHEADER), size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_ = CreateDIBSection(dc_, &information, DIB_RGB_COLORS, &bits, nullptr, 0);
        before_ = SelectObject(dc_, bitmap_);
        const RECT all = {0, 0, size, size};
        const HBRUSH brush = CreateSolidBrush(paper);
        FillRect(dc_, &all, brush);
        DeleteObject(brush);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas()
    {
        SelectObject(dc_, before_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }

    HDC dc() const { return dc_; }
    COLORREF at(int x, int y) const { return GetPixel(dc_, x, y); }

private:
    HDC dc_ = CreateCompatibleDC(nullptr);
    HBITMAP bitmap_;
    HGDIOBJ before_;
};

} // namespace Pelmora::Native
