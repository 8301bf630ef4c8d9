#include "table.h"

#include <algorithm>
#include <iterator>

namespace Infusions
{
namespace
{

using Pelmora::GString;
using Pelmora::WideString;

/// Characters that take two columns of a terminal, the wide ones of the Unicode Standard's
/// annex 11.
struct UnitRange {
    char16_t first;
    char16_t last;
};
constexpr UnitRange wideUnits[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3},
                                   {0xF900, 0xFAFF}, {0xFE30, 0xFE6F}, {0xFF00, 0xFF60},
                                   {0xFFE0, 0xFFE6}};

/// The columns that a text takes.
std::size_t width(const GString& text)
{
    std::size_t columns = 0;
    for (const auto unit : text) {
        const bool isWide =
            std::any_of(std::begin(wideUnits), std::end(wideUnits), [=](const UnitRange& range) {
                return unit >= range.first && unit <= range.last;
            });
        columns += isWide ? 2 : 1;
    }
    return columns;
}

GString repeated(char unit, std::size_t count)
{
    return WideString(count, static_cast<WideString::value_type>(unit));
}

} // namespace

GString tableText(const std::vector<TableRow>& rows)
{
    constexpr std::size_t lastColumn = std::tuple_size_v<TableRow> - 1;
    std::array<std::size_t, std::tuple_size_v<TableRow>> widths = {};
    for (const TableRow& row : rows)
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], width(row[column]));

    GString text;
    const auto appendLine = [&](const TableRow& row, char filler) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const GString fill = repeated(filler, widths[column] - width(row[column]));
            text += column == lastColumn ? fill + row[column] : row[column] + fill;
            text += column == lastColumn ? GString(u"\n") : GString(u"  ");
        }
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        appendLine(rows[i], ' ');
        if (i == 0)
            appendLine(TableRow(), '-');
    }
    return text;
}

} // namespace Infusions
