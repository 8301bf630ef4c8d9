#pragma once

#include "translation/translation.h"

namespace Infusions
{

using Translation::N_;

/// What is said about one field of an order that is not as it should be.
struct FieldTexts {
    const char* missing;
    const char* unreadable; ///< with the reason
};

inline constexpr FieldTexts doseTexts = {N_("the dose is missing"),
                                         N_("the dose cannot be read: %s")};
inline constexpr FieldTexts amountTexts = {N_("the amount of drug in the bag is missing"),
                                           N_("the amount of drug in the bag cannot be read: %s")};
inline constexpr FieldTexts volumeTexts = {N_("the volume of the bag is missing"),
                                           N_("the volume of the bag cannot be read: %s")};
inline constexpr FieldTexts weightTexts = {N_("the weight is missing"),
                                           N_("the weight cannot be read: %s")};

} // namespace Infusions
