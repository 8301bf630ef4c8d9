#pragma once

#include "pelmora/gettext/FormatArgument.h"

#include <cstddef>
#include <optional>
#include <string>

// The number conversions of printfFormat.h. Internal to the gettext folder.

namespace Pelmora::Native
{

/// One parsed conversion of a format, from its % to its letter.
struct Conversion {
    std::string flags;
    std::optional<int> width;
    std::optional<int> precision;
    int lengthBits = 0;  ///< 8 or 16 when the modifier hh or h cuts the number, otherwise 0
    char letter = 0;     ///< 0 when the format ends before it
    std::size_t end = 0; ///< the position after the letter

    bool has(char flag) const { return flags.find(flag) != std::string::npos; }
};

/// The number in one of the conversions d i u o x X. Flags that C leaves undefined for a
/// conversion, such as a blank before u, have no effect.
std::string printedInteger(const Conversion& conversion, const FormatArgument::Integer& integer);

/// The number in one of the conversions f F e E g G a A. The decimal point is that of the C locale;
/// a and A always write a point.
std::string printedNumber(const Conversion& conversion, double number);

/// The address as Windows writes it, in 16 hexadecimal digits.
std::string printedAddress(const void* pointer);

} // namespace Pelmora::Native
