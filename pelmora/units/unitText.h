#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"
#include "pelmora/units/UnitValue.h"

#include <string>
#include <string_view>

// The texts of units and values: `toString` and its relatives of UnitElement, Unit and UnitValue.
//
// Numbers follow the process-wide C++ locale (`std::locale::global`) as an output stream would,
// with its decimal point, grouping and digits. In the classic locale they look as printf writes
// them. Units look the same in every locale. No function reads a unit from text. Several threads
// may make texts at once, as long as none changes the global locale.

namespace Pelmora::Native
{

/// The number with `digits` significant digits in general notation, filled up with zeros after a
/// point. With 3 digits, 5 gives "5.00", 120 "120" and 1234.5 "1.23e+03". On purpose, a sign counts
/// as a digit: -5 gives "-5.0"; and so does a locale's decimal comma: 0.5 gives "0,5.0". With
/// `digits` of 0 or less, the number has 6 significant digits and is not filled up.
PELMORA_API std::string formatSignificant(double value, int digits);

/// How many characters of a number's text count as significant digits: all but the point and
/// leading zeros; on purpose also signs, and the "e" and "+" of an exponent. Sets `hasPoint` to
/// true if there is a point, and leaves it unchanged otherwise.
PELMORA_API int countSignificantDigits(std::string_view text, bool& hasPoint) noexcept;

} // namespace Pelmora::Native
