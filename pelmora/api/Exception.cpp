#include "pelmora/api/Exception.h"

#include "pelmora/api/utf8Message.h"
#include "pelmora/platform/stackTrace.h"

namespace Pelmora
{

Exception::Exception(const GString& message, const GString& source, const char* targetSite)
    : std::runtime_error(utf8Message(message)),
      message_(message),
      source_(source),
      targetSite_(std::string_view(targetSite)),
      stackTrace_(Native::Platform::stackTrace())
{
}

Exception::~Exception() = default;

} // namespace Pelmora
