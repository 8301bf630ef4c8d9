#pragma once

#include "pelmora/api/UnitFacade.h"

// The public objects as an archive library sees them: functions in the common `archive(field, ...)`
// form, in the order of the fields, found by argument-dependent look-up. They work with any library
// that calls `serialize(archive, object)` and knows std::shared_ptr, std::vector and enumerations.
// Sharing survives where the library tracks std::shared_ptr: two units that share one array still
// share it after a round trip.

namespace Pelmora
{

template <class Archive>
void serialize(Archive& archive, UnitElement& element)
{
    archive(element.unitType, element.prefix, element.exponent);
}

template <class Archive>
void serialize(Archive& archive, Unit& unit)
{
    archive(unit.elements);
}

template <class Archive>
void serialize(Archive& archive, UnitValue& value)
{
    archive(value.value, value.unit);
}

} // namespace Pelmora
