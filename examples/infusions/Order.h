#pragma once

#include "pelmora/pelmora.h"

#include <optional>
#include <stdexcept>
#include <string_view>

namespace Infusions
{

/// An order that cannot be carried out; the message gives the reason.
class OrderError : public std::runtime_error
{
public:
    explicit OrderError(const Pelmora::GString& reason) : std::runtime_error(reason.to_utf8()) {}
};

/// An infusion as a physician orders it: so much of a drug in a time, out of a bag.
struct Order {
    Pelmora::DrugEnum drug;
    Pelmora::UnitValue dose;
    std::optional<Pelmora::UnitValue> weight; ///< the patient's
    Pelmora::UnitValue amount;                ///< of the drug in the bag
    Pelmora::UnitValue volume;                ///< of the bag
};

/// Reads "DOPAMINE | 5 mcg/kg/min | 70 kg | 400 mg | 250 mL"; a weight that is not needed is "-".
/// Throws OrderError when the line does not say all that, or in units that do not fit.
Order parseOrder(std::string_view line);

Pelmora::UnitValue concentration(const Order& order);

/// What to set on the pump, as `pumpSetting` rounds it. Throws OrderError when the order's units do
/// not make a rate of volume, and for a rate that no pump runs at.
Pelmora::UnitValue pumpRate(const Order& order);

} // namespace Infusions
