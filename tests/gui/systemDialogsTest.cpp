// Dialogs that others made: every one in the system's own modules.

#include "pelmora/gui/DialogTemplate.h"
#include "pelmora/gui/dialogLayout.h"
#include "pelmora/gui/littleEndian.h"

#include "tests/gui/Window.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include <gtest/gtest.h>

#include <commctrl.h>

namespace Pelmora::Native
{
namespace
{

using Bytes = std::vector<std::byte>;

constexpr wchar_t caption[] = L"Bedside \u00E9 \u3042";
constexpr wchar_t face[] = L"Liberation Sans";

BOOL CALLBACK keepNumber(HMODULE, const char*, char* name, LONG_PTR result)
{
    if (IS_INTRESOURCE(name))
        reinterpret_cast<std::vector<std::uint16_t>*>(result)->push_back(LOWORD(name));
    return TRUE;
}

/// What no change of caption and font may touch: the beginning but for its style, and the items.
std::pair<Bytes, Bytes> unchangedParts(const DialogTemplate& dialog)
{
    const DialogParts parts = dialogParts(dialog.bytes()).value();
    Bytes bytes(dialog.bytes().begin(), dialog.bytes().end());
    writeNumber<std::uint32_t>(bytes, parts.layout->style, 0);
    const auto at = [&](std::size_t offset) {
        return bytes.begin() + static_cast<std::ptrdiff_t>(std::min(offset, bytes.size()));
    };
    return {{bytes.begin(), at(parts.caption)}, {at(alignedTo4(parts.items)), bytes.end()}};
}

INT_PTR CALLBACK ignore(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/// Invisible, and made also when some of its controls cannot be.
HWND made(const DialogTemplate& dialog, HWND parent)
{
    Bytes bytes(dialog.bytes().begin(), dialog.bytes().end());
    const std::size_t at = dialogParts(bytes).value().layout->style;
    const auto style = readNumber<std::uint32_t>(bytes, at) & ~std::uint32_t(WS_VISIBLE);
    writeNumber<std::uint32_t>(bytes, at, style | DS_NOFAILCREATE);
    return CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
                                      reinterpret_cast<const DLGTEMPLATE*>(bytes.data()), parent,
                                      ignore, 0);
}

void expectFont(HWND window)
{
    LOGFONTW font = {};
    const LRESULT handle = SendMessageW(window, WM_GETFONT, 0, 0);
    GetObjectW(reinterpret_cast<HFONT>(handle), sizeof font, &font);
    EXPECT_STREQ(font.lfFaceName, face);
    EXPECT_EQ(font.lfHeight, -12); // 9 points at 96 dots an inch
}

/// Changes caption and font, and looks at what the system makes of it.
void checkDialog(DialogTemplate dialog, HWND parent)
{
    ASSERT_TRUE(dialog.valid());
    const auto before = unchangedParts(dialog);
    dialog.setCaption(caption);
    EXPECT_TRUE(dialog.setFont(GString(face), 9));
    EXPECT_TRUE(unchangedParts(dialog) == before);
    const HWND window = made(dialog, parent);
    if (window == nullptr)
        return; // of a class of its program's
    wchar_t title[40] = {};
    GetWindowTextW(window, title, 40);
    EXPECT_STREQ(title, caption);
    expectFont(window);
    for (HWND control = GetWindow(window, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        if (SendMessageW(control, WM_GETFONT, 0, 0) != 0)
            expectFont(control);
    DestroyWindow(window);
}

TEST(SystemDialogs, KeepAllButCaptionAndFont)
{
    const INITCOMMONCONTROLSEX all = {sizeof all, 0xFFFF};
    InitCommonControlsEx(&all);
    const Window parent("STATIC", WS_POPUP);
    wchar_t folder[MAX_PATH] = {};
    GetSystemDirectoryW(folder, MAX_PATH);
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const HMODULE module =
            LoadLibraryExW(entry.path().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        std::vector<std::uint16_t> ids;
        EnumResourceNamesA(module, RT_DIALOG, keepNumber, reinterpret_cast<LONG_PTR>(&ids));
        for (const std::uint16_t id : ids) {
            SCOPED_TRACE(entry.path().filename().string() + " " + std::to_string(id));
            DialogTemplate dialog;
            ASSERT_TRUE(dialog.load(module, id));
            checkDialog(dialog, parent.get());
            ++count;
        }
        FreeLibrary(module);
    }
    EXPECT_GT(count, 0);
}

} // namespace
} // namespace Pelmora::Native
