#pragma once

#include "pelmora/pelmora.h"

#include <stdexcept>
#include <string_view>

namespace Infusions
{

/// A text that is no quantity; the message says why.
class QuantityError : public std::runtime_error
{
public:
    explicit QuantityError(const Pelmora::GString& why) : std::runtime_error(why.to_utf8()) {}
};

/// Whose grams a quantity counts.
enum class Grams {
    ofDrug, ///< except below a "/kg", which is the patient's
    ofPatient,
};

/// Reads "5 mcg/kg/min": a number greater than 0, one unit, and the units that divide it.
/// Throws QuantityError for anything else.
Pelmora::UnitValue quantity(std::string_view text, Grams grams = Grams::ofDrug);

/// "1.60 mg/mL": with the prefix that three significant digits need, and without an exponent.
Pelmora::GString quantityText(const Pelmora::UnitValue& quantity);

/// The text without white space at its ends.
std::string_view trimmed(std::string_view text);
template <class View, class IsSpace>
View trimmed(View text, IsSpace isSpace)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace Infusions
