#pragma once

#include "pelmora/pelmora.h"

#include <array>
#include <vector>

namespace Infusions
{

using TableRow = std::array<Pelmora::GString, 4>;

/// Rows in columns: the first row is the head, the last column is aligned to the right.
Pelmora::GString tableText(const std::vector<TableRow>& rows);

} // namespace Infusions
