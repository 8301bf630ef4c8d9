#pragma once

#include "OrderFields.h"

#include <windows.h>

// The part of the window where the order is entered.

namespace Bedside
{

/// Fills the lists and enters an order to begin with.
void fillOrderControls(HWND dialog, double patientKg);

/// Enters the textbook's order for the drug that is chosen.
void enterPreset(HWND dialog);

/// What is entered now.
OrderFields orderFields(HWND dialog);

/// Whether a message from this control, with this notification, says that the order was changed.
bool changesOrder(int control, int notification);

/// Lets the user enter the weight where the dose needs it.
void enableWeight(HWND dialog);

/// Lets the user change the order, or only read it.
void lockOrder(HWND dialog, bool lock);

} // namespace Bedside
