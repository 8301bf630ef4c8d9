#pragma once

#include "pelmora/pelmora.h"

#include <span>
#include <vector>

namespace Bedside
{

/// A laboratory panel that can be asked for.
struct Panel {
    Pelmora::VenousPanels panel;
    const char* name; ///< to be translated
};

/// From "none" on.
std::span<const Panel> panels();

/// One value of the patient's blood, as it is shown.
struct LabText {
    Pelmora::GString name;
    Pelmora::GString value;
};

/// The values of a panel, at most `mostLabTexts`.
std::vector<LabText> labTexts(Pelmora::VenousPanels panel);

inline constexpr int mostLabTexts = 15;

} // namespace Bedside
