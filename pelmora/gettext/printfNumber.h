#pragma once

#include "pelmora/gettext/FormatArgument.h"

#include <cstddef>
#include <optional>
#include <string>

// The number conversions of printfFormat.h. Internal to the gettext folder.

namespace Pelmora::Native
{

/// One conversion of a format: the text from its % to its letter, taken apart.
struct Conversion {
    std::string flags;
    std::optional<int> width;
    std::optional<int> precision;
    int lengthBits = 0;  ///< 8 or 16 when the modifier hh or h cuts the number, otherwise 0
    char letter = 0;     ///< 0 where the format breaks off
    std::size_t end = 0; ///< the position after the letter

    bool has(char flag) const { return flags.find(flag) != std::string::npos; }
};

/// The number by one of the conversions d i u o x X. Flags that the C language leaves undefined for
/// a conversion, such as a blank before u, have no effect.
std::string printedInteger(const Conversion& conversion, const FormatArgument::Integer& integer);

/// The number by one of the conversions f F e E g G, with the decimal point of the C locale, or by
/// a or A, with a point.
std::string printedNumber(const Conversion& conversion, double number);

/// As Windows writes an address: all its hexadecimal digits.
std::string printedAddress(const void* pointer);

} // namespace Pelmora::Native
