#pragma once

#include <windows.h>

// Owners of what GDI lends. None is ever copied.

namespace Pelmora::Native::Gdi
{

/// A pen or a brush of one's own; may be null.
template <class Handle>
class Object
{
public:
    explicit Object(Handle handle) noexcept : handle_(handle) {}
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    ~Object()
    {
        if (handle_ != nullptr)
            DeleteObject(handle_);
    }
    Handle get() const noexcept { return handle_; }

private:
    Handle handle_;
};

/// An object selected into a device context, which gets the previous one back.
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

/// What `use` gives for the device context, or for a new one of that kind when it is null.
template <class NewDc, class Use>
auto withDc(HDC dc, Use use)
{
    return dc != nullptr ? use(dc) : use(NewDc().get());
}

} // namespace Pelmora::Native::Gdi
