#include "Order.h"

#include "drugNames.h"
#include "fieldTexts.h"
#include "pump.h"
#include "quantity.h"
#include "units.h"

#include "translation/translation.h"

#include "pelmora/gui/textUtil.h"

#include <string>
#include <vector>

namespace Infusions
{
namespace
{

using Pelmora::GString;
using Pelmora::UnitValue;
using Translation::tr;

bool isAbsent(std::string_view field)
{
    return field.empty() || field == "-";
}

UnitValue readQuantity(const FieldTexts& texts, std::string_view field, Grams grams)
{
    try {
        return quantity(field, grams);
    } catch (const QuantityError& error) {
        throw OrderError(GString::format(tr(texts.unreadable), GString::from_utf8(error.what())));
    }
}

UnitValue required(const FieldTexts& texts, std::string_view field)
{
    if (isAbsent(field))
        throw OrderError(tr(texts.missing));
    return readQuantity(texts, field, Grams::ofDrug);
}

std::optional<UnitValue> patientWeight(std::string_view field)
{
    if (isAbsent(field))
        return std::nullopt;
    const UnitValue weight = readQuantity(weightTexts, field, Grams::ofPatient);
    if (!weight.unit->compatibleWith(kilogramOfPatient()))
        throw OrderError(tr("the weight is not in kg"));
    return weight;
}

} // namespace

Order parseOrder(std::string_view line)
{
    const std::vector<std::string> texts = Pelmora::Native::split(line, '|', false);
    std::vector<std::string_view> field;
    field.reserve(texts.size());
    for (const std::string& text : texts)
        field.push_back(trimmed(text));
    if (field.size() != 5)
        throw OrderError(tr("an order has five fields: drug, dose, weight, amount and volume"));
    const auto drug = drugOfName(field[0]);
    if (!drug)
        throw OrderError(GString::format(tr("'%s' is no drug given as an infusion"), field[0]));
    return {*drug, required(doseTexts, field[1]), patientWeight(field[2]),
            required(amountTexts, field[3]), required(volumeTexts, field[4])};
}

UnitValue concentration(const Order& order)
{
    if (!order.volume.unit->unitIsVolume())
        throw OrderError(tr("the volume of the bag is not in mL or L"));
    return order.amount.div(order.volume);
}

UnitValue pumpRate(const Order& order)
{
    if (!order.dose.unit->unitIsRate())
        throw OrderError(tr("the dose is not per time"));
    const bool isPerWeight = order.dose.unit->unitIsPrPt();
    if (isPerWeight && !order.weight)
        throw OrderError(tr("the dose is per kg of body weight, and the weight is missing"));

    const UnitValue perTime = isPerWeight ? order.dose.mul(*order.weight) : order.dose;
    const UnitValue rate = perTime.div(concentration(order));
    const auto unit = millilitrePerHour();
    if (!rate.unit->compatibleWith(unit))
        throw OrderError(GString::format(tr("a dose in %s does not fit a bag with %s of drug"),
                                         order.dose.unit->ToString(),
                                         order.amount.unit->ToString()));
    return pumpSetting(rate.convertTo(unit));
}

} // namespace Infusions
