#include "pelmora/platform/posix/utf16.h"

#include "pelmora/base/detail/utf8.h"

namespace Pelmora::Native::Platform
{

std::string toUtf8(WideView text)
{
    return encodedUtf8(text, Utf8Form::characters);
}

WideString toUtf16(std::string_view utf8)
{
    return decodedUtf8(utf8, Utf8Form::characters).value_or(WideString());
}

} // namespace Pelmora::Native::Platform
