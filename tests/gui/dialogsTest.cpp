#include "pelmora/gui/dialogs.h"

#include "pelmora/gui/FontUtil.h"

#include "tests/LogCapture.h"
#include "tests/gui/ResourceModule.h"
#include "tests/gui/madeFrom.h"
#include "tests/gui/sampleDialogs.h"

#include <array>
#include <functional>
#include <stdexcept>
#include <tuple>

#include <commctrl.h>

namespace Pelmora::Native
{
namespace
{

/// A dialog with three buttons, the first of which has the focus.
class DialogsTest : public testing::Test
{
protected:
    DialogsTest()
    {
        const INITCOMMONCONTROLSEX all = {sizeof all, 0xFFFF};
        InitCommonControlsEx(&all);
        ShowWindow(dialog, SW_SHOW);
        SetFocus(button(0));
    }
    ~DialogsTest() override { DestroyWindow(dialog); }

    HWND button(int index) const { return GetDlgItem(dialog, 100 + index); }
    HWND child(const char* className, DWORD style) const
    {
        return CreateWindowExA(0, className, "", WS_CHILD | style, 0, 0, 100, 100, dialog, nullptr,
                               nullptr, nullptr);
    }

    HWND dialog = madeFrom(built({.items = 3}), nullptr);
};

TEST_F(DialogsTest, TheFocusMovesOnFromWhatCannotKeepIt)
{
    EXPECT_FALSE(disableControl(button(1)));
    EXPECT_EQ(GetFocus(), button(0));              // which keeps it
    EXPECT_FALSE(enableControl(button(1), false)); // as it is
    EXPECT_TRUE(enableControl(button(1), true));
    EXPECT_TRUE(enableControl(button(1), true)); // as it is
    EXPECT_FALSE(disableControl(button(0)));
    EXPECT_EQ(GetFocus(), button(1));
    EXPECT_EQ(GetWindowLongA(button(1), GWL_STYLE) & BS_TYPEMASK, BS_DEFPUSHBUTTON);
    EXPECT_TRUE(disableControl(button(0))); // it was disabled already
    EXPECT_TRUE(showControl(button(1), false));
    EXPECT_EQ(GetFocus(), button(2));
    EXPECT_EQ(GetWindowLongA(button(2), GWL_STYLE) & BS_TYPEMASK, BS_DEFPUSHBUTTON);
    EXPECT_TRUE(enableControl(button(0), true));
    EXPECT_FALSE(enableControl(button(2), false)); // from the last to the first
    EXPECT_EQ(GetFocus(), button(0));

    const HWND combo = child("COMBOBOX", WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWN);
    SetFocus(combo);
    ASSERT_NE(GetFocus(), combo); // its edit control has it
    disableControl(combo);
    EXPECT_EQ(GetFocus(), button(0));
}

TEST_F(DialogsTest, ComboBoxesAreRecognized)
{
    const std::tuple<const char*, DWORD, bool, bool> rows[] = {
        {"ComboBox", CBS_SIMPLE, true, false},
        {"combobox", CBS_DROPDOWNLIST, true, true},
        {"ComboBoxEx32", CBS_DROPDOWNLIST, false, true},
        {"EDIT", 0, false, false},
    };
    for (const auto& [className, style, isCombo, isList] : rows) {
        const HWND window = child(className, style);
        EXPECT_EQ(isComboBox(window), isCombo) << className;
        EXPECT_EQ(isDropDownList(window), isList) << className;
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
    const DialogTemplate plain(built({.caption = u"Bed \u3042"}));
    TestDialog dialog;
    for (const auto& [sent, result] : {std::pair(UINT(WM_COMMAND), IDOK), {WM_CLOSE, IDCANCEL}}) {
        dialog.handler = [&, sent = sent](UINT message) {
            if (message != WM_INITDIALOG)
                return;
            wchar_t title[20] = {};
            GetWindowTextW(dialog.window(), title, 20);
            EXPECT_STREQ(title, L"Bed \u3042");
            PostMessageW(dialog.window(), WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_SETFOCUS), 0);
            PostMessageW(dialog.window(), sent, IDOK, 0);
        };
        EXPECT_EQ(dialog.run(plain, nullptr), result);
    }
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

TEST_F(DialogsTest, QuittingGivesNoResultAndIsLeftToTheHost)
{
    const ResourceModule module(RT_DIALOG, {{1, built({})}});
    TestDialog modal;
    modal.handler = [](UINT message) {
        if (message == WM_INITDIALOG)
            PostQuitMessage(7);
    };
    const std::function<bool()> rows[] = {
        [&] { return modal.run(DialogTemplate(built({})), button(0)) == std::nullopt; },
        [&] { return runModalDialog(modal, 1, dialog, module.get()) == IDCANCEL; },
    };
    for (const auto& givesNone : rows) {
        const LogCapture log;
        EXPECT_TRUE(givesNone());
        EXPECT_TRUE(IsWindowEnabled(dialog));
        MSG quit = {};
        while (GetMessageW(&quit, nullptr, 0, 0) > 0)
            DispatchMessageW(&quit);
        EXPECT_EQ(quit.wParam, 7U);
        EXPECT_EQ(log.text(), "");
    }
}

TEST(Dialogs, RunFromResources)
{
    const ResourceModule module(
        RT_DIALOG, {{1, built({})}, {2, Bytes(20)}, {3, built({.windowClass = u"No such class"})}});
    TestDialog dialog;
    dialog.handler = [&](UINT) { dialog.end(42); };
    EXPECT_EQ(runModalDialog(dialog, 1, nullptr, module.get()), 42);
    for (const auto id : std::to_array<std::uint16_t>({2, 3, 999})) {
        const LogCapture log;
        EXPECT_EQ(runModalDialog(dialog, id, nullptr, module.get()), IDCANCEL);
        EXPECT_TRUE(log.text().starts_with("runModalDialog(" + std::to_string(id) +
                                           ") - initialisation error: "));
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
    const DialogTemplate dialog(built({.face = u"Liberation Sans"}));
    Font font; // 8 points are 10.67 pixels
    EXPECT_TRUE(FontUtil::create(font, "Liberation Sans", -11, false, false));
    const int line = dialog.getBaseUnits().y;
    EXPECT_GE(line, FontUtil::textHeight(font.get()));      // and external leading
    for (std::uint16_t points = 7; points < 15; ++points) { // the average width is rounded
        const Bytes sized = built({.pointSize = points, .face = u"Liberation Sans"});
        const HWND window = madeFrom(sized, nullptr);
        RECT pixels = {400, 0, 0, 0};
        EXPECT_TRUE(MapDialogRect(window, &pixels) && DestroyWindow(window));
        EXPECT_EQ(DialogTemplate(sized).dialogToPixels({400, 0}).x, pixels.left) << points;
    }
    EXPECT_EQ(dialog.dialogToPixels({7, -3}).y, MulDiv(-3, line, 8));
    EXPECT_EQ(dialog.pixelsToDialog({101, 99}).y, MulDiv(99, 8, line));
}

} // namespace
} // namespace Pelmora::Native
