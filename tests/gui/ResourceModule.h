#pragma once

#include "tests/TemporaryFolder.h"

#include <cstdint>
#include <map>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

namespace Pelmora::Native
{

/// Where the system's own modules lie.
inline std::filesystem::path systemFolder()
{
    wchar_t folder[MAX_PATH] = {};
    GetSystemDirectoryW(folder, MAX_PATH);
    return folder;
}

/// A module that holds nothing but these resources of one type.
class ResourceModule
{
public:
    using Resources = std::map<std::uint16_t, std::vector<std::byte>>;

    ResourceModule(const char* type, Resources all)
    {
        const std::filesystem::path file = folder_.path("resources.dll");
        std::filesystem::copy_file(systemFolder() / "version.dll", file);
        const HANDLE update = BeginUpdateResourceW(file.c_str(), TRUE);
        for (auto& [id, bytes] : all)
            UpdateResourceA(update, type, MAKEINTRESOURCEA(id), 0, bytes.data(),
                            static_cast<DWORD>(bytes.size()));
        EXPECT_NE(EndUpdateResourceW(update, FALSE), 0);
        module_ = LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    }
    ~ResourceModule() { FreeLibrary(module_); }

    HMODULE get() const { return module_; }

private:
    TemporaryFolder folder_;
    HMODULE module_;
};

} // namespace Pelmora::Native
