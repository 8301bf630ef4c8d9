#pragma once

#include <windows.h>

namespace Pelmora::Native
{

/// A window of a test's own.
class Window
{
public:
    Window(const char* className, DWORD style, HWND parent = nullptr,
           const RECT& area = {0, 0, 100, 100})
        : handle_(CreateWindowExA(0, className, "", style, area.left, area.top,
                                  area.right - area.left, area.bottom - area.top, parent, nullptr,
                                  GetModuleHandleA(nullptr), nullptr))
    {
    }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() { DestroyWindow(handle_); }
    HWND get() const { return handle_; }

private:
    HWND handle_;
};

} // namespace Pelmora::Native
