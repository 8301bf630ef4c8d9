#pragma once

#include "pelmora/gui/DialogTemplateBytes.h"

namespace Pelmora::Native
{

/// What `setDialogTemplateFont` does to a template on a system with these properties.
void applyFontRule(DialogTemplateBytes& dialog, bool isNonAnsiSystem, bool hasSmallFonts);

} // namespace Pelmora::Native
