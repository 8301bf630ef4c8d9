#include "pelmora/api/Vocabulary.h"

#include <utility>

#include <gtest/gtest.h>

namespace Pelmora
{
namespace
{

/// The places where a list is most easily cut, closed or shifted: ends, gaps and duplicates, and
/// drugs between which others were inserted over the years.
TEST(Vocabulary, ValuesThatMustNotMove)
{
    const std::pair<std::int64_t, std::int64_t> rows[] = {
        {std::int64_t(DrugEnum::NUMBER_OF), 150},
        {std::int64_t(DrugEnum::CUSTOMDRUG4), 98},
        {std::int64_t(DrugCategory::uninitialized), -1},
        {std::int64_t(DrugCategory::size) - std::int64_t(DrugCategory::end), 2},
        {std::int64_t(FocusPictureType::PICT_DERMAL_PATCH), 21},
        {std::int64_t(AdminType::ADMIN_NUMBER_OF), 16},
        {std::int64_t(UnitType::UNITS_NUMBER_OF), 10},
        {std::int64_t(BloodLab::CA_LAB), 58},
        {std::int64_t(BloodLab::ALL_LABS), 65535},
        {std::int64_t(VenousPanels::ALL_PANELS), 65535},
        {std::int64_t(ExceptionDataEnums::prio_enum::PRIO_NOTE), 2},
        {std::int64_t(ExceptionDataEnums::type_enum::TYPE_DEBUGMESSAGE), 2},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i)
        EXPECT_EQ(rows[i].first, rows[i].second) << "row " << i;
}

} // namespace
} // namespace Pelmora
