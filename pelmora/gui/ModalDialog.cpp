#include "pelmora/gui/ModalDialog.h"

#include <utility>

namespace Pelmora::Native
{

std::optional<INT_PTR> ModalDialog::run(const DialogTemplateBytes& dialog, HWND parent,
                                        HMODULE module)
{
    begun_ = false;
    ended_ = false;
    if (!dialog.valid()) { // the system would read beyond its end
        SetLastError(ERROR_INVALID_DATA);
        return std::nullopt;
    }
    const HINSTANCE instance = module != nullptr ? module : GetModuleHandleA(nullptr);
    const HWND owner = GetAncestor(parent, GA_ROOT); // what the system disables
    const bool ownerIsEnabled = IsWindowEnabled(owner) != 0;
    const auto* bytes =
        reinterpret_cast<const DLGTEMPLATE*>(dialog.bytes().data()); // NOLINT: that is what it is
    const INT_PTR result =
        DialogBoxIndirectParamW(instance, bytes, parent, &ModalDialog::procedure,
                                reinterpret_cast<LPARAM>(this)); // NOLINT: comes back unchanged
    window_ = nullptr;
    if (begun_ && !ended_ && ownerIsEnabled)
        EnableWindow(owner, TRUE); // some systems leave that to EndDialog
    if (const auto failure = std::exchange(failure_, nullptr))
        std::rethrow_exception(failure);
    return ended_ ? std::optional(result) : std::nullopt;
}

INT_PTR CALLBACK ModalDialog::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        auto* const begun = reinterpret_cast<ModalDialog*>(lParam); // NOLINT: `run` gave it
        begun->window_ = window;
        begun->begun_ = true;
    }
    auto* const dialog =
        reinterpret_cast<ModalDialog*>(GetWindowLongPtrW(window, DWLP_USER)); // NOLINT: as above
    if (dialog == nullptr)
        return FALSE; // messages before the first
    return dialog->handleSafely(message, wParam, lParam);
}

INT_PTR ModalDialog::handleSafely(UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (failure_ != nullptr)
        return FALSE;
    try {
        return handleMessage(message, wParam, lParam);
    } catch (...) {
        failure_ = std::current_exception();
        end(IDCANCEL);
        return FALSE;
    }
}

INT_PTR ModalDialog::handleMessage(UINT message, WPARAM wParam, LPARAM)
{
    if (message == WM_INITDIALOG)
        return TRUE; // the first control gets the focus
    const WORD command = LOWORD(wParam);
    const bool isPressed = message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED;
    if (!isPressed || (command != IDOK && command != IDCANCEL))
        return FALSE;
    end(command);
    return TRUE;
}

void ModalDialog::end(INT_PTR result)
{
    ended_ = true;
    EndDialog(window_, result);
}

} // namespace Pelmora::Native
