#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/Catalogue.h"

#include <array>

namespace Pelmora::Native
{

/// The message identifiers of the two units in which laboratory values are labelled. The units
/// engine has no deci prefix and never makes these texts itself.
inline constexpr std::array<const char*, 2> labUnitLabels = {"r|mg/dL", "r|mmol/L"};

/// Looks up the two labels, which every catalogue is expected to hold, and discards what it finds.
/// Nothing inside the library needs it.
PELMORA_API void look_up_lab_unit_labels(const Catalogue& catalogue);

} // namespace Pelmora::Native
