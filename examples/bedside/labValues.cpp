#include "labValues.h"

#include "infusions/units.h"
#include "translation/translation.h"

#include <memory>

namespace Bedside
{
namespace
{

using Infusions::makeUnit;
using Pelmora::BloodLab;
using Pelmora::GString;
using Pelmora::Unit;
using Pelmora::UnitPrefix;
using Pelmora::UnitTypeEnum;
using Pelmora::UnitValue;
using Pelmora::VenousPanels;
using Translation::N_;
using Translation::tr;
using enum UnitPrefix;
using enum UnitTypeEnum;
using enum BloodLab;
using enum VenousPanels;

constexpr Panel allPanels[] = {
    {NO_PANEL, N_("None")},
    {ELECTROLYTE_PANEL, N_("Electrolytes")},
    {BASIC_METABOLIC_PANEL, N_("Basic metabolic panel")},
    {COMPREHENSIVE_METABOLIC_PANEL, N_("Comprehensive metabolic panel")},
    {LIVER_PANEL, N_("Liver panel")},
    {LIPID_PANEL, N_("Lipid panel")},
    {COMPLETE_BLOOD_COUNT, N_("Complete blood count")},
    {COAGULATION_PANEL, N_("Coagulation panel")},
};

constexpr VenousPanels inEveryMetabolic = BASIC_METABOLIC_PANEL | COMPREHENSIVE_METABOLIC_PANEL;
constexpr VenousPanels inSalts = inEveryMetabolic | ELECTROLYTE_PANEL;
constexpr VenousPanels inLiver = LIVER_PANEL | COMPREHENSIVE_METABOLIC_PANEL;

/// What a value counts in: of so much blood, or on its own.
struct LabUnit {
    UnitTypeEnum kind;
    UnitPrefix prefix;
    bool isPerLitre;
    const char16_t* text = nullptr; ///< in place of the unit's own
};
constexpr LabUnit millimole = {UNIT_MOL, MILLI, true};
constexpr LabUnit micromole = {UNIT_MOL, MICRO, true};
constexpr LabUnit gram = {UNIT_G, NONE, true};
constexpr LabUnit enzymeUnit = {UNIT_U, NONE, true};
// Its own text, "G/L", looks like grams per litre.
constexpr LabUnit billionCells = {UNIT_NUMBER_OF, GIGA, true, u" \u00D7 10\u2079/L"};
constexpr LabUnit percent = {UNIT_PROCENT, NONE, false};
constexpr LabUnit second = {UNIT_S, NONE, false};
constexpr LabUnit ratio = {UNIT_NUMBER_OF, NONE, false};

struct LabValue {
    BloodLab lab;
    VenousPanels panels;
    const char* name;
    double value;
    int decimals;
    LabUnit unit;
};

// Those of a healthy adult.
constexpr LabValue labValues[] = {
    {NA_LAB, inSalts, N_("Sodium"), 140, 0, millimole},
    {KPLUS_LAB, inSalts, N_("Potassium"), 4.1, 1, millimole},
    {CL_LAB, inSalts, N_("Chloride"), 103, 0, millimole},
    {HCO3_LAB, inSalts, N_("Bicarbonate"), 24, 0, millimole},
    {CALCIUM_TOT_LAB, inEveryMetabolic, N_("Calcium"), 2.35, 2, millimole},
    {GLUCOSE_LAB, inEveryMetabolic, N_("Glucose"), 5.5, 1, millimole},
    {UREA_LAB, inEveryMetabolic, N_("Urea"), 5.2, 1, millimole},
    {CREATININE_LAB, inEveryMetabolic, N_("Creatinine"), 80, 0, micromole},
    {PROTEIN_LAB, inLiver, N_("Total protein"), 72, 0, gram},
    {ALBUMIN_LAB, inLiver, N_("Albumin"), 42, 0, gram},
    {BILIRUBIN_LAB, inLiver, N_("Bilirubin"), 11, 0, micromole},
    {ALT_LAB, inLiver, N_("ALT"), 24, 0, enzymeUnit},
    {AST_LAB, inLiver, N_("AST"), 21, 0, enzymeUnit},
    {ALP_LAB, inLiver, N_("ALP"), 68, 0, enzymeUnit},
    {CHOLESTOROL_TOT_LAB, LIPID_PANEL, N_("Cholesterol"), 4.8, 1, millimole},
    {CHOLESTOROL_HDL_LAB, LIPID_PANEL, N_("HDL"), 1.4, 1, millimole},
    {CHOLESTOROL_LDL_LAB, LIPID_PANEL, N_("LDL"), 2.7, 1, millimole},
    {TRIGLYCERIDES_LAB, LIPID_PANEL, N_("Triglycerides"), 1.2, 1, millimole},
    {HB_LAB, COMPLETE_BLOOD_COUNT, N_("Hemoglobin"), 141, 0, gram},
    {HCT_LAB, COMPLETE_BLOOD_COUNT, N_("Hematocrit"), 42, 0, percent},
    {WBC_LAB, COMPLETE_BLOOD_COUNT, N_("White cells"), 6.2, 1, billionCells},
    {PLATELETS_LAB, COMPLETE_BLOOD_COUNT, N_("Platelets"), 250, 0, billionCells},
    {APTT_LAB, COAGULATION_PANEL, N_("aPTT"), 31, 0, second},
    {PT_LAB, COAGULATION_PANEL, N_("PT"), 12.1, 1, second},
    {INR_LAB, COAGULATION_PANEL, N_("INR"), 1.0, 1, ratio},
    {FIBRINOGEN_LAB, COAGULATION_PANEL, N_("Fibrinogen"), 2.9, 1, gram},
};

std::shared_ptr<Unit> unitOf(const LabUnit& unit)
{
    if (unit.isPerLitre)
        return makeUnit({{unit.kind, unit.prefix, 1}, {UNIT_L, NONE, -1}});
    return makeUnit({{unit.kind, unit.prefix, 1}});
}

GString valueText(const LabValue& row)
{
    if (row.unit.text != nullptr)
        return GString::format(u"%.*f", row.decimals, row.value) + row.unit.text;
    return UnitValue(row.value, unitOf(row.unit)).ToString(row.decimals);
}

} // namespace

std::span<const Panel> panels()
{
    return allPanels;
}

std::vector<LabText> labTexts(VenousPanels panel)
{
    std::vector<LabText> texts;
    for (const LabValue& row : labValues)
        if ((row.panels & panel) != NO_PANEL)
            texts.push_back({tr(row.name), valueText(row)});
    return texts;
}

} // namespace Bedside
