#pragma once

#include "pelmora/units/unitKinds.h"

#include <array>
#include <cstddef>
#include <string_view>

// The tables of the units engine. The look-ups accept any number as a kind or a prefix. Internal to
// the units folder.

namespace Pelmora::Native
{

/// What kinds have in common when their elements may be merged.
enum class SharedDimension : std::uint8_t { none, time, length };

/// Whether a shift of the prefix, as in normalisation, may change it.
enum class PrefixRule : std::uint8_t { movable, fixed };

struct KindRow {
    std::string_view symbol;
    UnitTypeEnum isoKind;
    double factor; ///< to the ISO kind
    SharedDimension shared;
    PrefixRule prefixRule;
};

inline constexpr std::array<KindRow, 15> kindRows = {{
    {"g", UnitTypeEnum::UNIT_G, 1, SharedDimension::none, PrefixRule::movable},
    {"L", UnitTypeEnum::UNIT_L, 1, SharedDimension::none, PrefixRule::movable},
    {"s", UnitTypeEnum::UNIT_S, 1, SharedDimension::time, PrefixRule::fixed},
    {"min", UnitTypeEnum::UNIT_S, 60, SharedDimension::time, PrefixRule::fixed},
    {"hr", UnitTypeEnum::UNIT_S, 3600, SharedDimension::time, PrefixRule::fixed},
    {"m", UnitTypeEnum::UNIT_M, 1, SharedDimension::length, PrefixRule::movable},
    {"mi U.S.", UnitTypeEnum::UNIT_M, 1609.34721869, SharedDimension::length, PrefixRule::movable},
    {"inch", UnitTypeEnum::UNIT_M, 0.0254, SharedDimension::length, PrefixRule::fixed},
    {"cm", UnitTypeEnum::UNIT_M, 0.01, SharedDimension::length, PrefixRule::fixed},
    {"mol", UnitTypeEnum::UNIT_MOL, 1, SharedDimension::none, PrefixRule::movable},
    {"IU", UnitTypeEnum::UNIT_IU, 1, SharedDimension::none, PrefixRule::fixed},
    {"units", UnitTypeEnum::UNIT_U, 1, SharedDimension::none, PrefixRule::fixed},
    {"%", UnitTypeEnum::UNIT_PROCENT, 1, SharedDimension::none, PrefixRule::fixed},
    {"g", UnitTypeEnum::UNIT_G_PT, 1, SharedDimension::none, PrefixRule::movable},
    {"", UnitTypeEnum::UNIT_NUMBER_OF, 1, SharedDimension::none, PrefixRule::movable},
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
    const SharedDimension shared = kindRow(a).shared;
    return a == b || (shared != SharedDimension::none && shared == kindRow(b).shared);
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
