#pragma once

#include "pelmora/pelmora.h"

#include <chrono>

namespace Bedside
{

/// A bag that a pump empties at a steady rate, in mL/hr and mL.
struct Infusion {
    Pelmora::UnitValue rate; ///< as the pump is set
    Pelmora::UnitValue volume;

    /// What the patient has got after some time, in mL: never more than the bag held.
    Pelmora::UnitValue givenAfter(std::chrono::duration<double> elapsed) const;

    bool isEmptyAfter(std::chrono::duration<double> elapsed) const;

    /// How long the rest of the bag lasts, "19 hr 5 min", or a text that says that it is empty.
    Pelmora::GString lastsAfter(std::chrono::duration<double> elapsed) const;
};

} // namespace Bedside
