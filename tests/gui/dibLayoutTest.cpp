#include "pelmora/gui/dibLayout.h"

#include <cstdint>
#include <span>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

/// A BITMAPINFOHEADER.
struct Fields {
    std::uint32_t headerSize = 40;
    std::int32_t width = 10;
    std::int32_t height = 10;
    std::uint16_t planes = 1;
    std::uint16_t bitCount = 24;
    std::uint32_t compression = 0;
    std::uint32_t imageSize = 0;
    std::uint32_t resolution[2] = {};
    std::uint32_t coloursUsed = 0;
    std::uint32_t coloursNeeded = 0;
};

std::vector<std::byte> resource(const Fields& fields, std::size_t size)
{
    const auto header = std::as_bytes(std::span(&fields, 1));
    std::vector<std::byte> bytes(header.begin(), header.end());
    bytes.resize(size);
    return bytes;
}

TEST(DibLayout, PixelsFollowHeaderAndTable)
{
    // Fields, where the pixels begin, and how many bytes they have: nothing less is accepted.
    const std::tuple<Fields, std::size_t, std::size_t> rows[] = {
        {{.bitCount = 1}, 40 + 64, 40}, // as many entries as with 4 bits
        {{.bitCount = 4}, 40 + 64, 80},
        {{.bitCount = 8}, 40 + 1024, 120},
        {{.bitCount = 32}, 40, 400},
        {{.bitCount = 8, .coloursUsed = 3}, 52, 120},
        {{.height = -10}, 40, 320},
        {{.width = 0}, 40, 0},
        {{.headerSize = 124}, 124, 320},
        {{.width = 1, .height = 1, .bitCount = 16, .compression = 3}, 40, 16}, // with its masks
        {{.width = 1, .height = 1, .bitCount = 16, .compression = 6}, 40, 16},
        {{.bitCount = 4, .compression = 2, .imageSize = 33}, 104, 33},
        {{.bitCount = 8, .compression = 1, .imageSize = 33}, 1064, 33},
        {{.compression = 5, .imageSize = 33}, 40, 33},
    };
    for (const auto& [fields, offset, pixelBytes] : rows) {
        EXPECT_EQ(dibPixelOffset(resource(fields, offset + pixelBytes)), offset);
        EXPECT_EQ(dibPixelOffset(resource(fields, offset + pixelBytes - 1)), std::nullopt);
    }
}

TEST(DibLayout, HeadersThatAreRefused)
{
    constexpr std::int32_t most = 0x7FFFFFFF;
    const Fields rows[] = {
        {.bitCount = 0},
        {.bitCount = 2},
        {.bitCount = 16, .coloursUsed = 256},
        {.bitCount = 8, .coloursUsed = 0xFFFFFFFF},
        {.bitCount = 8, .coloursUsed = 0x40000000},
        {.headerSize = 39},
        {.headerSize = 0xFFFFFFFF},
        {.width = -10, .height = 0},
        {.width = most, .height = -most - 1, .bitCount = 32},
        {.compression = 4, .imageSize = 0xFFFFFFFF},
        {.bitCount = 4, .compression = 2},
    };
    for (const Fields& fields : rows)
        EXPECT_EQ(dibPixelOffset(resource(fields, 100'000)), std::nullopt) << fields.bitCount;
    const Fields cutMasks = {
        .headerSize = 44, .width = 1, .height = 1, .bitCount = 16, .compression = 3};
    EXPECT_EQ(dibPixelOffset(resource(cutMasks, 48)), std::nullopt);
}

} // namespace
} // namespace Pelmora::Native
