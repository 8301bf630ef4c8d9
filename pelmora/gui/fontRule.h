#pragma once

#include "pelmora/gui/DialogTemplate.h"

namespace Pelmora::Native
{

/// What `setDialogTemplateFont` does to a template on a system with these properties.
void applyFontRule(DialogTemplate& dialog, bool isNonAnsiSystem, bool hasSmallFonts);

} // namespace Pelmora::Native
