using System;

namespace Pelmora
{
    /// <summary>One factor of a unit: base unit, decimal prefix and power. Several units may hold
    /// one element; a change of its fields shows through all of them.</summary>
    [Serializable]
    public class UnitElement
    {
        /// <summary>Base unit.</summary>
        public UnitTypeEnum unitType;
        /// <summary>Decimal prefix.</summary>
        public UnitPrefix prefix;
        /// <summary>Power; negative for a divisor.</summary>
        public int exponent;

        /// <summary><c>UNIT_NUMBER_OF</c>, <c>NONE</c>, 1: a dimensionless count.</summary>
        public UnitElement() : this(UnitTypeEnum.UNIT_NUMBER_OF, UnitPrefix.NONE, 1)
        {
        }

        /// <summary>Stores the three values.</summary>
        public UnitElement(UnitTypeEnum unitType_, UnitPrefix prefix_, int exponent_)
        {
            unitType = unitType_;
            prefix = prefix_;
            exponent = exponent_;
        }

        /// <summary>A copy of an element.</summary>
        public UnitElement(UnitElement rhs) : this(rhs.unitType, rhs.prefix, rhs.exponent)
        {
        }

        /// <summary>From an element of the C interface.</summary>
        public UnitElement(Native.UnitElement ue) : this(ue.unitType, ue.prefix, ue.exponent)
        {
        }

        /// <summary>The element of the C interface.</summary>
        public Native.UnitElement asNative()
        {
            return new Native.UnitElement(unitType, prefix, exponent);
        }

        /// <summary>Whether all three fields are equal; kilogram and gram are different.</summary>
        public bool isEqual(UnitElement rhs)
        {
            return unitType == rhs.unitType && prefix == rhs.prefix && exponent == rhs.exponent;
        }
    }
}
