#include "pelmora/gui/monitorWidth.h"

#include <algorithm>
#include <limits>

namespace Pelmora::Native
{
namespace
{

constexpr char inTwoBytes = '\xFF';
constexpr char secondOfTwo = '\xFE';

/// The text with other bytes for characters of two bytes, whose second one may look like a
/// backslash or a letter.
std::string withoutDoubleBytes(std::string_view text, IsLeadByte isLeadByte)
{
    std::string masked(text);
    for (std::size_t i = 0; i + 1 < masked.size(); ++i) {
        if (isLeadByte(static_cast<unsigned char>(masked[i]))) {
            masked[i] = inTwoBytes;
            masked[++i] = secondOfTwo;
        }
    }
    return masked;
}

} // namespace

std::optional<std::string> monitorIdentifier(std::string_view deviceId, IsLeadByte isLeadByte)
{
    struct Form {
        std::string_view opening;
        char closing;
    };
    constexpr Form forms[] = {{"#", '#'}, {"Monitor\\", '\\'}}; // the first that is there counts
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
        std::size_t length = std::min(end - start, longest);
        if (masked[start + length] == secondOfTwo)
            --length;
        return std::string(deviceId.substr(start, length));
    }
    return std::nullopt;
}

int pixelsPerCm(std::int64_t widthInPixels, std::uint32_t widthInMm)
{
    const auto mm = static_cast<std::int32_t>(widthInMm);
    if (mm <= 0)
        return 0;
    constexpr double most = std::numeric_limits<int>::max();
    const double rounded = static_cast<double>(widthInPixels) * 10.0 / mm + 0.5;
    return static_cast<int>(std::clamp(rounded, -most, most));
}

} // namespace Pelmora::Native
