// infusions [--lang LANGUAGE] FILE: reads infusion orders and prints what to set on the pumps, the
// same as the C++ program of this name.
//
// Exit status: 0 when every order was calculated, 1 when some were refused (each is named on
// standard error with its line and the reason), 2 when nothing was calculated.

using System;
using System.Collections.Generic;
using System.IO;
using System.Text;
using Pelmora;

namespace Infusions
{
    internal static class Program
    {
        private const int allCalculated = 0, someRefused = 1, nothingDone = 2;

        private static int Main(string[] arguments)
        {
            bool hasLanguage = arguments.Length == 3 && arguments[0] == "--lang";
            if (!hasLanguage && arguments.Length != 1)
            {
                Print(Console.OpenStandardError(), "usage: infusions [--lang LANGUAGE] FILE\n");
                return nothingDone;
            }
            try
            {
                if (hasLanguage)
                    Speak(arguments[1]);
                return Run(arguments[arguments.Length - 1]);
            }
            catch (Exception error)
            {
                Print(Console.OpenStandardError(), "infusions: " + error.Message + "\n");
                return nothingDone;
            }
        }

        private static void Speak(string language)
        {
            Init.init(language);
            Language.UseCatalogue();
            Language.LogMissing(true);
        }

        private static int Run(string fileName)
        {
            string[] lines;
            try
            {
                // One character a byte, as the library reads narrow text.
                lines = File.ReadAllText(fileName, Encoding.GetEncoding("iso-8859-1")).Split('\n');
            }
            catch (Exception error) when (
                error is IOException || error is UnauthorizedAccessException)
            {
                return Failure(fileName, "the file cannot be read");
            }
            var rows = new List<string[]>
            {
                Array.ConvertAll(
                    new[] { "Drug", "Dose", "Concentration", "Pump rate" }, Language.tr)
            };
            string refused = "";
            for (int i = 0; i < lines.Length; ++i)
            {
                string content = Quantity.Trimmed(lines[i]);
                if (content == "" || content[0] == '#')
                    continue;
                try
                {
                    rows.Add(TableRow(new Order(content)));
                }
                catch (OrderException error)
                {
                    refused += fileName + ":" + (i + 1) + ": " + Language.tr("order refused:") +
                        " " + error.Message + "\n";
                }
            }
            if (rows.Count == 1 && refused == "")
                return Failure(fileName, "the file has no orders");
            Print(Console.OpenStandardOutput(), Table.Text(rows));
            Print(Console.OpenStandardError(), refused);
            return refused == "" ? allCalculated : someRefused;
        }

        private static string[] TableRow(Order order)
        {
            return new[]
            {
                Drugs.DisplayName(order.Drug), Quantity.Text(order.Dose),
                Quantity.Text(order.Concentration), Pump.Text(order.PumpRate)
            };
        }

        private static int Failure(string fileName, string reason)
        {
            Print(Console.OpenStandardError(), fileName + ": " + Language.tr(reason) + "\n");
            return nothingDone;
        }

        // The console's own encoding depends on the system and on the user.
        private static void Print(Stream stream, string text)
        {
            byte[] bytes = new UTF8Encoding(false).GetBytes(text);
            stream.Write(bytes, 0, bytes.Length);
            stream.Flush();
        }
    }
}
