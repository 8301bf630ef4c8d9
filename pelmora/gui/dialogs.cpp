#include "pelmora/gui/dialogs.h"

#include "pelmora/gui/FontUtil.h"
#include "pelmora/gui/fontRule.h"
#include "pelmora/log/LogStream.h"
#include "pelmora/registry/systemErrorText.h"

#include <array>

namespace Pelmora::Native
{
namespace
{

bool hasFocus(HWND control)
{
    const HWND focus = GetFocus();
    return focus != nullptr && (focus == control || IsChild(control, focus) != 0);
}

/// The next control in tab order that is not within this one; null if there is none.
HWND nextControl(HWND control)
{
    // The order may turn in circles within the control. No control contains so many others.
    constexpr int mostSteps = 1000;
    const HWND parent = GetParent(control);
    HWND next = GetNextDlgTabItem(parent, control, FALSE);
    for (int step = 0; next != nullptr && IsChild(control, next) != 0; ++step) {
        if (step == mostSteps)
            return nullptr;
        next = GetNextDlgTabItem(parent, next, FALSE);
    }
    return next == control ? nullptr : next;
}

/// To be called before the control becomes unable to have the focus.
void passFocusOn(HWND control)
{
    if (!hasFocus(control))
        return;
    const HWND next = nextControl(control);
    if (next == nullptr)
        return;
    // Dialogs move their default button along with the focus; other parents do nothing.
    SendMessageW(GetParent(control), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), // NOLINT
                 TRUE);
    if (hasFocus(control))
        SetFocus(next);
}

} // namespace

INT_PTR runModalDialog(ModalDialog& dialog, std::uint16_t resource, HWND parent, HMODULE module)
{
    SetLastError(ERROR_SUCCESS);
    DialogTemplate loaded;
    if (loaded.load(module, resource)) {
        setDialogTemplateFont(loaded);
        if (const auto result = dialog.run(loaded, parent, module))
            return *result;
        if (dialog.begun())
            return IDCANCEL;
    }
    const DWORD error = GetLastError();
    const std::string reason =
        error == ERROR_SUCCESS ? "the system gives no reason" : systemErrorText(error);
    get_log() << "runModalDialog(" << resource << ") - initialisation error: " << reason << endl;
    return IDCANCEL;
}

void setDialogTemplateFont(DialogTemplateBytes& dialog)
{
    const bool isNonAnsi = FontUtil::isNonAnsiSystem();
    applyFontRule(dialog, isNonAnsi, !isNonAnsi && FontUtil::hasSmallFonts());
}

bool disableControl(HWND control)
{
    passFocusOn(control);
    return EnableWindow(control, FALSE) != 0;
}

bool enableControl(HWND control, bool enable)
{
    const bool isEnabled = IsWindowEnabled(control) != 0;
    if (isEnabled == enable)
        return isEnabled;
    return enable ? EnableWindow(control, TRUE) != 0 : disableControl(control);
}

bool showControl(HWND control, bool show)
{
    if (!show)
        passFocusOn(control);
    return ShowWindow(control, show ? SW_SHOW : SW_HIDE) != 0;
}

bool isComboBox(HWND window)
{
    // One character longer than "combobox", so that "ComboBoxEx32" is cut to "ComboBoxE" and does
    // not match.
    std::array<char, 10> name = {};
    GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    return lstrcmpiA(name.data(), "combobox") == 0;
}

bool isDropDownList(HWND comboBox)
{
    const auto style = static_cast<DWORD>(GetWindowLongA(comboBox, GWL_STYLE));
    return (style & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
}

} // namespace Pelmora::Native
