#include "pelmora/gui/monitorWidth.h"

#include <limits>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

/// Of code page 932.
bool japanese(unsigned char byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

TEST(MonitorWidth, IdentifierOfADevice)
{
    const std::string m126(126, 'm');
    // 0x955C, 0x8372 and 0x8E23 are characters that end like a backslash, an 'r' and a '#'.
    const std::tuple<std::string, std::optional<std::string>> rows[] = {
        {R"(\\?\DISPLAY#ABC1234#5&1a2b3c&0&UID256#{e6})", "ABC1234#5&1a2b3c&0&UID256"},
        {"a##b", ""},
        {"a#b", std::nullopt},
        {R"(Monitor\ABC\x#)", std::nullopt}, // a '#' comes first
        {R"(Monitor\ABC1234\{4d36e96e}\0001)", R"(ABC1234\{4d36e96e})"},
        {R"(MONITOR\ABC\x)", std::nullopt},
        {"#" + m126 + "\x95\x5C#", m126},
        {"#" + m126 + "n\xFE#", m126 + "n"},
        {"Monitor\\A\\\x95\x5C", "A"},
        {"Monito\x83r\\A\\Monitor\\B\\C", "B"},
        {"#A\x8E#", std::nullopt},
    };
    for (const auto& [id, identifier] : rows)
        EXPECT_EQ(monitorIdentifier(id, japanese), identifier) << id;
}

TEST(MonitorWidth, PixelsPerCentimetre)
{
    constexpr int most = std::numeric_limits<int>::max();
    const std::tuple<std::int64_t, std::uint32_t, std::optional<int>> rows[] = {
        {75, 300, 3},    {74, 300, 2},    {1920, 0, std::nullopt}, {1920, 0xFFFFFFFF, std::nullopt},
        {1920, most, 0}, {most, 1, most},
    };
    for (const auto& [pixels, mm, result] : rows)
        EXPECT_EQ(pixelsPerCm(pixels, mm), result) << pixels << ' ' << mm;
}

} // namespace
} // namespace Pelmora::Native
