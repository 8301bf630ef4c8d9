#include "pelmora/api/ExceptionData.h"

#include "pelmora/base/detail/utf8.h"
#include "pelmora/platform/localTime.h"

#include <optional>
#include <string_view>
#include <utility>

namespace Pelmora
{
namespace
{

ExceptionData::DateTime now()
{
    using namespace std::chrono;
    const Native::Platform::LocalTime time = Native::Platform::localNow();
    const year_month_day date(year(static_cast<int>(time.year)), month(time.month), day(time.day));
    return local_days(date) + hours(time.hour) + minutes(time.minute) + seconds(time.second) +
           milliseconds(time.millisecond);
}

GString messageOf(const std::exception& exception)
{
    const std::string_view what = exception.what();
    auto text = Native::decodedUtf8(what, Native::Utf8Form::characters);
    return text ? GString(*std::move(text)) : GString(what);
}

} // namespace

ExceptionData::ExceptionData() : mDateTime(now()) {}

ExceptionData::ExceptionData(const std::exception& aException)
    : mMessage(messageOf(aException)), mPriority(prio_enum::PRIO_FATAL)
{
    if (const auto* exception = dynamic_cast<const Exception*>(&aException)) {
        mSource = exception->source();
        mTargetSite = exception->targetSite();
        mMessage = exception->message();
        mStackTrace = exception->stackTrace();
    }
    mDateTime = now();
}

ExceptionData::ExceptionData(const GString& aMsg) : ExceptionData(aMsg, {}, {}, {}) {}

ExceptionData::ExceptionData(const GString& aMsg, const GString& aSource,
                             const GString& aStackTrace, const GString& aTargetSite)
    : ExceptionData(aMsg, aSource, aStackTrace, aTargetSite, prio_enum::PRIO_FATAL, {},
                    type_enum::TYPE_EXCEPTION, {})
{
}

ExceptionData::ExceptionData(const GString& aMsg, const GString& aSource,
                             const GString& aStackTrace, const GString& aTargetSite,
                             prio_enum aPrio, const GString& aParameters, type_enum aType,
                             const GString& aDestination)
    : mSource(aSource),
      mTargetSite(aTargetSite),
      mMessage(aMsg),
      mStackTrace(aStackTrace),
      mPriority(aPrio),
      mType(aType),
      mDestination(aDestination),
      mParameters(aParameters)
{
    mDateTime = now();
}

} // namespace Pelmora
