#pragma once

#include "pelmora/export.h"
#include "pelmora/gui/DialogTemplateBytes.h"

#include <exception>
#include <optional>

#include <windows.h>

namespace Pelmora::Native
{

/// A dialog that is made from a template in memory and keeps its caller waiting until it ends; see
/// `runModalDialog`. Derived classes say what it does with its messages. The dialog is a Unicode
/// window: its messages are those of the system's wide functions.
///
/// An exception of the handler never passes through the system: it ends the dialog, and `run`
/// throws it again. An object can run again after its end, and belongs to one thread.
class PELMORA_API ModalDialog
{
public:
    /// Not running.
    ModalDialog() = default;
    ModalDialog(const ModalDialog&) = delete;
    ModalDialog& operator=(const ModalDialog&) = delete;
    virtual ~ModalDialog() = default;

    /// Runs the dialog above `parent`, a window of this thread or null, which is disabled
    /// meanwhile, and gives what `end` was called with. None when it cannot be made: the template
    /// is not valid or the system refuses it or the parent, and GetLastError may say why. None also
    /// when it ends without `end`, because the program is to quit: WM_QUIT stays for the caller's
    /// own loop then. `module` is where its pictures and menus are, null for the program itself.
    /// Requires: it does not run already; a window class that the template names has
    /// DLGWINDOWEXTRA bytes.
    std::optional<INT_PTR> run(const DialogTemplateBytes& dialog, HWND parent,
                               HMODULE module = nullptr);

    /// Whether the dialog of the last `run` was made.
    bool begun() const noexcept { return begun_; }

    /// The dialog from WM_INITDIALOG until `run` returns, otherwise null.
    HWND window() const noexcept { return window_; }

protected:
    /// A message, beginning with WM_INITDIALOG; what the dialog procedure is to return, which is
    /// not 0 for a message that was dealt with. Where a message has a result of its own, that is
    /// set as in any dialog procedure (DWLP_MSGRESULT). This one ends the dialog with IDOK or
    /// IDCANCEL when such a button is pressed, and with IDCANCEL when it is closed.
    virtual INT_PTR handleMessage(UINT message, WPARAM wParam, LPARAM lParam);

    /// Ends the dialog when the handler returns. Do not call DestroyWindow instead. Requires: the
    /// dialog runs.
    void end(INT_PTR result);

private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR handleSafely(UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    HWND window_ = nullptr;
    bool begun_ = false;
    bool ended_ = false;
    std::exception_ptr failure_;
};

} // namespace Pelmora::Native
