using System;
using System.Runtime.InteropServices;

namespace Pelmora.Native
{
    /// <summary>One factor of a unit as the C interface has it, a <c>pelmora_element</c>. An array
    /// of these is a unit.</summary>
    [Serializable]
    [StructLayout(LayoutKind.Sequential)]
    public struct UnitElement : IEquatable<UnitElement>
    {
        /// <summary>Decimal prefix.</summary>
        public UnitPrefix prefix;
        /// <summary>Base unit.</summary>
        public UnitTypeEnum unitType;
        /// <summary>Power; negative for a divisor.</summary>
        public int exponent;

        /// <summary>Stores the three values.</summary>
        public UnitElement(UnitTypeEnum unitType, UnitPrefix prefix, int exponent)
        {
            this.unitType = unitType;
            this.prefix = prefix;
            this.exponent = exponent;
        }

        /// <summary>Whether all three fields are equal; kilogram and gram are different.</summary>
        public bool Equals(UnitElement other)
        {
            return unitType == other.unitType && prefix == other.prefix &&
                exponent == other.exponent;
        }

        /// <summary>Whether <paramref name="other"/> is an element with equal fields.</summary>
        public override bool Equals(object other)
        {
            return other is UnitElement && Equals((UnitElement)other);
        }

        /// <summary>Equal for equal elements.</summary>
        public override int GetHashCode()
        {
            return ((int)unitType * 31 + (int)prefix) * 31 + exponent;
        }

        /// <summary>The same as <see cref="Equals(UnitElement)"/>.</summary>
        public static bool operator ==(UnitElement a, UnitElement b)
        {
            return a.Equals(b);
        }

        /// <summary>The opposite of <see cref="Equals(UnitElement)"/>.</summary>
        public static bool operator !=(UnitElement a, UnitElement b)
        {
            return !a.Equals(b);
        }
    }
}
