using System;
using System.Globalization;
using Pelmora.Native;

namespace Pelmora
{
    /// <summary>A measured quantity: a number in a unit. Operations return new objects that share
    /// nothing with the operands. Objects may be read by several threads at once; whoever changes
    /// one keeps other threads away.</summary>
    /// <remarks>On purpose there is no ToString without parameters: what a dose is shown with is a
    /// decision. As an <see cref="IFormattable"/> a value knows the formats "F2", which is
    /// <see cref="ToString(int)"/> with 2, and "S3", which is
    /// <see cref="toNormalizedString"/> with 3.</remarks>
    [Serializable]
    public class UnitValue : IFormattable
    {
        /// <summary>The number.</summary>
        public double value;
        /// <summary>What the number counts; other values may share it.</summary>
        public Unit unit;

        /// <summary>0.0 of a new default unit.</summary>
        public UnitValue() : this(0.0, new Unit())
        {
        }

        /// <summary>Keeps the reference: the value shares the unit with whoever else holds it.
        /// </summary>
        public UnitValue(double value_, Unit unit_)
        {
            value = value_;
            unit = Calls.Reference(unit_, "unit_");
        }

        /// <summary>A value that shares the unit of <paramref name="rhs"/>.</summary>
        public UnitValue(UnitValue rhs) : this(rhs.value, rhs.unit)
        {
        }

        /// <summary>Copies a value from memory, where it stands as
        /// <see cref="Native.UnitValue(IntPtr)"/> says.</summary>
        public UnitValue(IntPtr uep) : this(new Native.UnitValue(uep))
        {
        }

        /// <summary>From a value of the C interface.</summary>
        public UnitValue(Native.UnitValue u) : this(u.value, new Unit(u.unit))
        {
        }

        /// <summary>The value of the C interface.</summary>
        public Native.UnitValue asNative()
        {
            return new Native.UnitValue(value, unit.asNative());
        }

        /// <summary>The product, reduced. A unit that stands for nothing makes its value a neutral
        /// operand.</summary>
        public UnitValue mul(UnitValue rhs)
        {
            return Combined(NativeMethods.pelmora_value_mul_reduced, rhs);
        }

        /// <summary>The quotient, reduced. Dividing by 0 gives 0 in the unit of the dividend.
        /// </summary>
        public UnitValue div(UnitValue rhs)
        {
            return Combined(NativeMethods.pelmora_value_div_reduced, rhs);
        }

        /// <summary>The value in another unit, in reduced form. Not checked: between units that are
        /// not compatible the number has no meaning, so ask <see cref="Unit.compatibleWith"/>
        /// first.</summary>
        public UnitValue convertTo(Unit unit)
        {
            Native.UnitElement[] from = this.unit.asNative();
            Native.UnitElement[] to = unit.asNative();
            return Result(from.Length + to.Length,
                (out double number, Native.UnitElement[] buffer, UIntPtr capacity,
                    out UIntPtr count) => NativeMethods.pelmora_value_convert_reduced(
                        value, from, Calls.Length(from), to, Calls.Length(to),
                        out number, buffer, capacity, out count));
        }

        /// <summary>With the prefix that makes the number readable: at least 0.1 and at most
        /// <paramref name="significantDigits"/> digits before the point, as far as prefixes reach.
        /// </summary>
        public UnitValue toNormalized(int significantDigits)
        {
            Native.UnitElement[] a = unit.asNative();
            return Result(a.Length,
                (out double number, Native.UnitElement[] buffer, UIntPtr capacity,
                    out UIntPtr count) => NativeMethods.pelmora_value_normalized(
                        value, a, Calls.Length(a), significantDigits,
                        out number, buffer, capacity, out count));
        }

        /// <summary>"13.1 mL/hr": normalised, with so many significant digits.</summary>
        public string toNormalizedString(int significantDigits)
        {
            return Text(NativeMethods.pelmora_value_normalized_text, significantDigits);
        }

        /// <summary>"13.12 mL/hr": with so many digits after the point; negative for up to 6
        /// significant digits.</summary>
        public string ToString(int displayDecimals)
        {
            return Text(NativeMethods.pelmora_value_text, displayDecimals);
        }

        /// <summary>The same as <see cref="mul"/>.</summary>
        public static UnitValue operator *(UnitValue a, UnitValue b)
        {
            return a.mul(b);
        }

        /// <summary>The same as <see cref="div"/>.</summary>
        public static UnitValue operator /(UnitValue a, UnitValue b)
        {
            return a.div(b);
        }

        /// <summary>"F" and "S" with a number of digits; without a format the same as
        /// <see cref="object.ToString"/>. Numbers are written as the library is set to, whatever
        /// the provider.</summary>
        /// <exception cref="FormatException">The format is another one.</exception>
        string IFormattable.ToString(string format, IFormatProvider provider)
        {
            if (string.IsNullOrEmpty(format) || format == "G")
                return ToString();
            int digits;
            if (int.TryParse(format.Substring(1), NumberStyles.None, CultureInfo.InvariantCulture,
                    out digits))
            {
                if (format[0] == 'F')
                    return ToString(digits);
                if (format[0] == 'S')
                    return toNormalizedString(digits);
            }
            throw new FormatException(
                "Pelmora.UnitValue has the formats \"F2\" (digits after the point) and \"S3\" " +
                "(significant digits), and not \"" + format + "\"");
        }

        private delegate Status Combination(double a, Native.UnitElement[] aUnit, UIntPtr aCount,
            double b, Native.UnitElement[] bUnit, UIntPtr bCount, out double number,
            Native.UnitElement[] buffer, UIntPtr capacity, out UIntPtr count);

        private delegate Status Calculation(out double number, Native.UnitElement[] buffer,
            UIntPtr capacity, out UIntPtr count);

        private delegate Status Writing(double a, Native.UnitElement[] unit, UIntPtr count,
            int digits, char[] buffer, UIntPtr capacity, out UIntPtr length);

        private UnitValue Combined(Combination combination, UnitValue rhs)
        {
            Native.UnitElement[] a = unit.asNative();
            Native.UnitElement[] b = rhs.unit.asNative();
            return Result(a.Length + b.Length,
                (out double number, Native.UnitElement[] buffer, UIntPtr capacity,
                    out UIntPtr count) => combination(value, a, Calls.Length(a),
                        rhs.value, b, Calls.Length(b), out number, buffer, capacity, out count));
        }

        /// <summary>The result of a calculation whose operands have so many elements together; it
        /// never has more.</summary>
        private static UnitValue Result(int elements, Calculation calculation)
        {
            var buffer = new Native.UnitElement[elements];
            double number = 0.0;
            UIntPtr count = UIntPtr.Zero;
            Calls.Do(() => calculation(out number, buffer, Calls.Length(buffer), out count));
            Array.Resize(ref buffer, (int)count);
            return new UnitValue(new Native.UnitValue(number, buffer));
        }

        private string Text(Writing writing, int digits)
        {
            Native.UnitElement[] a = unit.asNative();
            return Calls.Text((char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                writing(value, a, Calls.Length(a), digits, buffer, capacity, out length));
        }
    }
}
