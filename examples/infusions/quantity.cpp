#include "quantity.h"

#include "translation/translation.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>

namespace Infusions
{
namespace
{

using Pelmora::GString;
using Pelmora::UnitElement;
using Pelmora::UnitPrefix;
using Pelmora::UnitTypeEnum;
using Pelmora::UnitValue;
using Translation::tr;

struct UnitWord {
    std::string_view word;
    UnitTypeEnum kind;
    UnitPrefix prefix;
};

constexpr UnitWord unitWords[] = {
    {"ng", UnitTypeEnum::UNIT_G, UnitPrefix::NANO},
    {"mcg", UnitTypeEnum::UNIT_G, UnitPrefix::MICRO},
    {"mg", UnitTypeEnum::UNIT_G, UnitPrefix::MILLI},
    {"g", UnitTypeEnum::UNIT_G, UnitPrefix::NONE},
    {"kg", UnitTypeEnum::UNIT_G, UnitPrefix::KILO},
    {"mL", UnitTypeEnum::UNIT_L, UnitPrefix::MILLI},
    {"L", UnitTypeEnum::UNIT_L, UnitPrefix::NONE},
    {"mmol", UnitTypeEnum::UNIT_MOL, UnitPrefix::MILLI},
    {"units", UnitTypeEnum::UNIT_U, UnitPrefix::NONE},
    {"IU", UnitTypeEnum::UNIT_IU, UnitPrefix::NONE},
    {"min", UnitTypeEnum::UNIT_MIN, UnitPrefix::NONE},
    {"hr", UnitTypeEnum::UNIT_HR, UnitPrefix::NONE},
};

std::shared_ptr<UnitElement> element(std::string_view word, Grams grams, std::int32_t exponent)
{
    for (const UnitWord& row : unitWords) {
        if (row.word != word)
            continue;
        const bool isPatient = word == "kg" && (exponent < 0 || grams == Grams::ofPatient);
        const UnitTypeEnum kind = isPatient ? UnitTypeEnum::UNIT_G_PT : row.kind;
        return std::make_shared<UnitElement>(kind, row.prefix, exponent);
    }
    throw QuantityError(GString::format(tr("there is no unit '%s'"), word));
}

std::shared_ptr<Pelmora::Unit> unit(std::string_view text, Grams grams)
{
    const std::size_t numeratorEnd = std::min(text.find('/'), text.size());
    auto result = std::make_shared<Pelmora::Unit>(element(text.substr(0, numeratorEnd), grams, 1));
    for (std::size_t slash = numeratorEnd; slash < text.size();) {
        const std::size_t next = std::min(text.find('/', slash + 1), text.size());
        result->addElement(element(text.substr(slash + 1, next - slash - 1), grams, -1));
        slash = next;
    }
    return result;
}

} // namespace

UnitValue quantity(std::string_view text, Grams grams)
{
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc())
        throw QuantityError(GString::format(tr("'%s' does not begin with a number"), text));
    if (!(number > 0) || !std::isfinite(number))
        throw QuantityError(GString::format(tr("'%s' is not more than nothing"), text));
    const auto rest = static_cast<std::size_t>(read.ptr - text.data());
    return {number, unit(trimmed(text.substr(rest)), grams)};
}

GString quantityText(const UnitValue& quantity)
{
    constexpr int significantDigits = 3;
    constexpr double roundsToFourDigits = 999.5;
    UnitValue shown = quantity.toNormalized(significantDigits);
    if (shown.value >= roundsToFourDigits) {
        shown.value = std::max(shown.value, 1000.0);
        shown = shown.toNormalized(significantDigits);
    }
    if (shown.value >= roundsToFourDigits) // there is no larger prefix
        return shown.ToString(0);
    return shown.toNormalizedString(significantDigits);
}

std::string_view trimmed(std::string_view text)
{
    return trimmed(text, [](char character) {
        return character == ' ' || character == '\t' || character == '\r';
    });
}

} // namespace Infusions
