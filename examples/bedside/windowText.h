#pragma once

#include "pelmora/pelmora.h"

#include <windows.h>

// The texts of a dialog's controls, by the controls' numbers. All are UTF-16, whatever the code
// page of the system.

namespace Bedside
{

Pelmora::GString textOf(HWND dialog, int control);

/// Does nothing where the text is shown already, so that what is set each second does not flicker.
void showText(HWND dialog, int control, const Pelmora::GString& text);

/// Adds a row with a number of the program's own.
void addChoice(HWND dialog, int comboBox, const Pelmora::GString& text, int number);

/// Selects the row with this number, if there is one.
void choose(HWND dialog, int comboBox, int number);

/// The number of the selected row, 0 when none is.
int chosen(HWND dialog, int comboBox);

/// Puts a hidden control into the place of another in sight, tab order and focus.
void exchange(HWND dialog, int shown, int hidden);

} // namespace Bedside
