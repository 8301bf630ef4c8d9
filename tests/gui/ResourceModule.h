#pragma once

#include "tests/TemporaryFolder.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

namespace Pelmora::Native
{

/// A module that holds nothing but these resources of one type.
class ResourceModule
{
public:
    using Resources = std::map<std::uint16_t, std::vector<std::byte>>;

    ResourceModule(std::uint16_t type, const Resources& all)
    {
        const std::wstring file = folder_.path("resources.dll").wstring();
        wchar_t system[MAX_PATH] = {};
        GetSystemDirectoryW(system, MAX_PATH);
        CopyFileW((std::wstring(system) + L"\\version.dll").c_str(), file.c_str(), FALSE);
        const HANDLE update = BeginUpdateResourceW(file.c_str(), TRUE);
        for (const auto& [id, bytes] : all)
            UpdateResourceW(update, asName(type), asName(id), 0,
                            const_cast<std::byte*>(bytes.data()), // NOLINT: is only read
                            static_cast<DWORD>(bytes.size()));
        EXPECT_NE(EndUpdateResourceW(update, FALSE), 0);
        module_ = LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        EXPECT_NE(module_, nullptr);
    }
    ResourceModule(const ResourceModule&) = delete;
    ResourceModule& operator=(const ResourceModule&) = delete;
    ~ResourceModule() { FreeLibrary(module_); }

    HMODULE get() const { return module_; }

private:
    static const wchar_t* asName(std::uint16_t number)
    {
        return reinterpret_cast<const wchar_t*>(static_cast<std::uintptr_t>(number));
    }

    TemporaryFolder folder_;
    HMODULE module_;
};

} // namespace Pelmora::Native
