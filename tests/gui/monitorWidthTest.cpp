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
    const std::string m127(127, 'm');
    const std::tuple<std::string, std::optional<std::string>> rows[] = {
        {R"(\\?\DISPLAY#ABC1234#5&1a2b3c&0&UID256#{e6f07b5f})", "ABC1234#5&1a2b3c&0&UID256"},
        {R"(\\?\DISPLAY#a#)", "a"},
        {"a##b", ""},
        {"a#b", std::nullopt},
        {R"(Monitor\ABC\x#)", std::nullopt}, // a '#' comes first
        {R"(Monitor\ABC1234\{4d36e96e}\0001)", R"(ABC1234\{4d36e96e})"},
        {R"(xMonitor\A\Monitor\B)", R"(A\Monitor)"},
        {R"(Monitor\)", std::nullopt},
        {R"(Monitor\ABC)", std::nullopt},
        {R"(Monitor\\)", ""},
        {R"(MONITOR\ABC\x)", std::nullopt},
        {"Monitor", std::nullopt},
        {"", std::nullopt},
        {"#" + m127 + "#", m127},
        {"#" + m127 + "n#", m127},
        {"#" + m127 + "\x95\x5C#", m127},
    };
    for (const auto& [id, identifier] : rows)
        EXPECT_EQ(monitorIdentifier(id, none), identifier) << id;
}

TEST(MonitorWidth, CharactersOfTwoBytesStayWhole)
{
    const std::string m126(126, 'm');
    // 0x955C, 0x8372 and 0x8E23 are characters that end like a backslash, an 'r' and a '#'.
    const std::tuple<std::string, std::optional<std::string>> rows[] = {
        {"Monitor\\A\\\x95\x5C", "A"}, {"Monito\x83r\\A\\Monitor\\B\\C", "B"},
        {"#A\x8E#", std::nullopt},     {"#" + m126 + "\x95\x5C#", m126},
        {"#A\x95", std::nullopt},      {"#A#\x95", "A"},
    };
    for (const auto& [id, identifier] : rows)
        EXPECT_EQ(monitorIdentifier(id, japanese), identifier) << id;
    EXPECT_EQ(monitorIdentifier("Monitor\\A\\\x95\x5C", none), "A\\\x95");
}

TEST(MonitorWidth, PixelsPerCentimetre)
{
    constexpr std::int64_t wide = std::numeric_limits<std::int32_t>::max();
    const std::tuple<std::int64_t, std::uint32_t, int> rows[] = {
        {1920, 520, 37}, // 36.92
        {1920, 518, 37},
        {75, 300, 3}, // 2.5 is rounded up
        {74, 300, 2},
        {1920, 0, 0},
        {1920, 0x80000000, 0},
        {1920, 0xFFFFFFFF, 0},
        {1920, 0x7FFFFFFF, 0},
        {0, 520, 0},
        {wide, 1, std::numeric_limits<int>::max()},
    };
    for (const auto& [pixels, mm, result] : rows)
        EXPECT_EQ(pixelsPerCm(pixels, mm), result) << pixels << ' ' << mm;
}

} // namespace
} // namespace Pelmora::Native
