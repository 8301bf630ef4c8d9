#include "pelmora/units/isoFactor.h"

#include <bit>
#include <limits>

namespace Pelmora::Native
{
namespace
{

// Powers are calculated in pairs of doubles, which hold about 106 significant bits, and rounded
// once at the end (T. J. Dekker, "A floating-point technique for extending the available
// precision", 1971).

/// The number high + low; low is what rounding took from high.
struct DoublePair {
    double high;
    double low;
};

/// (high + low) x 2^exponent, with high in [1, 2) so that no intermediate result over- or
/// underflows.
struct Extended {
    double high;
    double low;
    std::int64_t exponent;
};

constexpr std::int64_t largestExponent = std::numeric_limits<double>::max_exponent - 1;
constexpr std::int64_t smallestNormalExponent = std::numeric_limits<double>::min_exponent - 1;
constexpr std::int64_t smallestExponent = smallestNormalExponent - 52;

/// 2^exponent. Requires: the result is a normal number.
constexpr double powerOfTwo(std::int64_t exponent)
{
    return std::bit_cast<double>(static_cast<std::uint64_t>(exponent + largestExponent) << 52);
}

/// a + b exactly. Requires: |a| >= |b|.
constexpr DoublePair fastTwoSum(double a, double b)
{
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

struct Halves {
    double high;
    double low;
};

/// a as the sum of two numbers of at most 26 bits, whose products are exact.
constexpr Halves split(double a)
{
    const double scaled = (0x1p27 + 1) * a;
    const double high = scaled - (scaled - a);
    return {high, a - high};
}

/// a x b exactly.
constexpr DoublePair twoProduct(double a, double b)
{
    const Halves x = split(a);
    const Halves y = split(b);
    const double product = a * b;
    const double error =
        ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low;
    return {product, error};
}

/// Requires: value.high is a positive normal number.
constexpr Extended normalised(const DoublePair& value, std::int64_t exponent)
{
    const auto biased = static_cast<std::int64_t>(std::bit_cast<std::uint64_t>(value.high) >> 52);
    const std::int64_t shift = biased - largestExponent;
    const double scale = powerOfTwo(-shift);
    return {value.high * scale, value.low * scale, exponent + shift};
}

constexpr Extended product(const Extended& a, const Extended& b)
{
    const DoublePair main = twoProduct(a.high, b.high);
    const double rest = main.low + (a.high * b.low + a.low * b.high);
    return normalised(fastTwoSum(main.high, rest), a.exponent + b.exponent);
}

constexpr Extended reciprocal(const Extended& x)
{
    const double estimate = 1 / x.high;
    const DoublePair check = twoProduct(estimate, x.high);
    const double remainder = ((1 - check.high) - check.low) - estimate * x.low;
    return normalised(fastTwoSum(estimate, remainder / x.high), -x.exponent);
}

/// The nearest double, ties to even, also among the subnormal numbers.
constexpr double rounded(const Extended& x)
{
    if (x.exponent > largestExponent)
        return std::numeric_limits<double>::infinity();
    if (x.exponent >= smallestNormalExponent)
        return x.high * powerOfTwo(x.exponent);
    if (x.exponent < smallestExponent - 1)
        return 0;
    // A subnormal number is a whole multiple of the smallest one, and its bits are that multiple.
    const double multiple = x.high * powerOfTwo(x.exponent - smallestExponent);
    auto whole = static_cast<std::uint64_t>(multiple);
    const double fraction = multiple - static_cast<double>(whole);
    const bool aboveHalf = fraction > 0.5 || (fraction == 0.5 && x.low > 0);
    const bool tie = fraction == 0.5 && x.low == 0;
    if (aboveHalf || (tie && whole % 2 == 1))
        ++whole;
    return std::bit_cast<double>(whole);
}

constexpr double power(double base, std::int32_t exponent)
{
    if (exponent == 0 || base == 1)
        return 1;
    if (base == 0)
        return exponent > 0 ? 0 : std::numeric_limits<double>::infinity();
    Extended result = {1, 0, 0};
    Extended square = normalised({base, 0}, 0);
    const std::int64_t wide = exponent;
    for (auto left = static_cast<std::uint64_t>(wide < 0 ? -wide : wide);; left /= 2) {
        if (left % 2 == 1)
            result = product(result, square);
        if (left <= 1)
            break;
        square = product(square, square);
    }
    return rounded(exponent < 0 ? reciprocal(result) : result);
}

constexpr PowerTable makePowerTable()
{
    PowerTable table{};
    for (std::size_t kind = 0; kind < kindRows.size(); ++kind)
        for (std::size_t prefix = 0; prefix < prefixRows.size(); ++prefix)
            for (std::int32_t entry = 0; entry <= 2 * powerTableReach; ++entry)
                table[kind][prefix][static_cast<std::size_t>(entry)] = power(
                    prefixRows[prefix].factor * kindRows[kind].factor, entry - powerTableReach);
    return table;
}

} // namespace

constexpr PowerTable powerTable = makePowerTable();

double rareIsoFactor(UnitPrefix prefix, UnitTypeEnum kind, std::int32_t exponent) noexcept
{
    const std::size_t prefixAt = prefixIndex(prefix);
    const double prefixFactor = prefixAt < prefixRows.size() ? prefixRows[prefixAt].factor : 0;
    return power(prefixFactor * kindRow(kind).factor, exponent);
}

} // namespace Pelmora::Native
