#pragma once

#include "pelmora/units/unitKinds.h"

namespace Pelmora::Native
{

/// (prefix factor x kind factor) to the power `exponent`: the factor from one prefixed unit to its
/// ISO kind. A prefix out of range has the factor 0, whose negative powers are infinite; a kind
/// out of range has the factor 1.
///
/// Correctly rounded for every prefix, kind and exponent, with nothing but IEEE double arithmetic:
/// the C runtimes' `pow` differ in the last bits, and with them the two builds would print
/// different digits. Exponents -8 to 8 come from a table.
double isoFactor(UnitPrefix prefix, UnitTypeEnum kind, std::int32_t exponent) noexcept;

} // namespace Pelmora::Native
