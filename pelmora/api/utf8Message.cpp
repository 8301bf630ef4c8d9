#include "pelmora/api/utf8Message.h"

#include "pelmora/base/detail/utf8.h"

#include <cstdint>

namespace Pelmora
{
namespace
{

bool isSurrogate(std::uint32_t value)
{
    return value >= 0xD800 && value <= 0xDFFF;
}

} // namespace

std::string utf8Message(const GString& text)
{
    std::string message;
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t character = text[i];
        const std::uint32_t next = i + 1 < text.size() ? text[i + 1] : 0U;
        if (character >= 0xD800 && character < 0xDC00 && next >= 0xDC00 && next <= 0xDFFF) {
            character = 0x10000U + ((character - 0xD800U) << 10U) + (next - 0xDC00U);
            ++i;
        } else if (isSurrogate(character)) {
            character = 0xFFFD;
        }
        message += Native::encodeUtf8(character).view();
    }
    return message;
}

} // namespace Pelmora
