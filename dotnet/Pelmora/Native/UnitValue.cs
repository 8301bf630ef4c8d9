using System;
using System.Runtime.InteropServices;

namespace Pelmora.Native
{
    /// <summary>A number in a unit as the C interface has it: what its functions take in three
    /// parameters, the number, the elements and their count.</summary>
    public struct UnitValue
    {
        /// <summary>The number.</summary>
        public double value;
        /// <summary>The elements of the unit.</summary>
        public UnitElement[] unit;

        /// <summary>Keeps both.</summary>
        public UnitValue(double value, UnitElement[] unit)
        {
            this.value = value;
            this.unit = unit;
        }

        /// <summary>Copies the value from memory in which a <c>double</c>, a
        /// <c>const pelmora_element*</c> and a <c>size_t</c> stand as in a C struct.</summary>
        /// <exception cref="NullReferenceException">The pointer is null.</exception>
        public UnitValue(IntPtr memory)
        {
            if (memory == IntPtr.Zero)
                throw new NullReferenceException("'memory' is null");
            value = BitConverter.Int64BitsToDouble(Marshal.ReadInt64(memory));
            IntPtr elements = Marshal.ReadIntPtr(memory, sizeof(double));
            int count = checked((int)Marshal.ReadIntPtr(memory, sizeof(double) + IntPtr.Size));
            var numbers = new int[3 * count];
            if (count > 0)
                Marshal.Copy(elements, numbers, 0, numbers.Length);
            unit = new UnitElement[count];
            for (int i = 0; i < count; ++i)
                unit[i] = new UnitElement((UnitTypeEnum)numbers[3 * i + 1],
                    (UnitPrefix)numbers[3 * i], numbers[3 * i + 2]);
        }
    }
}
