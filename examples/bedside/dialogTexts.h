#pragma once

#include <windows.h>

namespace Bedside
{

/// Sets the texts that stay, in the language of the user.
void showDialogTexts(HWND dialog, double patientKg);

} // namespace Bedside
