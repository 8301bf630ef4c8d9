#include "pelmora/units/shortNumber.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace Pelmora::Native
{
namespace
{

constexpr int mostDecimals = 3;
constexpr std::array<std::uint64_t, mostDecimals + 1> powersOfTen = {1, 10, 100, 1000};

/// |value| x 10^decimals, rounded to a whole number, ties to even. The product is exact: 53 bits of
/// the number and 10 of the power fit into 64, and what rounding takes away is shifted out.
std::optional<std::uint64_t> scaled(double value, int decimals)
{
    constexpr int mantissaBits = 52;
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const int shift = 1075 - static_cast<int>(bits >> mantissaBits & 0x7FFU);
    if (decimals < 0 || decimals > mostDecimals || shift < 1)
        return std::nullopt;
    if (shift >= 64) // The number is below 2^-11, which is less than half of a thousandth.
        return 0;
    constexpr std::uint64_t leadingBit = std::uint64_t(1) << mantissaBits;
    const std::uint64_t mantissa = (bits & (leadingBit - 1)) | leadingBit;
    const std::uint64_t product = mantissa * powersOfTen[static_cast<std::size_t>(decimals)];
    const std::uint64_t half = std::uint64_t(1) << (shift - 1);
    const std::uint64_t rest = product & (2 * half - 1);
    const std::uint64_t whole = product >> shift;
    const bool roundsUp = rest > half || (rest == half && whole % 2 == 1);
    return roundsUp ? whole + 1 : whole;
}

/// Writes number / 10^decimals.
char* write(char* out, bool negative, std::uint64_t number, int decimals)
{
    if (negative)
        *out++ = '-';
    std::uint64_t power = powersOfTen[static_cast<std::size_t>(decimals)];
    out = std::to_chars(out, out + longestShortNumber, number / power).ptr;
    if (decimals > 0)
        *out++ = '.';
    while (power > 1) {
        number %= power;
        power /= 10;
        *out++ = static_cast<char>('0' + number / power);
    }
    return out;
}

} // namespace

char* writeShortFixed(char* out, double value, int decimals) noexcept
{
    const auto number = scaled(value, decimals);
    return number ? write(out, std::signbit(value), *number, decimals) : nullptr;
}

char* writeShortGeneral(char* out, double value, int digits) noexcept
{
    // From 10^-3 up. Those below 1 are the smallest doubles that are not less than the power.
    static constexpr std::array leasts = {1e-3, 1e-2, 1e-1, 1e0,  1e1,  1e2,  1e3,  1e4,  1e5, 1e6,
                                          1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr int mostDigits = static_cast<int>(leasts.size()) - 1 - mostDecimals;
    const double magnitude = std::fabs(value);
    if (digits < 1 || digits > mostDigits)
        return nullptr;
    const double* const limit = leasts.data() + mostDecimals + digits;
    if (!(magnitude < *limit))
        return nullptr;
    int decimals = 0;
    while (magnitude < limit[-1 - decimals])
        if (++decimals > mostDecimals)
            return nullptr;

    auto number = *scaled(value, decimals);
    if (decimals == 0 && static_cast<double>(number) == *limit)
        return nullptr; // rounded up to one digit more, for which there is an exponent
    for (; decimals > 0 && number % 10 == 0; --decimals)
        number /= 10;
    return write(out, std::signbit(value), number, decimals);
}

} // namespace Pelmora::Native
