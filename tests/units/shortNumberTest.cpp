#include "pelmora/units/shortNumber.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

using namespace Pelmora::Native;

namespace
{

/// Half of them are multiples of some 1/2^n or 1/10^n, where rounding has ties.
double anyNumber(std::mt19937_64& random)
{
    const std::uint64_t bits = random();
    const auto whole = static_cast<double>(static_cast<std::int64_t>(bits) >> (bits % 64));
    switch (random() % 4) {
    case 0:
        return std::bit_cast<double>(bits << random() % 64); // of few bits, also -0
    case 1:
        return std::ldexp(whole, -static_cast<int>(random() % 64));
    case 2:
        return whole / std::pow(10.0, static_cast<double>(random() % 8));
    default:
        return std::exp(static_cast<double>(bits % 4000) / 100 - 10);
    }
}

TEST(ShortNumber, HasTheDigitsOfAnyNumber)
{
    std::mt19937_64 random;
    int fixed = 0;
    int general = 0;
    for (int i = 0; i < 200000; ++i) {
        const double value = anyNumber(random);
        const int precision = static_cast<int>(random() % 8);
        std::array<char, longestShortNumber> text;
        std::array<char, 512> expected;
        const auto check = [&](const char* end, std::chars_format format, int& count) {
            if (end == nullptr)
                return;
            ++count;
            const char* const expectedEnd =
                std::to_chars(expected.data(), expected.data() + expected.size(), value, format,
                              precision)
                    .ptr;
            ASSERT_EQ(std::string_view(text.data(), end),
                      std::string_view(expected.data(), expectedEnd))
                << std::hexfloat << value << ' ' << precision;
        };
        check(writeShortFixed(text.data(), value, precision), std::chars_format::fixed, fixed);
        check(writeShortGeneral(text.data(), value, precision), std::chars_format::general,
              general);
    }
    EXPECT_GT(fixed, 20000);
    EXPECT_GT(general, 20000);
}

} // namespace
