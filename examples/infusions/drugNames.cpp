#include "drugNames.h"

namespace Infusions
{
namespace
{

using Pelmora::DrugEnum;

struct DrugName {
    DrugEnum drug;
    std::string_view vocabularyName;
    const char16_t* displayName;
};

constexpr DrugName drugNames[] = {
    {DrugEnum::AMIODARONE, "AMIODARONE", u"Amiodarone"},
    {DrugEnum::DILTIAZEM, "DILTIAZEM", u"Diltiazem"},
    {DrugEnum::DOBUTAMINE, "DOBUTAMINE", u"Dobutamine"},
    {DrugEnum::DOPAMINE, "DOPAMINE", u"Dopamine"},
    {DrugEnum::EPINEPHRINE, "EPINEPHRINE", u"Epinephrine"},
    {DrugEnum::ESMOLOL, "ESMOLOL", u"Esmolol"},
    {DrugEnum::FENTANYL, "FENTANYL", u"Fentanyl"},
    {DrugEnum::GTN, "GTN", u"Glyceryl trinitrate"},
    {DrugEnum::HEPARIN, "HEPARIN", u"Heparin"},
    {DrugEnum::INSULIN, "INSULIN", u"Insulin"},
    {DrugEnum::KETAMIN, "KETAMIN", u"Ketamine"},
    {DrugEnum::LIDOCAINE, "LIDOCAINE", u"Lidocaine"},
    {DrugEnum::MAGNESIUM, "MAGNESIUM", u"Magnesium"},
    {DrugEnum::MIDAZOLAM, "MIDAZOLAM", u"Midazolam"},
    {DrugEnum::MILRINONE, "MILRINONE", u"Milrinone"},
    {DrugEnum::MORPHINE, "MORPHINE", u"Morphine"},
    {DrugEnum::NOREPINEPHRINE, "NOREPINEPHRINE", u"Norepinephrine"},
    {DrugEnum::PROPOFOL, "PROPOFOL", u"Propofol"},
    {DrugEnum::SODIUM_NITROPRUSSIDE, "SODIUM_NITROPRUSSIDE", u"Sodium nitroprusside"},
    {DrugEnum::VASOPRESSIN, "VASOPRESSIN", u"Vasopressin"},
};

} // namespace

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
            return row.displayName;
    return {};
}

} // namespace Infusions
