#pragma once

#include "pelmora/pelmora.h"

#include <optional>
#include <string_view>
#include <vector>

namespace Infusions
{

/// The drugs that are given as infusions.
std::vector<Pelmora::DrugEnum> infusionDrugs();

/// The drug of a vocabulary name, "DOPAMINE", among those that are given as infusions.
std::optional<Pelmora::DrugEnum> drugOfName(std::string_view vocabularyName);

/// How the drug is called on screen, in the language of the user.
Pelmora::GString displayName(Pelmora::DrugEnum drug);

} // namespace Infusions
