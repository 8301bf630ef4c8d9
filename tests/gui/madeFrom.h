#pragma once

#include <cstddef>
#include <vector>

#include <windows.h>

namespace Pelmora::Native
{

/// A dialog that the system makes of a template; null if it refuses.
inline HWND madeFrom(const std::vector<std::byte>& dialog, HWND parent)
{
    const DLGPROC ignore = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; };
    return CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
                                      reinterpret_cast<const DLGTEMPLATE*>(dialog.data()), parent,
                                      ignore, 0);
}

} // namespace Pelmora::Native
