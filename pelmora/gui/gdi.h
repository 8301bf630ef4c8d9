#pragma once

#include <memory>
#include <type_traits>

#include <windows.h>

// Internal: owners of what GDI lends.

namespace Pelmora::Native::Gdi
{

struct ObjectDelete {
    void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
};

/// A pen, brush or bitmap of one's own; may be null.
template <class Handle>
using Object = std::unique_ptr<std::remove_pointer_t<Handle>, ObjectDelete>;

/// Keeps an object selected into a device context; then selects the previous one again.
class Selection
{
public:
    Selection(HDC dc, HGDIOBJ object) noexcept : dc_(dc), previous_(SelectObject(dc, object)) {}
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection() { SelectObject(dc_, previous_); }

private:
    HDC dc_;
    HGDIOBJ previous_;
};

/// The screen's device context.
class ScreenDc
{
public:
    ScreenDc() noexcept : dc_(GetDC(nullptr)) {}
    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;
    ~ScreenDc() { ReleaseDC(nullptr, dc_); }
    HDC get() const noexcept { return dc_; }

private:
    HDC dc_;
};

/// A device context in memory, compatible with the screen.
class MemoryDc
{
public:
    MemoryDc() noexcept : dc_(CreateCompatibleDC(nullptr)) {}
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    ~MemoryDc() { DeleteDC(dc_); }
    HDC get() const noexcept { return dc_; }

private:
    HDC dc_;
};

/// The result of `use` for the device context, or if that is null for one of the kind `NewDc`.
template <class NewDc, class Use>
auto withDc(HDC dc, Use use)
{
    return dc != nullptr ? use(dc) : use(NewDc().get());
}

} // namespace Pelmora::Native::Gdi
