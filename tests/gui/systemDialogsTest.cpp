// The dialogs of the system's own modules, taken apart by a second reader of templates.

#include "pelmora/gui/DialogTemplate.h"

#include "pelmora/gui/dialogLayout.h"
#include "pelmora/gui/littleEndian.h"

#include "tests/gui/ResourceModule.h"
#include "tests/gui/madeFrom.h"
#include "tests/gui/sampleDialogs.h"

#include <commctrl.h>

namespace Pelmora::Native
{
namespace
{

/// What no change of caption and font may touch: the beginning but for its style, and the items.
Bytes otherParts(const DialogTemplate& dialog)
{
    const DialogParts parts = dialogParts(dialog.bytes()).value();
    Bytes bytes(dialog.bytes().begin(), dialog.bytes().end());
    bytes.resize(std::max(bytes.size(), alignedTo4(parts.items)));
    bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(parts.caption),
                bytes.begin() + static_cast<std::ptrdiff_t>(alignedTo4(parts.items)));
    writeNumber<std::uint32_t>(bytes, parts.layout->style, 0);
    return bytes;
}

/// Where the template puts each control, in dialog units.
std::vector<RECT> placesOf(const Bytes& bytes)
{
    const DialogParts parts = dialogParts(bytes).value();
    const auto word = [&](std::size_t at) { return readNumber<std::int16_t>(bytes, at); };
    const auto afterText = [&](std::size_t at) {
        for (; word(at) != 0 && word(at) != -1; at += 2) {
        }
        return at + (word(at) == 0 ? 2 : 4);
    };
    std::vector<RECT> places;
    for (std::size_t at = parts.items; places.size() < parts.itemCount;) {
        at = alignedTo4(at) + parts.layout->itemHeaderSize;
        const std::size_t corner = at - (parts.layout->extended ? 12 : 10);
        places.push_back({word(corner), word(corner + 2), 0, 0});
        at = afterText(afterText(at));
        at += parts.layout->extended ? 2 + word(at) : std::max<int>(word(at), 2);
    }
    return places;
}

void expectLook(HWND window)
{
    LOGFONTW font = {};
    const LRESULT handle = SendMessageW(window, WM_GETFONT, 0, 0);
    if (GetObjectW(reinterpret_cast<HFONT>(handle), sizeof font, &font) == 0)
        return; // a control that takes none
    EXPECT_STREQ(font.lfFaceName, L"Liberation Sans");
    EXPECT_EQ(font.lfHeight, -12); // 9 points at 96 dots an inch
}

void expectPlace(HWND dialog, HWND control, RECT units)
{
    char className[30] = {};
    GetClassNameA(control, className, sizeof className);
    RECT frame = {};
    GetWindowRect(control, &frame);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&frame), 2);
    MapDialogRect(dialog, &units);
    if (std::string(className) != UPDOWN_CLASSA) { // which goes beside its buddy
        EXPECT_EQ(std::pair(frame.left, frame.top), std::pair(units.left, units.top));
    }
}

/// Changes caption and font; true if the system makes a window of it, for which it needs to know
/// the classes.
bool isMadeAsAsked(DialogTemplate dialog, HWND parent)
{
    const Bytes before = otherParts(dialog);
    dialog.setCaption(u"Bedside \u00E9 \u3042");
    EXPECT_TRUE(dialog.setFont("Liberation Sans", 9));
    EXPECT_TRUE(otherParts(dialog) == before);
    Bytes bytes(dialog.bytes().begin(), dialog.bytes().end());
    const std::size_t at = dialogParts(bytes).value().layout->style;
    writeNumber<std::uint32_t>(bytes, at, WS_POPUP | DS_SETFONT | DS_NOFAILCREATE);
    const HWND window = madeFrom(bytes, parent);
    if (window == nullptr)
        return false;
    wchar_t title[40] = {};
    GetWindowTextW(window, title, 40);
    EXPECT_STREQ(title, L"Bedside \u00E9 \u3042");
    expectLook(window);
    std::vector<HWND> controls;
    for (HWND control = GetTopWindow(window); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        controls.push_back(control);
    const std::vector<RECT> places = placesOf(bytes);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        expectLook(controls[i]);
        if (controls.size() == places.size())
            expectPlace(window, controls[i], places[i]);
    }
    DestroyWindow(window);
    return true;
}

BOOL CALLBACK keepNumber(HMODULE, const char*, char* name, LONG_PTR numbers)
{
    if (IS_INTRESOURCE(name))
        reinterpret_cast<std::vector<std::uint16_t>*>(numbers)->push_back(LOWORD(name));
    return TRUE;
}

TEST(SystemDialogs, TakeAnotherCaptionAndFontAndKeepTheirControls)
{
    const INITCOMMONCONTROLSEX all = {sizeof all, 0xFFFF};
    InitCommonControlsEx(&all);
    const HWND parent = madeFrom(built({}), nullptr);
    int windows = 0;
    for (const auto& entry : std::filesystem::directory_iterator(systemFolder())) {
        const HMODULE module =
            LoadLibraryExW(entry.path().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        std::vector<std::uint16_t> numbers;
        EnumResourceNamesA(module, RT_DIALOG, keepNumber, reinterpret_cast<LONG_PTR>(&numbers));
        for (const std::uint16_t number : numbers) {
            SCOPED_TRACE(entry.path().filename().string() + " " + std::to_string(number));
            DialogTemplate resource;
            ASSERT_TRUE(resource.load(module, number) && resource.valid());
            windows += isMadeAsAsked(resource, parent) ? 1 : 0;
        }
        FreeLibrary(module);
    }
    DestroyWindow(parent);
    EXPECT_GT(windows, 20);
}

} // namespace
} // namespace Pelmora::Native
