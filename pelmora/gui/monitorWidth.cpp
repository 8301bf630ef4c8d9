#include "pelmora/gui/monitorWidth.h"

#include <algorithm>
#include <limits>

namespace Pelmora::Native
{
namespace
{

/// Bytes of the text's first character.
std::size_t characterLength(std::string_view text, IsLeadByte isLeadByte)
{
    return text.size() > 1 && isLeadByte(static_cast<unsigned char>(text[0])) ? 2 : 1;
}

/// The text with 0xFF for both bytes of each two-byte character: the second may be that of a
/// backslash or a letter.
std::string withoutDoubleBytes(std::string_view text, IsLeadByte isLeadByte)
{
    std::string masked(text);
    for (std::size_t i = 0; i < masked.size();) {
        const std::size_t length = characterLength(text.substr(i), isLeadByte);
        if (length > 1)
            masked.replace(i, length, length, '\xFF');
        i += length;
    }
    return masked;
}

/// The beginning, of whole characters and at most `most` bytes.
std::string_view cut(std::string_view text, std::size_t most, IsLeadByte isLeadByte)
{
    std::size_t kept = 0;
    while (kept < text.size()) {
        const std::size_t length = characterLength(text.substr(kept), isLeadByte);
        if (kept + length > most)
            break;
        kept += length;
    }
    return text.substr(0, kept);
}

} // namespace

std::optional<std::string> monitorIdentifier(std::string_view deviceId, IsLeadByte isLeadByte)
{
    struct Form {
        std::string_view opening;
        char closing;
    };
    constexpr Form forms[] = {{"#", '#'}, {"Monitor\\", '\\'}}; // the first that is found counts
    constexpr std::size_t longest = 127;

    const std::string masked = withoutDoubleBytes(deviceId, isLeadByte);
    for (const auto& [opening, closing] : forms) {
        const std::size_t found = masked.find(opening);
        if (found == std::string::npos)
            continue;
        const std::size_t start = found + opening.size();
        const std::size_t end = masked.rfind(closing);
        if (end < start)
            return std::nullopt;
        return std::string(cut(deviceId.substr(start, end - start), longest, isLeadByte));
    }
    return std::nullopt;
}

std::optional<int> pixelsPerCm(std::int64_t widthInPixels, std::uint32_t widthInMm)
{
    const auto mm = static_cast<std::int32_t>(widthInMm);
    if (mm <= 0)
        return std::nullopt;
    constexpr double most = std::numeric_limits<int>::max();
    const double rounded = static_cast<double>(widthInPixels) * 10.0 / mm + 0.5;
    return static_cast<int>(std::clamp(rounded, -most, most));
}

} // namespace Pelmora::Native
