// The places where a list is most easily cut, closed or shifted: ends, gaps and duplicates, and
// drugs between which others were inserted over the years. The compiler's answer is the test.

#include "pelmora/api/Vocabulary.h"

namespace Pelmora
{

static_assert(DrugEnum::NUMBER_OF == DrugEnum(150) && DrugEnum::CUSTOMDRUG4 == DrugEnum(98));
static_assert(int(DrugCategory::size) - int(DrugCategory::end) == 2);
static_assert(FocusPictureType::PICT_DERMAL_PATCH == FocusPictureType(21));
static_assert(AdminType::ADMIN_NUMBER_OF == AdminType(16));
static_assert(UnitType::UNITS_NUMBER_OF == UnitType(10));
static_assert(BloodLab::CA_LAB == BloodLab(58) && BloodLab::ALL_LABS == BloodLab(65535));
static_assert(VenousPanels::ALL_PANELS == VenousPanels(65535));

} // namespace Pelmora
