#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Internal: the portable half of the look-up of physical widths. It takes device identifiers apart
// and computes; it calls no function of the system.

namespace Pelmora::Native
{

/// The registry key, below HKEY_LOCAL_MACHINE, with the width of each connected monitor.
inline constexpr const char* monitorWidthTable = "SOFTWARE\\Tavelin\\MonitorWidthsMM";

/// Whether a byte is the first of a character of two bytes.
using IsLeadByte = bool (*)(unsigned char);

/// The name of a monitor in the table, cut out of the identifier of its device: the text between
/// the first and the last '#' or, in one without '#', between "Monitor\" and the last backslash; at
/// most 127 bytes. None if the identifier has neither form.
std::optional<std::string> monitorIdentifier(std::string_view deviceId, IsLeadByte isLeadByte);

/// Pixels per centimetre, rounded half up; none if the millimetres, read as a signed number, are 0
/// or less.
std::optional<int> pixelsPerCm(std::int64_t widthInPixels, std::uint32_t widthInMm);

} // namespace Pelmora::Native
