#include "table.h"

#include <algorithm>

namespace Infusions
{
namespace
{

using Pelmora::GString;

GString repeated(char unit, std::size_t count)
{
    return GString::Text(count, static_cast<GString::Text::value_type>(unit));
}

} // namespace

GString tableText(const std::vector<TableRow>& rows)
{
    constexpr std::size_t lastColumn = std::tuple_size_v<TableRow> - 1;
    std::array<std::size_t, std::tuple_size_v<TableRow>> widths = {};
    for (const TableRow& row : rows)
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());

    GString text;
    const auto appendLine = [&](const TableRow& row, char filler) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const GString fill = repeated(filler, widths[column] - row[column].size());
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
