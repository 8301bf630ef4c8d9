#include "pelmora/gui/dibLayout.h"

#include <cstdint>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

struct Fields {
    unsigned int bitCount = 24;
    std::uint32_t coloursUsed = 0;
    std::int32_t width = 10;
    std::int32_t height = 10;
    std::uint32_t headerSize = 40;
    std::uint32_t compression = 0;
    std::uint32_t imageSize = 0;
};

std::vector<std::byte> resource(const Fields& fields, std::size_t size)
{
    std::vector<std::byte> bytes;
    for (const std::uint32_t value :
         {fields.headerSize, static_cast<std::uint32_t>(fields.width),
          static_cast<std::uint32_t>(fields.height), fields.bitCount << 16U | 1U,
          fields.compression, fields.imageSize, 0U, 0U, fields.coloursUsed, 0U})
        for (unsigned int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::byte>(value >> shift));
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
        {{.bitCount = 16}, 40, 200},
        {{.bitCount = 24}, 40, 320},
        {{.bitCount = 32}, 40, 400},
        {{.bitCount = 8, .coloursUsed = 3}, 52, 120},
        {{.height = -10}, 40, 320},
        {{.width = 0}, 40, 0},
        {{.headerSize = 124}, 124, 320},
        {{.bitCount = 16, .width = 1, .height = 1, .compression = 3}, 40, 16}, // with its masks
        {{.bitCount = 4, .compression = 2, .imageSize = 33}, 104, 33},
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
        {.bitCount = 64},
        {.bitCount = 24, .coloursUsed = 1},
        {.bitCount = 16, .coloursUsed = 256},
        {.bitCount = 8, .coloursUsed = 0xFFFFFFFF},
        {.bitCount = 8, .coloursUsed = 0x40000000},
        {.headerSize = 39},
        {.headerSize = 0xFFFFFFFF},
        {.width = -10},
        {.bitCount = 32, .width = most, .height = -most - 1},
        {.compression = 4, .imageSize = 0xFFFFFFFF},
        {.bitCount = 4, .compression = 2},
    };
    for (const Fields& fields : rows)
        EXPECT_EQ(dibPixelOffset(resource(fields, 100'000)), std::nullopt) << fields.bitCount;
    const Fields masked = {
        .bitCount = 16, .width = 1, .height = 1, .headerSize = 44, .compression = 3};
    EXPECT_EQ(dibPixelOffset(resource(masked, 48)), std::nullopt); // its masks are cut
}

} // namespace
} // namespace Pelmora::Native
