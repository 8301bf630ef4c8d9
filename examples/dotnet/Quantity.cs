using System;
using System.Globalization;
using System.Text.RegularExpressions;
using Pelmora;
using static Pelmora.UnitPrefix;
using static Pelmora.UnitTypeEnum;

namespace Infusions
{
    internal static class Units
    {
        private static readonly Tuple<string, UnitTypeEnum, UnitPrefix>[] words =
        {
            Tuple.Create("ng", UNIT_G, NANO),
            Tuple.Create("mcg", UNIT_G, MICRO),
            Tuple.Create("mg", UNIT_G, MILLI),
            Tuple.Create("g", UNIT_G, NONE),
            Tuple.Create("kg", UNIT_G, KILO),
            Tuple.Create("mL", UNIT_L, MILLI),
            Tuple.Create("L", UNIT_L, NONE),
            Tuple.Create("mmol", UNIT_MOL, MILLI),
            Tuple.Create("units", UNIT_U, NONE),
            Tuple.Create("IU", UNIT_IU, NONE),
            Tuple.Create("min", UNIT_MIN, NONE),
            Tuple.Create("hr", UNIT_HR, NONE),
        };

        public static Unit MillilitrePerHour()
        {
            var unit = new Unit(new UnitElement(UNIT_L, MILLI, 1));
            unit.addElement(new UnitElement(UNIT_HR, NONE, -1));
            return unit;
        }

        public static Unit KilogramOfPatient()
        {
            return new Unit(new UnitElement(UNIT_G_PT, KILO, 1));
        }

        /// <summary>Reads "mcg/kg/min". Grams below a line are the patient's, and above it with
        /// <paramref name="isPatient"/>.</summary>
        public static Unit Parse(string text, bool isPatient)
        {
            string[] parts = text.Split('/');
            var unit = new Unit(Element(parts[0], isPatient, 1));
            for (int i = 1; i < parts.Length; ++i)
                unit.addElement(Element(parts[i], true, -1));
            return unit;
        }

        private static UnitElement Element(string word, bool isPatient, int exponent)
        {
            var row = Array.Find(words, one => one.Item1 == word);
            if (row == null)
                throw new OrderException("there is no unit '%s'", word);
            UnitTypeEnum kind = word == "kg" && isPatient ? UNIT_G_PT : row.Item2;
            return new UnitElement(kind, row.Item3, exponent);
        }
    }

    internal static class Quantity
    {
        private static readonly Regex number =
            new Regex(@"^-?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][-+]?[0-9]+)?");

        /// <summary>Reads "5 mcg/kg/min": a number greater than 0, one unit, and the units that
        /// divide it.</summary>
        /// <exception cref="OrderException">It is anything else.</exception>
        public static UnitValue Parse(string text, bool isPatient)
        {
            string digits = number.Match(text).Value;
            double value;
            if (!double.TryParse(digits, NumberStyles.Float, CultureInfo.InvariantCulture,
                    out value) || double.IsInfinity(value))
                throw new OrderException("'%s' does not begin with a number", text);
            if (!(value > 0))
                throw new OrderException("'%s' is not more than nothing", text);
            return new UnitValue(
                value, Units.Parse(Trimmed(text.Substring(digits.Length)), isPatient));
        }

        /// <summary>"1.60 mg/mL": with the prefix that three significant digits need, and without
        /// an exponent.</summary>
        public static string Text(UnitValue quantity)
        {
            const int significantDigits = 3;
            const double roundsToFourDigits = 999.5;
            UnitValue shown = quantity.toNormalized(significantDigits);
            if (shown.value >= roundsToFourDigits)
            {
                shown.value = Math.Max(shown.value, 1000.0);
                shown = shown.toNormalized(significantDigits);
            }
            return shown.value >= roundsToFourDigits // there is no larger prefix
                ? shown.ToString(0)
                : shown.toNormalizedString(significantDigits);
        }

        public static string Trimmed(string text)
        {
            return text.Trim(' ', '\t', '\r');
        }
    }
}
