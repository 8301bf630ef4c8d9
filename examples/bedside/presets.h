#pragma once

#include "pelmora/pelmora.h"

#include <optional>

namespace Bedside
{

/// The order that a textbook gives for a drug: numbers as they are typed, units as they are
/// offered, the bag's volume in mL.
struct Preset {
    Pelmora::DrugEnum drug;
    const char* dose;
    const char* doseUnit;
    const char* amount;
    const char* amountUnit;
    const char* volume;
};

std::optional<Preset> presetOf(Pelmora::DrugEnum drug);

} // namespace Bedside
