// Any bytes as UTF-8, and any units to UTF-8 and back.

#include "fuzz/FuzzedInput.h"
#include "pelmora/gettext/gstringUtil.h"

#include <optional>

using namespace Pelmora;

namespace
{

std::string encoded(unsigned unit)
{
    const auto byte = [](unsigned bits) { return static_cast<char>(bits); };
    if (unit < 0x80)
        return {byte(unit)};
    if (unit < 0x800)
        return {byte(0xC0 | unit >> 6), byte(0x80 | (unit & 0x3F))};
    return {byte(0xE0 | unit >> 12), byte(0x80 | (unit >> 6 & 0x3F)), byte(0x80 | (unit & 0x3F))};
}

/// Takes as many bytes as the first says, and whatever they hold counts only if it is encoded by
/// just these.
std::optional<WideString> decoded(std::string_view utf8)
{
    WideString text;
    while (!utf8.empty()) {
        const auto lead = static_cast<unsigned char>(utf8[0]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : 3;
        if (length > utf8.size())
            return std::nullopt;
        unsigned unit = lead & (length == 1 ? 0x7FU : length == 2 ? 0x1FU : 0xFU);
        for (std::size_t i = 1; i < length; ++i)
            unit = unit << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3FU);
        if (encoded(unit) != utf8.substr(0, length))
            return std::nullopt;
        text += static_cast<Native::WideChar>(unit);
        utf8.remove_prefix(length);
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::optional<WideString> result;
    try {
        result = GString::from_utf8(bytes).text();
    } catch (const char*) { // malformed
    }
    check(result == decoded(bytes));

    const GString text(wide(bytes));
    std::string utf8;
    for (const auto unit : text)
        utf8 += encoded(unit);
    check(text.to_utf8() == utf8);
    check(text.to_narrow(65001) == utf8);
    check(GString::from_utf8(utf8) == text);
    return 0;
}
