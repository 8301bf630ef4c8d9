#include "orderControls.h"

#include "controls.h"
#include "presets.h"
#include "windowText.h"

#include "infusions/drugNames.h"

#include "pelmora/gui/dialogs.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace Bedside
{
namespace
{

using Pelmora::DrugEnum;
using Pelmora::GString;
namespace Native = Pelmora::Native;

/// A list, and what stands in its place while the order cannot be changed: a disabled list is
/// hard to read.
struct Choice {
    int comboBox;
    int readOnly;
};
constexpr Choice choices[] = {
    {ID_DRUG, ID_DRUG_SET}, {ID_DOSE_UNIT, ID_DOSE_UNIT_SET}, {ID_AMOUNT_UNIT, ID_AMOUNT_UNIT_SET}};
constexpr int numberFields[] = {ID_DOSE, ID_WEIGHT, ID_AMOUNT, ID_VOLUME};

bool isComboBox(int control)
{
    return std::any_of(std::begin(choices), std::end(choices),
                       [=](const Choice& choice) { return choice.comboBox == control; });
}

bool isNumberField(int control)
{
    return std::find(std::begin(numberFields), std::end(numberFields), control) !=
           std::end(numberFields);
}

/// A list's rows have the numbers of a table's rows.
template <std::size_t size>
void fillWithUnits(HWND dialog, int comboBox, const std::array<const char*, size>& units)
{
    for (std::size_t i = 0; i < size; ++i)
        addChoice(dialog, comboBox, GString(units[i]), static_cast<int>(i));
}

template <std::size_t size>
void chooseUnit(HWND dialog, int comboBox, const std::array<const char*, size>& units,
                std::string_view unit)
{
    const auto row = std::find(units.begin(), units.end(), unit);
    choose(dialog, comboBox, static_cast<int>(row - units.begin()));
}

template <std::size_t size>
std::string chosenUnit(HWND dialog, int comboBox, const std::array<const char*, size>& units)
{
    return units.at(static_cast<std::size_t>(chosen(dialog, comboBox)));
}

} // namespace

void fillOrderControls(HWND dialog, double patientKg)
{
    constexpr WPARAM longestNumber = 12;
    for (const DrugEnum drug : Infusions::infusionDrugs())
        addChoice(dialog, ID_DRUG, Infusions::displayName(drug), static_cast<int>(drug));
    fillWithUnits(dialog, ID_DOSE_UNIT, doseUnits);
    fillWithUnits(dialog, ID_AMOUNT_UNIT, amountUnits);
    for (const int field : numberFields)
        SendDlgItemMessageW(dialog, field, EM_SETLIMITTEXT, longestNumber, 0);
    showText(dialog, ID_WEIGHT, GString::from_number(patientKg, "%g"));
    choose(dialog, ID_DRUG, static_cast<int>(DrugEnum::DOPAMINE));
    enterPreset(dialog);
}

void enterPreset(HWND dialog)
{
    const auto preset = presetOf(static_cast<DrugEnum>(chosen(dialog, ID_DRUG)));
    if (!preset)
        return;
    showText(dialog, ID_DOSE, GString(preset->dose));
    chooseUnit(dialog, ID_DOSE_UNIT, doseUnits, preset->doseUnit);
    showText(dialog, ID_AMOUNT, GString(preset->amount));
    chooseUnit(dialog, ID_AMOUNT_UNIT, amountUnits, preset->amountUnit);
    showText(dialog, ID_VOLUME, GString(preset->volume));
}

OrderFields orderFields(HWND dialog)
{
    return {static_cast<DrugEnum>(chosen(dialog, ID_DRUG)),
            textOf(dialog, ID_DOSE),
            chosenUnit(dialog, ID_DOSE_UNIT, doseUnits),
            textOf(dialog, ID_WEIGHT),
            textOf(dialog, ID_AMOUNT),
            chosenUnit(dialog, ID_AMOUNT_UNIT, amountUnits),
            textOf(dialog, ID_VOLUME)};
}

bool changesOrder(int control, int notification)
{
    return (notification == EN_CHANGE && isNumberField(control)) ||
           (notification == CBN_SELCHANGE && isComboBox(control));
}

void enableWeight(HWND dialog)
{
    const bool isNeeded = isPerWeight(chosenUnit(dialog, ID_DOSE_UNIT, doseUnits));
    Native::enableControl(GetDlgItem(dialog, ID_WEIGHT), isNeeded);
}

void lockOrder(HWND dialog, bool lock)
{
    for (const Choice& choice : choices) {
        showText(dialog, choice.readOnly, textOf(dialog, choice.comboBox));
        if (lock)
            exchange(dialog, choice.comboBox, choice.readOnly);
        else
            exchange(dialog, choice.readOnly, choice.comboBox);
    }
    for (const int field : numberFields)
        SendDlgItemMessageW(dialog, field, EM_SETREADONLY, lock ? TRUE : FALSE, 0);
}

} // namespace Bedside
