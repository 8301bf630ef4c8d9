#pragma once

#include <windows.h>

namespace Bedside
{

/// Sends a window WM_TIMER in steady intervals while this object lives.
class Timer
{
public:
    Timer(HWND window, UINT milliseconds) noexcept : window_(window)
    {
        SetTimer(window, number, milliseconds, nullptr);
    }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer() { KillTimer(window_, number); }

private:
    static constexpr UINT_PTR number = 1;
    HWND window_;
};

} // namespace Bedside
