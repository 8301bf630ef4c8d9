#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What the monitors' physical widths are told by, apart from the system's answers.

namespace Pelmora::Native
{

/// The registry key, below HKEY_LOCAL_MACHINE, with the width of each monitor model.
inline constexpr const char* monitorWidthTable = "SOFTWARE\\Tavelin\\MonitorWidthsMM";

/// Whether a byte is the first of a character of two bytes.
using IsLeadByte = bool (*)(unsigned char);

/// The name of a monitor model in the table, out of the identifier string of a monitor device:
/// what stands between its first and last '#', or, where there is none, between "Monitor\" and the
/// last backslash; at most 127 bytes. None when the string has neither form or does not close it.
std::optional<std::string> monitorIdentifier(std::string_view deviceId, IsLeadByte isLeadByte);

/// Pixels per centimetre, rounded half up, of a monitor so many pixels and millimetres wide; none
/// when the millimetres, read as a signed number, are not more than 0.
std::optional<int> pixelsPerCm(std::int64_t widthInPixels, std::uint32_t widthInMm);

} // namespace Pelmora::Native
