using System;
using Pelmora;

namespace Infusions
{
    /// <summary>An order that cannot be carried out; the message gives the reason.</summary>
    internal class OrderException : Exception
    {
        /// <summary>The text in the user's language, in which each %s stands for a value.</summary>
        public OrderException(string text, params string[] values) : base(Filled(text, values))
        {
        }

        private static string Filled(string text, string[] values)
        {
            string[] parts = Language.tr(text).Split(new[] { "%s" }, StringSplitOptions.None);
            string filled = parts[0];
            for (int i = 1; i < parts.Length; ++i)
                filled += values[i - 1] + parts[i];
            return filled;
        }
    }

    /// <summary>An infusion as a physician orders it: so much of a drug in a time, out of a bag.
    /// </summary>
    internal class Order
    {
        public readonly DrugEnum Drug;
        public readonly UnitValue Dose;
        public readonly UnitValue Weight; // of the patient; null when it is not needed
        public readonly UnitValue Amount; // of the drug in the bag
        public readonly UnitValue Volume; // of the bag

        /// <summary>Reads "DOPAMINE | 5 mcg/kg/min | 70 kg | 400 mg | 250 mL"; a weight that is not
        /// needed is "-".</summary>
        /// <exception cref="OrderException">The line does not say all that, or in units that do
        /// not fit.</exception>
        public Order(string line)
        {
            string[] fields = Array.ConvertAll(line.Split('|'), Quantity.Trimmed);
            if (fields.Length != 5)
                throw new OrderException(
                    "an order has five fields: drug, dose, weight, amount and volume");
            if (!Drugs.TryOfName(fields[0], out Drug))
                throw new OrderException("'%s' is no drug given as an infusion", fields[0]);
            Dose = Required(fields[1], "the dose is missing", "the dose cannot be read: %s");
            if (!IsAbsent(fields[2]))
                Weight = Read(fields[2], "the weight cannot be read: %s", isPatient: true);
            if (Weight != null && !Weight.unit.compatibleWith(Units.KilogramOfPatient()))
                throw new OrderException("the weight is not in kg");
            Amount = Required(fields[3], "the amount of drug in the bag is missing",
                "the amount of drug in the bag cannot be read: %s");
            Volume = Required(fields[4], "the volume of the bag is missing",
                "the volume of the bag cannot be read: %s");
        }

        public UnitValue Concentration
        {
            get
            {
                if (!Volume.unit.unitIsVolume())
                    throw new OrderException("the volume of the bag is not in mL or L");
                return Amount / Volume;
            }
        }

        /// <summary>What to set on the pump.</summary>
        /// <exception cref="OrderException">The units do not make a rate of volume, or no pump runs
        /// at that rate.</exception>
        public UnitValue PumpRate
        {
            get
            {
                if (!Dose.unit.unitIsRate())
                    throw new OrderException("the dose is not per time");
                bool isPerWeight = Dose.unit.unitIsPrPt();
                if (isPerWeight && Weight == null)
                    throw new OrderException(
                        "the dose is per kg of body weight, and the weight is missing");
                UnitValue rate = (isPerWeight ? Dose * Weight : Dose) / Concentration;
                Unit unit = Units.MillilitrePerHour();
                if (!rate.unit.compatibleWith(unit))
                    throw new OrderException("a dose in %s does not fit a bag with %s of drug",
                        Dose.unit.ToString(), Amount.unit.ToString());
                return Pump.Setting(rate.convertTo(unit));
            }
        }

        private static bool IsAbsent(string field)
        {
            return field == "" || field == "-";
        }

        private static UnitValue Required(string field, string missing, string unreadable)
        {
            if (IsAbsent(field))
                throw new OrderException(missing);
            return Read(field, unreadable, isPatient: false);
        }

        private static UnitValue Read(string field, string unreadable, bool isPatient)
        {
            try
            {
                return Quantity.Parse(field, isPatient);
            }
            catch (OrderException error)
            {
                throw new OrderException(unreadable, error.Message);
            }
        }
    }
}
