#pragma once

#include "pelmora/pelmora.h"

#include <string>

namespace Bedside
{

/// Whether the text is nothing but white space.
bool isBlank(const Pelmora::GString& text);

/// The text without white space at its ends, when that is digits with at most one decimal point
/// among them. Throws Infusions::QuantityError for anything else, also for a comma, which some read
/// as a decimal sign and others as a separator of thousands, and where the language does so too,
/// for a point that may separate thousands.
std::string plainNumber(const Pelmora::GString& text);

} // namespace Bedside
