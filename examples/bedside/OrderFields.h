#pragma once

#include "Infusion.h"

#include "pelmora/pelmora.h"

#include <array>
#include <optional>
#include <string>

namespace Bedside
{

/// The units that the window offers for a dose and for the drug in the bag.
inline constexpr std::array doseUnits = {
    "mcg/kg/min", "mcg/kg/hr", "mcg/min",     "mcg/hr",   "mg/kg/hr",  "mg/min",
    "mg/hr",      "g/hr",      "units/kg/hr", "units/hr", "units/min",
};
inline constexpr std::array amountUnits = {"mcg", "mg", "g", "units"};

/// An order as it stands in the window's fields: numbers as they were typed.
struct OrderFields {
    Pelmora::DrugEnum drug;
    Pelmora::GString dose;
    std::string doseUnit;
    Pelmora::GString weight; ///< in kg; without meaning when the dose is not per kg
    Pelmora::GString amount;
    std::string amountUnit;
    Pelmora::GString volume; ///< in mL
};

/// What the window answers to an order: texts to show, and the infusion that can be started, or a
/// sentence that says why there is none.
struct OrderAnswer {
    Pelmora::GString dose;
    Pelmora::GString concentration;
    Pelmora::GString pumpRate;
    Pelmora::GString error;
    std::optional<Infusion> infusion;
};

/// Never throws for what a user can type.
OrderAnswer answerOrder(const OrderFields& fields);

/// Whether a dose in this unit needs the patient's weight.
bool isPerWeight(const std::string& doseUnit);

/// Shown in place of a missing result.
Pelmora::GString noResult();

} // namespace Bedside
