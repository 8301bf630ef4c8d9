using System;
using System.Collections.Generic;
using System.Linq;

namespace Infusions
{
    internal static class Table
    {
        // Characters that take two columns of a terminal, the wide ones of the Unicode Standard's
        // annex 11: first and last of each range.
        private static readonly string[] wide =
        {
            "\u1100\u115F", "\u2E80\uA4CF", "\uAC00\uD7A3", "\uF900\uFAFF", "\uFE30\uFE6F",
            "\uFF00\uFF60", "\uFFE0\uFFE6"
        };

        /// <summary>Rows in columns: the first row is the head, the last column is aligned to the
        /// right.</summary>
        public static string Text(List<string[]> rows)
        {
            int last = rows[0].Length - 1;
            int[] widths = Enumerable.Range(0, last + 1)
                .Select(column => rows.Max(row => Width(row[column]))).ToArray();
            Func<string[], char, string> line = (row, filler) => string.Join("  ",
                row.Select((text, column) =>
                {
                    string fill = new string(filler, widths[column] - Width(text));
                    return column == last ? fill + text : text + fill;
                })) + "\n";
            IEnumerable<string> lines = rows.Select(row => line(row, ' '));
            string rule = line(widths.Select(width => "").ToArray(), '-');
            return lines.First() + rule + string.Concat(lines.Skip(1));
        }

        private static int Width(string text)
        {
            return text.Sum(unit =>
                wide.Any(range => unit >= range[0] && unit <= range[1]) ? 2 : 1);
        }
    }
}
