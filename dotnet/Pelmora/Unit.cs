using System;
using Pelmora.Native;

namespace Pelmora
{
    /// <summary>A unit: the product of its elements in the order in which they were added. Objects
    /// may be read by several threads at once; whoever changes one keeps other threads away.
    /// </summary>
    [Serializable]
    public class Unit
    {
        /// <summary>Never null after construction. Units made from one another share the array
        /// until one of them replaces it, as <see cref="addElement"/> and
        /// <see cref="removeElement"/> do.</summary>
        public UnitElement[] elements;

        /// <summary>One default element: a dimensionless count.</summary>
        public Unit() : this(new UnitElement())
        {
        }

        /// <summary>The element itself, not a copy of it.</summary>
        public Unit(UnitElement ue)
        {
            elements = new[] { Calls.Reference(ue, "ue") };
        }

        /// <summary>A unit that shares the array of <paramref name="rhs"/>.</summary>
        public Unit(Unit rhs)
        {
            elements = rhs.elements;
        }

        /// <summary>New elements in the order of a unit of the C interface.</summary>
        public Unit(Native.UnitElement[] u)
        {
            elements = Array.ConvertAll(u, element => new UnitElement(element));
        }

        /// <summary>The unit of the C interface.</summary>
        public Native.UnitElement[] asNative()
        {
            var native = new Native.UnitElement[elements.Length];
            for (int i = 0; i < native.Length; ++i)
                native[i] = elements[i].asNative();
            return native;
        }

        /// <summary>Replaces the array by one that ends in <paramref name="ue"/> itself. Nothing is
        /// merged.</summary>
        public void addElement(UnitElement ue)
        {
            Calls.Reference(ue, "ue");
            var longer = new UnitElement[elements.Length + 1];
            elements.CopyTo(longer, 0);
            longer[elements.Length] = ue;
            elements = longer;
        }

        /// <summary>Replaces the array by one without the elements of this kind and returns true;
        /// returns false and keeps the array when there is none.</summary>
        public bool removeElement(UnitTypeEnum unitType_)
        {
            UnitElement[] rest = Array.FindAll(elements, element => element.unitType != unitType_);
            if (rest.Length == elements.Length)
                return false;
            elements = rest;
            return true;
        }

        /// <summary>Whether it is per time: the ISO form has s to the power -1.</summary>
        public bool unitIsRate()
        {
            return Ask(NativeMethods.pelmora_unit_is_rate);
        }

        /// <summary>Whether the ISO form has L to the power 1.</summary>
        public bool unitIsVolume()
        {
            return Ask(NativeMethods.pelmora_unit_is_volume);
        }

        /// <summary>Whether the ISO form has mol to the power 1.</summary>
        public bool unitIsMol()
        {
            return Ask(NativeMethods.pelmora_unit_is_mol);
        }

        /// <summary>Whether it is per body weight: the ISO form has grams of the patient to the
        /// power -1.</summary>
        public bool unitIsPrPt()
        {
            return Ask(NativeMethods.pelmora_unit_is_per_patient);
        }

        /// <summary>Whether the ISO form has g to the power 1.</summary>
        public bool unitIsWeight()
        {
            return Ask(NativeMethods.pelmora_unit_is_weight);
        }

        /// <summary>Whether the ISO form has units to the power 1.</summary>
        public bool unitIsUnit()
        {
            return Ask(NativeMethods.pelmora_unit_is_unit);
        }

        /// <summary>Whether values in the two units measure the same and convert into each other.
        /// </summary>
        public bool compatibleWith(Unit u)
        {
            Native.UnitElement[] a = asNative();
            Native.UnitElement[] b = u.asNative();
            int answer = 0;
            Calls.Do(() => NativeMethods.pelmora_unit_compatible(
                a, Calls.Length(a), b, Calls.Length(b), out answer));
            return answer != 0;
        }

        /// <summary>"mg/kg/min"; empty for a unit without text.</summary>
        public override string ToString()
        {
            Native.UnitElement[] unit = asNative();
            return Calls.Text((char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                NativeMethods.pelmora_unit_text(
                    unit, Calls.Length(unit), buffer, capacity, out length));
        }

        private delegate Status Question(
            Native.UnitElement[] unit, UIntPtr count, out int answer);

        private bool Ask(Question question)
        {
            Native.UnitElement[] unit = asNative();
            int answer = 0;
            Calls.Do(() => question(unit, Calls.Length(unit), out answer));
            return answer != 0;
        }
    }
}
