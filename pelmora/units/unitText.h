#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"
#include "pelmora/units/UnitValue.h"

#include <string>
#include <string_view>

// The texts of units and values: `toString` and its relatives of UnitElement, Unit and UnitValue.
//
// Numbers follow the process-wide C++ locale (`std::locale::global`) as an output stream would,
// with the decimal point, grouping and digits of that locale; in the classic locale they look as
// printf writes them. Unit texts never depend on a locale. There is no way back: units are not read
// from text. Several threads may make texts at once, while nobody changes the global locale.

namespace Pelmora::Native
{

/// The number with `digits` significant digits in general notation, filled up with zeros behind a
/// point: with 3 digits 5 gives "5.00", 120 "120", 1234.5 "1.23e+03", -5 "-5.0" (the sign counts
/// as a digit, on purpose, and so does a decimal comma of the locale's, which leaves "0,5" as
/// "0,5.0"). With `digits` of 0 or less, 6 significant digits and no filling up.
PELMORA_API std::string formatSignificant(double value, int digits);

/// The digits of a number's text that count as significant: every character but the point and
/// leading zeros, on purpose also signs and the "e" and "+" of an exponent. Sets `hasPoint` when
/// there is a point and leaves it alone otherwise.
PELMORA_API int countSignificantDigits(std::string_view text, bool& hasPoint) noexcept;

} // namespace Pelmora::Native
