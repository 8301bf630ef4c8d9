#include "OrderFields.h"

#include "numberField.h"

#include "infusions/Order.h"
#include "infusions/fieldTexts.h"
#include "infusions/pump.h"
#include "infusions/quantity.h"

namespace Bedside
{
namespace
{

using Infusions::FieldTexts;
using Infusions::Grams;
using Infusions::Order;
using Infusions::OrderError;
using Pelmora::GString;
using Pelmora::UnitValue;
using Pelmora::WideView;
using Translation::tr;

UnitValue readField(const FieldTexts& texts, const GString& number, const std::string& unit,
                    Grams grams = Grams::ofDrug)
{
    if (isBlank(number))
        throw OrderError(tr(texts.missing));
    try {
        return Infusions::quantity(plainNumber(number) + ' ' + unit, grams);
    } catch (const Infusions::QuantityError& error) {
        throw OrderError(GString::format(tr(texts.unreadable), GString::from_utf8(error.what())));
    }
}

Order readOrder(const OrderFields& fields)
{
    Order order = {};
    order.drug = fields.drug;
    order.dose = readField(Infusions::doseTexts, fields.dose, fields.doseUnit);
    if (order.dose.unit->unitIsPrPt())
        order.weight = readField(Infusions::weightTexts, fields.weight, "kg", Grams::ofPatient);
    order.amount = readField(Infusions::amountTexts, fields.amount, fields.amountUnit);
    order.volume = readField(Infusions::volumeTexts, fields.volume, "mL");
    return order;
}

/// The reasons are written to follow a colon.
GString sentence(const GString& reason)
{
    const WideView text = reason;
    return GString(text.substr(0, 1)).to_upper() + GString(text.substr(1));
}

} // namespace

GString noResult()
{
    return u"\u2013";
}

bool isPerWeight(const std::string& doseUnit)
{
    return Infusions::quantity("1 " + doseUnit).unit->unitIsPrPt();
}

OrderAnswer answerOrder(const OrderFields& fields)
{
    try {
        const Order order = readOrder(fields);
        const UnitValue rate = Infusions::pumpRate(order);
        return {Infusions::quantityText(order.dose),
                Infusions::quantityText(Infusions::concentration(order)),
                Infusions::pumpText(rate),
                {},
                Infusion{rate, order.volume}};
    } catch (const OrderError& error) {
        return {noResult(), noResult(), noResult(), sentence(GString::from_utf8(error.what())), {}};
    }
}

} // namespace Bedside
