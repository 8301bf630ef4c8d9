#pragma once

// Short texts of everyday numbers, found without the long division that any number may need.
// Internal to the units folder.

namespace Pelmora::Native
{

/// Room for what these functions write.
inline constexpr int longestShortNumber = 32;

/// Writes what `std::to_chars` writes in fixed notation, and returns its end; null, with nothing
/// written, for more than 3 decimals, from 2^53 up, and for what is not finite.
char* writeShortFixed(char* out, double value, int decimals) noexcept;

/// The same for general notation; null, too, where that takes an exponent or more than 3 decimals.
char* writeShortGeneral(char* out, double value, int digits) noexcept;

} // namespace Pelmora::Native
