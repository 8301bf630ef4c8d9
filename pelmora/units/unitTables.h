#pragma once

#include "pelmora/units/unitKinds.h"

#include <array>
#include <cstddef>
#include <string_view>

// The fixed tables of the units engine, with look-ups that accept any value of the enumerations'
// underlying type. Internal to the units folder.

namespace Pelmora::Native
{

enum class Dimension : std::uint8_t { own, time, length };

/// The kinds' factors to their ISO kind, each once.
enum class KindFactor : std::uint8_t { one, minute, hour, mile, inch, centimetre };

inline constexpr std::array<double, 6> kindFactors = {1, 60, 3600, 1609.34721869, 0.0254, 0.01};

struct KindRow {
    std::string_view symbol;
    UnitTypeEnum isoKind;
    KindFactor factor;
    Dimension dimension;
    bool prefixMayChange;
};

inline constexpr std::array<KindRow, 15> kindRows = {{
    {"g", UnitTypeEnum::UNIT_G, KindFactor::one, Dimension::own, true},
    {"L", UnitTypeEnum::UNIT_L, KindFactor::one, Dimension::own, true},
    {"s", UnitTypeEnum::UNIT_S, KindFactor::one, Dimension::time, false},
    {"min", UnitTypeEnum::UNIT_S, KindFactor::minute, Dimension::time, false},
    {"hr", UnitTypeEnum::UNIT_S, KindFactor::hour, Dimension::time, false},
    {"m", UnitTypeEnum::UNIT_M, KindFactor::one, Dimension::length, true},
    {"mi U.S.", UnitTypeEnum::UNIT_M, KindFactor::mile, Dimension::length, true},
    {"inch", UnitTypeEnum::UNIT_M, KindFactor::inch, Dimension::length, false},
    {"cm", UnitTypeEnum::UNIT_M, KindFactor::centimetre, Dimension::length, false},
    {"mol", UnitTypeEnum::UNIT_MOL, KindFactor::one, Dimension::own, true},
    {"IU", UnitTypeEnum::UNIT_IU, KindFactor::one, Dimension::own, false},
    {"units", UnitTypeEnum::UNIT_U, KindFactor::one, Dimension::own, false},
    {"%", UnitTypeEnum::UNIT_PROCENT, KindFactor::one, Dimension::own, false},
    {"g", UnitTypeEnum::UNIT_G_PT, KindFactor::one, Dimension::own, true},
    {"", UnitTypeEnum::UNIT_NUMBER_OF, KindFactor::one, Dimension::own, true},
}};

/// The row of a kind; a kind outside the table has the row of `UNIT_NUMBER_OF`, the last one.
constexpr const KindRow& kindRow(UnitTypeEnum kind) noexcept
{
    const auto index = static_cast<std::uint32_t>(kind);
    return kindRows[index < kindRows.size() ? index : kindRows.size() - 1];
}

struct PrefixRow {
    std::string_view symbol;
    double factor;
};

/// From `NANO` to `GIGA`; micro is "mc", as in mcg, in the medical manner.
inline constexpr std::array<PrefixRow, 7> prefixRows = {{
    {"n", 1e-9},
    {"mc", 1e-6},
    {"m", 1e-3},
    {"", 1},
    {"k", 1e3},
    {"M", 1e6},
    {"G", 1e9},
}};

/// The index of a prefix in `prefixRows`; a prefix out of range gives an index past the end.
constexpr std::size_t prefixIndex(UnitPrefix prefix) noexcept
{
    constexpr auto lowest = static_cast<std::uint32_t>(UnitPrefix::UNIT_PREFIX_MIN);
    return static_cast<std::uint32_t>(prefix) - lowest;
}

} // namespace Pelmora::Native
