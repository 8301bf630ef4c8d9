using System;
using Pelmora;

namespace Infusions
{
    internal static class Pump
    {
        /// <summary>An exact rate in mL/hr, rounded to what can be set on a pump: steps of 0.01
        /// mL/hr below 10, of 0.1 below 100 and of 1 above.</summary>
        /// <exception cref="OrderException">No pump runs at that.</exception>
        public static UnitValue Setting(UnitValue exact)
        {
            UnitValue slowest = Rate(0.1), fastest = Rate(1200);
            double steps = Math.Pow(10, Decimals(exact.value));
            UnitValue setting = Rate(Math.Round(exact.value * steps) / steps);
            if (setting.value >= slowest.value && setting.value <= fastest.value)
                return setting;
            throw new OrderException("a pump cannot run at %s, only at %s to %s",
                RefusedText(setting), slowest.ToString(1), fastest.ToString(0));
        }

        /// <summary>"13.1 mL/hr": a setting as a pump shows it, in one unit and in plain digits.
        /// </summary>
        public static string Text(UnitValue setting)
        {
            return setting.ToString(Decimals(setting.value));
        }

        private static int Decimals(double millilitresPerHour)
        {
            if (millilitresPerHour < 10)
                return 2;
            return millilitresPerHour < 100 ? 1 : 0;
        }

        private static UnitValue Rate(double millilitresPerHour)
        {
            return new UnitValue(millilitresPerHour, Units.MillilitrePerHour());
        }

        // Of any rate: those of mistyped orders would have hundreds of digits.
        private static string RefusedText(UnitValue setting)
        {
            const double least = 0.01, most = 1e6;
            if (setting.value > most)
                return new OrderException("more than %s", Text(Rate(most))).Message;
            if (!(setting.value >= least))
                return new OrderException("less than %s", Text(Rate(least))).Message;
            return Text(setting);
        }
    }
}
