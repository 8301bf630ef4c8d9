#include "presets.h"

namespace Bedside
{
namespace
{

using enum Pelmora::DrugEnum;

// Usual orders for an adult, for teaching; no source for treating anybody.
constexpr Preset presets[] = {
    {AMIODARONE, "1", "mg/min", "900", "mg", "500"},
    {DILTIAZEM, "10", "mg/hr", "125", "mg", "125"},
    {DOBUTAMINE, "5", "mcg/kg/min", "250", "mg", "250"},
    {DOPAMINE, "5", "mcg/kg/min", "400", "mg", "250"},
    {EPINEPHRINE, "0.05", "mcg/kg/min", "4", "mg", "250"},
    {ESMOLOL, "50", "mcg/kg/min", "2.5", "g", "250"},
    {FENTANYL, "1", "mcg/kg/hr", "2500", "mcg", "50"},
    {GTN, "10", "mcg/min", "50", "mg", "250"},
    {HEPARIN, "18", "units/kg/hr", "25000", "units", "250"},
    {INSULIN, "0.1", "units/kg/hr", "100", "units", "100"},
    {KETAMIN, "0.2", "mg/kg/hr", "500", "mg", "50"},
    {LIDOCAINE, "2", "mg/min", "2", "g", "500"},
    {MAGNESIUM, "2", "g/hr", "40", "g", "1000"},
    {MIDAZOLAM, "0.05", "mg/kg/hr", "50", "mg", "50"},
    {MILRINONE, "0.5", "mcg/kg/min", "20", "mg", "100"},
    {MORPHINE, "2", "mg/hr", "50", "mg", "50"},
    {NOREPINEPHRINE, "0.1", "mcg/kg/min", "4", "mg", "250"},
    {PROPOFOL, "50", "mcg/kg/min", "1", "g", "100"},
    {SODIUM_NITROPRUSSIDE, "0.5", "mcg/kg/min", "50", "mg", "250"},
    {VASOPRESSIN, "0.03", "units/min", "20", "units", "100"},
};

} // namespace

std::optional<Preset> presetOf(Pelmora::DrugEnum drug)
{
    for (const Preset& preset : presets)
        if (preset.drug == drug)
            return preset;
    return std::nullopt;
}

} // namespace Bedside
