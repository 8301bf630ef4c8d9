#pragma once

#include <new>
#include <string_view>
#include <utility>

#include <windows.h>

#include <combaseapi.h>
#include <oleauto.h>

// Owners of COM's objects, texts and values, and of COM itself. Internal to platform/win32/.

namespace Pelmora::Native::Platform
{

/// One reference to a COM object, or none.
template <class Interface>
class ComPointer
{
public:
    ComPointer() noexcept = default;
    ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComPointer& operator=(ComPointer&& other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPointer() { reset(); }

    /// Where a function puts a reference; the one held before is given back.
    Interface** receive() noexcept
    {
        reset();
        return &object_;
    }

    Interface* get() const noexcept { return object_; }
    Interface* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

private:
    void reset() noexcept
    {
        if (Interface* object = std::exchange(object_, nullptr))
            object->Release();
    }

    Interface* object_ = nullptr;
};

/// A text in COM's form.
class Bstr
{
public:
    Bstr() noexcept = default;
    explicit Bstr(std::wstring_view text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())))
    {
        if (text_ == nullptr)
            throw std::bad_alloc();
    }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text_); }

    BSTR get() const noexcept { return text_; }
    BSTR* receive() noexcept { return &text_; }
    std::wstring_view view() const noexcept { return {text_, SysStringLen(text_)}; }

private:
    BSTR text_ = nullptr;
};

/// A value of any of COM's types; owns what it leads to.
class Variant : public VARIANT
{
public:
    Variant() noexcept { VariantInit(this); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { VariantClear(this); }

    /// The text that it holds; "" when it holds something else.
    std::wstring_view text() const noexcept
    {
        return vt == VT_BSTR ? std::wstring_view(bstrVal, SysStringLen(bstrVal))
                             : std::wstring_view();
    }
};

/// Keeps COM running while it lives. A thread that has not initialised COM can use it meanwhile, in
/// the multi-threaded apartment; one that has keeps its own apartment. Objects may outlive a
/// thread's own initialisation. Needs Windows 8.
class ComApartment
{
public:
    ComApartment() noexcept : status_(CoIncrementMTAUsage(&cookie_)) {}
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment()
    {
        if (SUCCEEDED(status_))
            CoDecrementMTAUsage(cookie_);
    }

    HRESULT status() const noexcept { return status_; }

private:
    CO_MTA_USAGE_COOKIE cookie_ = nullptr;
    HRESULT status_;
};

} // namespace Pelmora::Native::Platform
