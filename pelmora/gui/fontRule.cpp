#include "pelmora/gui/fontRule.h"

namespace Pelmora::Native
{

void applyFontRule(DialogTemplateBytes& dialog, bool isNonAnsiSystem, bool hasSmallFonts)
{
    constexpr std::int16_t pointSize = 7;
    if (isNonAnsiSystem)
        dialog.setFontSize(pointSize); // the face is one that has the system's characters
    else if (hasSmallFonts)
        dialog.setFont("Small Fonts", pointSize);
}

} // namespace Pelmora::Native
