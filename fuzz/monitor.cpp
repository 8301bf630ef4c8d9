// Any text as the identifier of a monitor's device, in code pages with and without lead bytes.

#include "fuzz/FuzzedInput.h"
#include "pelmora/gui/monitorWidth.h"

#include <vector>

using namespace Pelmora;

namespace
{

bool none(unsigned char)
{
    return false;
}

bool japanese(unsigned char byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

using Characters = std::vector<std::string>;

/// One or two bytes each, so that no byte can be taken for a character that it is only part of.
Characters charactersOf(const std::string& text, Native::IsLeadByte isLeadByte)
{
    Characters characters;
    for (std::size_t i = 0; i < text.size(); i += characters.back().size()) {
        const bool isLead = isLeadByte(static_cast<unsigned char>(text[i]));
        characters.push_back(text.substr(i, isLead ? 2 : 1));
    }
    return characters;
}

std::optional<std::string> identifier(const Characters& characters)
{
    const std::pair<Characters, std::string> forms[] = {
        {{"#"}, "#"}, {{"M", "o", "n", "i", "t", "o", "r", "\\"}, "\\"}};
    for (const auto& [opening, closing] : forms) {
        const auto found =
            std::search(characters.begin(), characters.end(), opening.begin(), opening.end());
        if (found == characters.end())
            continue;
        const auto start = found + static_cast<std::ptrdiff_t>(opening.size());
        auto end = characters.end() - 1;
        while (*end != closing)
            --end;
        if (end < start)
            return std::nullopt;
        std::string name;
        for (auto next = start; next < end && name.size() + next->size() <= 127; ++next)
            name += *next;
        return name;
    }
    return std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const auto pixels = input.number<std::int64_t>();
    const auto mm = input.number<std::uint32_t>();
    const auto density = Native::pixelsPerCm(pixels, mm);
    check(density.has_value() == (static_cast<std::int32_t>(mm) > 0));
    if (density && pixels >= 0 && pixels < 1000000)
        check(std::abs(*density * std::int64_t(mm) - pixels * 10) * 2 <= std::int64_t(mm));

    const std::string device = input.rest();
    for (const Native::IsLeadByte isLeadByte : {none, japanese})
        check(Native::monitorIdentifier(device, isLeadByte) ==
              identifier(charactersOf(device, isLeadByte)));
    return 0;
}
