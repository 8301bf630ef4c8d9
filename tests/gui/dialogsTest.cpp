#include "pelmora/gui/dialogs.h"

#include "pelmora/gui/FontUtil.h"

#include "tests/LogCapture.h"
#include "tests/gui/ResourceModule.h"
#include "tests/gui/Window.h"
#include "tests/gui/sampleDialogs.h"

#include <functional>
#include <stdexcept>
#include <tuple>

#include <gtest/gtest.h>

#include <commctrl.h>

namespace Pelmora::Native
{
namespace
{

INT_PTR CALLBACK ignore(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/// A dialog with three buttons, the first of which has the focus.
class FocusTest : public testing::Test
{
protected:
    FocusTest()
    {
        const auto bytes = built({.items = 3}).bytes;
        dialog = CreateDialogIndirectParamA(GetModuleHandleA(nullptr),
                                            reinterpret_cast<const DLGTEMPLATE*>(bytes.data()),
                                            nullptr, ignore, 0);
        ShowWindow(dialog, SW_SHOW);
        SetFocus(button(0));
    }
    ~FocusTest() override { DestroyWindow(dialog); }

    HWND button(int index) const { return GetDlgItem(dialog, 100 + index); }
    bool isDefault(int index) const
    {
        return (GetWindowLongA(button(index), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    }

    HWND dialog;
};

TEST_F(FocusTest, MovesOnFromWhatCannotKeepIt)
{
    EXPECT_FALSE(disableControl(button(0)));
    EXPECT_EQ(GetFocus(), button(1));
    EXPECT_TRUE(isDefault(1));
    EXPECT_TRUE(disableControl(button(0))); // it was disabled already
    EXPECT_TRUE(showControl(button(1), false));
    EXPECT_EQ(GetFocus(), button(2));
    EXPECT_TRUE(isDefault(2) && !isDefault(1));
    EXPECT_TRUE(enableControl(button(0), true));
    EXPECT_FALSE(enableControl(button(2), false)); // from the last to the first
    EXPECT_EQ(GetFocus(), button(0));

    const Window combo("COMBOBOX", WS_CHILD | WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWN, dialog);
    SetFocus(combo.get());
    ASSERT_NE(GetFocus(), combo.get()); // its edit control has it
    disableControl(combo.get());
    EXPECT_EQ(GetFocus(), button(0));
}

TEST_F(FocusTest, StaysWhereItCan)
{
    disableControl(button(1));
    showControl(button(2), false);
    EXPECT_FALSE(enableControl(button(1), false)); // as it is
    EXPECT_TRUE(enableControl(button(0), true));   // as it is
    EXPECT_EQ(GetFocus(), button(0));
}

TEST(Dialogs, ComboBoxes)
{
    const INITCOMMONCONTROLSEX extended = {sizeof extended, ICC_USEREX_CLASSES};
    InitCommonControlsEx(&extended);
    const std::tuple<const char*, DWORD, bool, bool> rows[] = {
        {"ComboBox", CBS_SIMPLE, true, false},
        {"COMBOBOX", CBS_DROPDOWN, true, false},
        {"combobox", CBS_DROPDOWNLIST, true, true},
        {"ComboBoxEx32", CBS_DROPDOWNLIST, false, true},
        {"EDIT", 0, false, false},
    };
    const Window parent("STATIC", WS_POPUP);
    for (const auto& [className, style, isCombo, isList] : rows) {
        const Window window(className, WS_CHILD | style, parent.get());
        EXPECT_EQ(isComboBox(window.get()), isCombo) << className;
        EXPECT_EQ(isDropDownList(window.get()), isList) << className;
    }
}

class TestDialog : public ModalDialog
{
public:
    std::function<void(UINT)> handler;
    using ModalDialog::end;

protected:
    INT_PTR handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        handler(message);
        return ModalDialog::handleMessage(message, wParam, lParam);
    }
};

TEST(Dialogs, RunUntilTheyEnd)
{
    const DialogTemplate plain(built({.caption = u"Bed \u3042"}).bytes);
    TestDialog dialog;
    const auto resultOf = [&](const std::function<void()>& atBegin) {
        dialog.handler = [&](UINT message) {
            if (message == WM_INITDIALOG)
                atBegin();
        };
        return dialog.run(plain, nullptr);
    };
    EXPECT_EQ(resultOf([&] { PostMessageW(dialog.window(), WM_COMMAND, IDOK, 0); }), IDOK);
    EXPECT_EQ(resultOf([&] { PostMessageW(dialog.window(), WM_CLOSE, 0, 0); }), IDCANCEL);
    EXPECT_EQ(resultOf([&] {
                  wchar_t title[20] = {};
                  GetWindowTextW(dialog.window(), title, 20);
                  dialog.end(std::wstring_view(title) == L"Bed \u3042" ? 42 : 0);
              }),
              42);
    for (const UINT when : {WM_INITDIALOG, WM_COMMAND, WM_DESTROY}) {
        dialog.handler = [&](UINT message) {
            if (message == WM_INITDIALOG)
                PostMessageW(dialog.window(), WM_COMMAND, IDOK, 0);
            if (message == when)
                throw std::runtime_error("dose");
        };
        EXPECT_THROW(dialog.run(plain, nullptr), std::runtime_error) << when;
    }
    EXPECT_EQ(dialog.window(), nullptr);
}

TEST(Dialogs, RunFromResources)
{
    auto cut = built({}).bytes;
    cut.pop_back();
    const auto unknownClass = built({.windowClass = u"No such class"}).bytes;
    const ResourceModule module(5, {{1, built({}).bytes}, {2, cut}, {3, unknownClass}});
    TestDialog dialog;
    dialog.handler = [&](UINT) { dialog.end(42); };
    EXPECT_EQ(runModalDialog(dialog, 1, nullptr, module.get()), 42);
    for (const unsigned int id : {2, 3, 999}) {
        const LogCapture log;
        const auto result =
            runModalDialog(dialog, static_cast<std::uint16_t>(id), nullptr, module.get());
        EXPECT_EQ(result, IDCANCEL);
        const std::string line =
            "runModalDialog(" + std::to_string(id) + ") - initialisation error: ";
        EXPECT_EQ(log.text().substr(0, line.size()), line);
    }
    DialogTemplate loaded;
    EXPECT_TRUE(loaded.load(module.get(), 2));
    EXPECT_FALSE(loaded.load(module.get(), 999));
    EXPECT_FALSE(loaded.bytes().empty()); // as it was
}

TEST(Dialogs, UnitsAreThoseOfTheFont)
{
    EXPECT_EQ(DialogTemplate().dialogToPixels({4, 8}).x, -1);
    EXPECT_EQ(DialogTemplate().pixelsToDialog({4, 8}).y, -1);
    const DialogTemplate dialog(built({.face = u"Liberation Sans"}).bytes);
    Font font; // 8 points are 10.67 pixels
    EXPECT_TRUE(FontUtil::create(font, "Liberation Sans", -11, false, false));
    const int line = dialog.getBaseUnits().y;
    EXPECT_GE(line, FontUtil::textHeight(font.get())); // and external leading
    EXPECT_EQ(dialog.dialogToPixels({7, -3}).y, MulDiv(-3, line, 8));
    EXPECT_EQ(dialog.pixelsToDialog({101, 99}).y, MulDiv(99, 8, line));
}

} // namespace
} // namespace Pelmora::Native
