#include "drugNames.h"

#include "translation/translation.h"

namespace Infusions
{
namespace
{

using Pelmora::DrugEnum;
using Translation::N_;
using Translation::tr;

struct DrugName {
    DrugEnum drug;
    std::string_view vocabularyName;
    const char* displayName;
};

constexpr DrugName drugNames[] = {
    {DrugEnum::AMIODARONE, "AMIODARONE", N_("Amiodarone")},
    {DrugEnum::DILTIAZEM, "DILTIAZEM", N_("Diltiazem")},
    {DrugEnum::DOBUTAMINE, "DOBUTAMINE", N_("Dobutamine")},
    {DrugEnum::DOPAMINE, "DOPAMINE", N_("Dopamine")},
    {DrugEnum::EPINEPHRINE, "EPINEPHRINE", N_("Epinephrine")},
    {DrugEnum::ESMOLOL, "ESMOLOL", N_("Esmolol")},
    {DrugEnum::FENTANYL, "FENTANYL", N_("Fentanyl")},
    {DrugEnum::GTN, "GTN", N_("Glyceryl trinitrate")},
    {DrugEnum::HEPARIN, "HEPARIN", N_("Heparin")},
    {DrugEnum::INSULIN, "INSULIN", N_("Insulin")},
    {DrugEnum::KETAMIN, "KETAMIN", N_("Ketamine")},
    {DrugEnum::LIDOCAINE, "LIDOCAINE", N_("Lidocaine")},
    {DrugEnum::MAGNESIUM, "MAGNESIUM", N_("Magnesium")},
    {DrugEnum::MIDAZOLAM, "MIDAZOLAM", N_("Midazolam")},
    {DrugEnum::MILRINONE, "MILRINONE", N_("Milrinone")},
    {DrugEnum::MORPHINE, "MORPHINE", N_("Morphine")},
    {DrugEnum::NOREPINEPHRINE, "NOREPINEPHRINE", N_("Norepinephrine")},
    {DrugEnum::PROPOFOL, "PROPOFOL", N_("Propofol")},
    {DrugEnum::SODIUM_NITROPRUSSIDE, "SODIUM_NITROPRUSSIDE", N_("Sodium nitroprusside")},
    {DrugEnum::VASOPRESSIN, "VASOPRESSIN", N_("Vasopressin")},
};

} // namespace

std::vector<DrugEnum> infusionDrugs()
{
    std::vector<DrugEnum> drugs;
    for (const DrugName& row : drugNames)
        drugs.push_back(row.drug);
    return drugs;
}

std::optional<DrugEnum> drugOfName(std::string_view vocabularyName)
{
    for (const DrugName& row : drugNames)
        if (row.vocabularyName == vocabularyName)
            return row.drug;
    return std::nullopt;
}

Pelmora::GString displayName(DrugEnum drug)
{
    for (const DrugName& row : drugNames)
        if (row.drug == drug)
            return tr(row.displayName);
    return {};
}

} // namespace Infusions
