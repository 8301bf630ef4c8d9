#include "Order.h"

#include "drugNames.h"
#include "quantity.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace Infusions
{
namespace
{

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

UnitValue required(const char* name, std::string_view field)
{
    if (isAbsent(field))
        throw OrderError(std::string("the ") + name + " is missing");
    try {
        return quantity(field);
    } catch (const QuantityError& error) {
        throw OrderError(std::string("the ") + name + " cannot be read: " + error.what());
    }
}

std::optional<UnitValue> patientWeight(std::string_view field)
{
    if (isAbsent(field))
        return std::nullopt;
    const Unit kilogram(
        std::make_shared<UnitElement>(UnitTypeEnum::UNIT_G_PT, UnitPrefix::KILO, 1));
    try {
        const UnitValue weight = quantity(field, Grams::ofPatient);
        if (!weight.unit->compatibleWith(kilogram))
            throw OrderError("the weight is not in kg");
        return weight;
    } catch (const QuantityError& error) {
        throw OrderError(std::string("the weight cannot be read: ") + error.what());
    }
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
        throw OrderError("an order has five fields: drug | dose | weight | amount | volume");
    const auto drug = drugOfName(field[0]);
    if (!drug)
        throw OrderError("'" + std::string(field[0]) + "' is no drug given as an infusion");
    return {*drug, required("dose", field[1]), patientWeight(field[2]),
            required("amount of drug in the bag", field[3]),
            required("volume of the bag", field[4])};
}

UnitValue concentration(const Order& order)
{
    if (!order.volume.unit->unitIsVolume())
        throw OrderError("the volume of the bag is not in mL or L");
    return order.amount.div(order.volume);
}

UnitValue pumpRate(const Order& order)
{
    if (!order.dose.unit->unitIsRate())
        throw OrderError("the dose is not per time");
    const bool isPerWeight = order.dose.unit->unitIsPrPt();
    if (isPerWeight && !order.weight)
        throw OrderError("the dose is per kg of body weight, and the weight is missing");

    const UnitValue perTime = isPerWeight ? order.dose.mul(*order.weight) : order.dose;
    const UnitValue rate = perTime.div(concentration(order));
    const auto unit = millilitrePerHour();
    if (!rate.unit->compatibleWith(unit))
        throw OrderError("a dose in " + order.dose.unit->ToString().to_utf8() +
                         " does not fit a bag with " + order.amount.unit->ToString().to_utf8() +
                         " of drug");
    return rate.convertTo(unit);
}

} // namespace Infusions
