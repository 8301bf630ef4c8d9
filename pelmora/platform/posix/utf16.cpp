#include "pelmora/platform/posix/utf16.h"

#include "pelmora/base/detail/utf8.h"

#include <cstdint>

namespace Pelmora::Native::Platform
{
namespace
{

void appendUtf16(WideString& result, std::uint32_t character)
{
    if (character < 0x10000) {
        result += static_cast<WideChar>(character);
        return;
    }
    character -= 0x10000;
    result += static_cast<WideChar>(0xD800U | (character >> 10U & 0x3FFU));
    result += static_cast<WideChar>(0xDC00U | (character & 0x3FFU));
}

} // namespace

std::string toUtf8(WideView text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t character = text[i];
        const bool isPair = (character & 0xFC00U) == 0xD800U && i + 1 < text.size() &&
                            (text[i + 1] & 0xFC00U) == 0xDC00U;
        if (isPair)
            character = 0x10000U + ((character & 0x3FFU) << 10U) + (text[++i] & 0x3FFU);
        result += encodeUtf8(character).view();
    }
    return result;
}

WideString toUtf16(std::string_view utf8)
{
    WideString result;
    result.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i++]);
        const int more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        std::uint32_t character = more == 0 ? lead : lead & (0x3FU >> static_cast<unsigned>(more));
        for (int k = 0; k < more && i < utf8.size(); ++k)
            character = character << 6U | (static_cast<unsigned char>(utf8[i++]) & 0x3FU);
        appendUtf16(result, character);
    }
    return result;
}

} // namespace Pelmora::Native::Platform
