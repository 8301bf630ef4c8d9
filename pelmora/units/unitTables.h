#pragma once

#include "pelmora/units/unitKinds.h"

#include <array>
#include <cstddef>
#include <string_view>

// The tables of the units engine. The look-ups accept any number as a kind or a prefix. Internal to
// the units folder.

namespace Pelmora::Native
{

enum class Dimension : std::uint8_t { own, time, length };

struct KindRow {
    std::string_view symbol;
    UnitTypeEnum isoKind;
    double factor; ///< to the ISO kind
    Dimension dimension;
    bool prefixMayChange;
};

inline constexpr std::array<KindRow, 15> kindRows = {{
    {"g", UnitTypeEnum::UNIT_G, 1, Dimension::own, true},
    {"L", UnitTypeEnum::UNIT_L, 1, Dimension::own, true},
    {"s", UnitTypeEnum::UNIT_S, 1, Dimension::time, false},
    {"min", UnitTypeEnum::UNIT_S, 60, Dimension::time, false},
    {"hr", UnitTypeEnum::UNIT_S, 3600, Dimension::time, false},
    {"m", UnitTypeEnum::UNIT_M, 1, Dimension::length, true},
    {"mi U.S.", UnitTypeEnum::UNIT_M, 1609.34721869, Dimension::length, true},
    {"inch", UnitTypeEnum::UNIT_M, 0.0254, Dimension::length, false},
    {"cm", UnitTypeEnum::UNIT_M, 0.01, Dimension::length, false},
    {"mol", UnitTypeEnum::UNIT_MOL, 1, Dimension::own, true},
    {"IU", UnitTypeEnum::UNIT_IU, 1, Dimension::own, false},
    {"units", UnitTypeEnum::UNIT_U, 1, Dimension::own, false},
    {"%", UnitTypeEnum::UNIT_PROCENT, 1, Dimension::own, false},
    {"g", UnitTypeEnum::UNIT_G_PT, 1, Dimension::own, true},
    {"", UnitTypeEnum::UNIT_NUMBER_OF, 1, Dimension::own, true},
}};

/// The row of a kind; for a kind outside the table the last one, that of `UNIT_NUMBER_OF`.
constexpr std::size_t kindIndex(UnitTypeEnum kind) noexcept
{
    const auto index = static_cast<std::uint32_t>(kind);
    return index < kindRows.size() ? index : kindRows.size() - 1;
}

constexpr const KindRow& kindRow(UnitTypeEnum kind) noexcept
{
    return kindRows[kindIndex(kind)];
}

/// Whether two elements of these kinds may be merged.
constexpr bool haveSameDimension(UnitTypeEnum a, UnitTypeEnum b) noexcept
{
    const Dimension dimension = kindRow(a).dimension;
    return a == b || (dimension != Dimension::own && dimension == kindRow(b).dimension);
}

struct PrefixRow {
    std::string_view symbol;
    double factor;
};

/// From `NANO` to `GIGA`. Micro is "mc", as medicine writes it in mcg.
inline constexpr std::array<PrefixRow, 7> prefixRows = {{
    {"n", 1e-9},
    {"mc", 1e-6},
    {"m", 1e-3},
    {"", 1},
    {"k", 1e3},
    {"M", 1e6},
    {"G", 1e9},
}};

/// The row of a prefix; past the end of `prefixRows` for a prefix out of range.
constexpr std::size_t prefixIndex(UnitPrefix prefix) noexcept
{
    constexpr auto lowest = static_cast<std::uint32_t>(UnitPrefix::UNIT_PREFIX_MIN);
    return static_cast<std::uint32_t>(prefix) - lowest;
}

} // namespace Pelmora::Native
