#pragma once

#include "pelmora/base/SourceLocation.h"
#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"

#include <stdexcept>

namespace Pelmora
{

/// An error of an application that knows where it came from: what an `ExceptionData` report is best
/// made of. Thrown as it is, or as the base of an application's own exceptions. What it carries
/// does not change, so that several threads may read it.
class PELMORA_API Exception : public std::runtime_error
{
public:
    /// `source` names the application or object that raises it. The function that makes the
    /// exception is its target site, and the calls that led there are its stack. `what` gives the
    /// message in UTF-8.
    explicit Exception(const GString& message, const GString& source = {},
                       const Native::SourceLocation& site = Native::SourceLocation::current())
        : Exception(message, source, site.function_name())
    {
    }
    ~Exception() override;

    Exception(const Exception&) = default;
    Exception(Exception&&) noexcept = default;
    Exception& operator=(const Exception& other) { return *this = Exception(other); }
    Exception& operator=(Exception&&) noexcept = default;

    /// What the constructor was given, valid while this object lives and is not changed.
    const GString& message() const noexcept { return message_; }
    const GString& source() const noexcept { return source_; }
    /// The name of the function that made the exception.
    const GString& targetSite() const noexcept { return targetSite_; }
    /// One call per line, the latest first; empty where the system does not tell.
    const GString& stackTrace() const noexcept { return stackTrace_; }

private:
    Exception(const GString& message, const GString& source, const char* targetSite);

    GString message_;
    GString source_;
    GString targetSite_;
    GString stackTrace_;
};

} // namespace Pelmora
