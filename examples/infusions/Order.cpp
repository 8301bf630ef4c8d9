#include "Order.h"

#include "drugNames.h"
#include "fieldTexts.h"
#include "quantity.h"
#include "translation.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace Infusions
{
namespace
{

using Pelmora::GString;
using Pelmora::Unit;
using Pelmora::UnitElement;
using Pelmora::UnitPrefix;
using Pelmora::UnitTypeEnum;
using Pelmora::UnitValue;

std::vector<std::string_view> fields(std::string_view line)
{
    std::vector<std::string_view> result;
    for (std::size_t start = 0; start <= line.size();) {
        const std::size_t end = std::min(line.find('|', start), line.size());
        result.push_back(trimmed(line.substr(start, end - start)));
        start = end + 1;
    }
    return result;
}

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
    const Unit kilogram(
        std::make_shared<UnitElement>(UnitTypeEnum::UNIT_G_PT, UnitPrefix::KILO, 1));
    const UnitValue weight = readQuantity(weightTexts, field, Grams::ofPatient);
    if (!weight.unit->compatibleWith(kilogram))
        throw OrderError(tr("the weight is not in kg"));
    return weight;
}

std::shared_ptr<Unit> millilitrePerHour()
{
    auto unit = std::make_shared<Unit>(
        std::make_shared<UnitElement>(UnitTypeEnum::UNIT_L, UnitPrefix::MILLI, 1));
    unit->addElement(std::make_shared<UnitElement>(UnitTypeEnum::UNIT_HR, UnitPrefix::NONE, -1));
    return unit;
}

} // namespace

Order parseOrder(std::string_view line)
{
    const std::vector<std::string_view> field = fields(line);
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
    return rate.convertTo(unit);
}

} // namespace Infusions
