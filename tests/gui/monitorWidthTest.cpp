#include "pelmora/gui/monitorWidth.h"

#include <limits>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

bool none(unsigned char)
{
    return false;
}

/// Of code page 932.
bool japanese(unsigned char byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

TEST(MonitorWidth, IdentifierOfADevice)
{
    const std::string m126(126, 'm');
    // 0x955C, 0x8372 and 0x8E23 are characters that end like a backslash, an 'r' and a '#'.
    const std::tuple<std::string, IsLeadByte, std::optional<std::string>> rows[] = {
        {R"(\\?\DISPLAY#ABC1234#5&1a2b3c&0&UID256#{e6})", none, "ABC1234#5&1a2b3c&0&UID256"},
        {"a##b", none, ""},
        {"a#b", none, std::nullopt},
        {R"(Monitor\ABC\x#)", none, std::nullopt}, // a '#' comes first
        {R"(Monitor\ABC1234\{4d36e96e}\0001)", none, R"(ABC1234\{4d36e96e})"},
        {R"(Monitor\ABC)", none, std::nullopt},
        {R"(MONITOR\ABC\x)", none, std::nullopt},
        {"", none, std::nullopt},
        {"#" + m126 + "nn#", none, m126 + "n"},
        {"#" + m126 + "\x95\x5C#", japanese, m126},
        {"#" + m126 + "n\xFE#", none, m126 + "n"},
        {"Monitor\\A\\\x95\x5C", japanese, "A"},
        {"Monito\x83r\\A\\Monitor\\B\\C", japanese, "B"},
        {"#A\x8E#", japanese, std::nullopt},
    };
    for (const auto& [id, isLeadByte, identifier] : rows)
        EXPECT_EQ(monitorIdentifier(id, isLeadByte), identifier) << id;
}

TEST(MonitorWidth, PixelsPerCentimetre)
{
    constexpr int most = std::numeric_limits<int>::max();
    const std::tuple<std::int64_t, std::uint32_t, std::optional<int>> rows[] = {
        {1920, 520, 37},
        {75, 300, 3},
        {74, 300, 2},
        {1920, 0, std::nullopt},
        {1920, 0xFFFFFFFF, std::nullopt},
        {1920, most, 0},
        {0, 520, 0},
        {most, 1, most},
    };
    for (const auto& [pixels, mm, result] : rows)
        EXPECT_EQ(pixelsPerCm(pixels, mm), result) << pixels << ' ' << mm;
}

} // namespace
} // namespace Pelmora::Native
