#pragma once

#include "pelmora/gui/DialogTemplateBytes.h"

// Internal: the rule of `setDialogTemplateFont`, apart from the questions to the system.

namespace Pelmora::Native
{

inline void applyFontRule(DialogTemplateBytes& dialog, bool isNonAnsiSystem, bool hasSmallFonts)
{
    constexpr std::int16_t pointSize = 7;
    if (isNonAnsiSystem)
        dialog.setFontSize(pointSize); // the template's face has the system's characters
    else if (hasSmallFonts)
        dialog.setFont("Small Fonts", pointSize);
}

} // namespace Pelmora::Native
