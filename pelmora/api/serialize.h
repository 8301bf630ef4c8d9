#pragma once

#include "pelmora/api/ExceptionData.h"
#include "pelmora/api/UnitFacade.h"

#include <string>

// The public objects as an archive library sees them: functions in the common `archive(field, ...)`
// form, in the order of the fields, found by argument-dependent look-up. They work with any library
// that calls `serialize(archive, object)` and knows std::shared_ptr, std::vector, std::string and
// enumerations. Texts are written as UTF-8. Sharing survives where the library tracks
// std::shared_ptr: two units that share one array still share it after a round trip.
// Saving only reads the objects.

namespace Pelmora
{

/// Kind, prefix and exponent.
template <class Archive>
void serialize(Archive& archive, UnitElement& element)
{
    archive(element.unitType, element.prefix, element.exponent);
}

/// The array of elements.
template <class Archive>
void serialize(Archive& archive, Unit& unit)
{
    archive(unit.elements);
}

/// Number and unit.
template <class Archive>
void serialize(Archive& archive, UnitValue& value)
{
    archive(value.value, value.unit);
}

/// Every field, texts as UTF-8. Text in the archive that `GString::to_utf8` did not make throws
/// what `GString::from_utf8` throws, a `const char*`.
template <class Archive>
void serialize(Archive& archive, ExceptionData& report)
{
    const auto text = [&archive](GString& field) {
        const std::string before = field.to_utf8();
        std::string utf8 = before;
        archive(utf8);
        if (utf8 != before) // saving writes nothing
            field = GString::from_utf8(utf8);
    };
    text(report.mSource);
    text(report.mTargetSite);
    text(report.mMessage);
    text(report.mStackTrace);
    const auto before = report.mDateTime.time_since_epoch().count();
    auto milliseconds = before;
    archive(milliseconds, report.mPriority, report.mType);
    if (milliseconds != before)
        report.mDateTime = ExceptionData::DateTime(ExceptionData::DateTime::duration(milliseconds));
    text(report.mDestination);
    text(report.mParameters);
}

} // namespace Pelmora
