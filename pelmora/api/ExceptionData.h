#pragma once

#include "pelmora/api/Exception.h"
#include "pelmora/api/Vocabulary.h"
#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"

#include <chrono>
#include <exception>

namespace Pelmora
{

/// A record of one error, warning or debug message, which applications fill and pass on. Plain data
/// with public fields; every constructor ends by setting `mDateTime` to the current local time.
/// Without arguments the priority is `PRIO_NONE`; every other constructor but the longest sets
/// `PRIO_FATAL`, on purpose. Nothing is locked: whoever writes a record keeps other threads away.
class PELMORA_API ExceptionData : public ExceptionDataEnums
{
public:
    /// A time on the user's clock.
    using DateTime = std::chrono::local_time<std::chrono::milliseconds>;

    GString mSource;     ///< the application or object that raised the error
    GString mTargetSite; ///< the function in which it arose
    GString mMessage;    ///< what went wrong
    GString mStackTrace; ///< the calls that led there, as far as the system tells
    DateTime mDateTime;  ///< when the record was made
    prio_enum mPriority = prio_enum::PRIO_NONE;  ///< how grave it is
    type_enum mType = type_enum::TYPE_EXCEPTION; ///< what kind of report it is
    GString mDestination;                        ///< where the report is to go
    GString mParameters;                         ///< anything more

    ExceptionData(const ExceptionData&) = default;
    ExceptionData(ExceptionData&&) noexcept = default;
    /// The whole record is copied or, without memory, none of it.
    ExceptionData& operator=(const ExceptionData& other) { return *this = ExceptionData(other); }
    ExceptionData& operator=(ExceptionData&&) noexcept = default;
    ~ExceptionData() = default;

    /// An empty report of this moment.
    ExceptionData();
    /// Takes source, site, message and stack of an `Exception`, and the message of any other
    /// exception, read as UTF-8 if it is well-formed and in the ANSI code page otherwise.
    explicit ExceptionData(const std::exception& aException);
    /// With a message alone.
    explicit ExceptionData(const GString& aMsg);
    /// Mind the order: the stack comes before the site.
    ExceptionData(const GString& aMsg, const GString& aSource, const GString& aStackTrace,
                  const GString& aTargetSite);
    /// Mind the order at the end: parameters, type, destination.
    ExceptionData(const GString& aMsg, const GString& aSource, const GString& aStackTrace,
                  const GString& aTargetSite, prio_enum aPrio, const GString& aParameters,
                  type_enum aType, const GString& aDestination);
};

} // namespace Pelmora
