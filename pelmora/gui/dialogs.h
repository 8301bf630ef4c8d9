#pragma once

#include "pelmora/export.h"
#include "pelmora/gui/DialogTemplate.h"
#include "pelmora/gui/ModalDialog.h"

#include <cstdint>

#include <windows.h>

// Dialogs and their controls. Windows belong to one thread, which is the one to call this for them.

namespace Pelmora::Native
{

/// Runs a dialog from a template in a module's resources, null for the program's own, with the
/// font that `setDialogTemplateFont` chooses, and gives its result. IDCANCEL, with one line in the
/// error log, when there is no such template or no dialog can be made of it, and without one when
/// the program is to quit. What the dialog throws is thrown.
PELMORA_API INT_PTR runModalDialog(ModalDialog& dialog, std::uint16_t resource, HWND parent,
                                   HMODULE module = nullptr);

/// Gives a template the font that the system reads best at a small size: where the system's
/// character set is not ANSI, 7 points of the template's own face, if it has one; elsewhere "Small
/// Fonts" of 7 points, if that is installed.
PELMORA_API void setDialogTemplateFont(DialogTemplateBytes& dialog);

/// Disables a control, and gives whether it was disabled before. If it or a window within it has
/// the keyboard focus, the next control in tab order gets that first, if there is one.
PELMORA_API bool disableControl(HWND control);

/// Enables a control, or disables it as `disableControl` does. If it is in that state already,
/// nothing is done and the result is whether it is enabled; otherwise whether it was disabled.
PELMORA_API bool enableControl(HWND control, bool enable);

/// Shows a control, or hides it and passes the focus on first, as above. Gives whether it was
/// visible before.
PELMORA_API bool showControl(HWND control, bool show);

/// Whether the window's class is the system's combo box; ComboBoxEx32 is not.
PELMORA_API bool isComboBox(HWND window);

/// Whether a combo box is a drop-down list, whose text cannot be edited. Requires: `comboBox` is a
/// combo box.
PELMORA_API bool isDropDownList(HWND comboBox);

} // namespace Pelmora::Native
