using System;
using System.IO;
using System.Runtime.InteropServices;
using System.Runtime.Serialization.Formatters.Binary;
using NUnit.Framework;

namespace Pelmora.Tests
{
    using static UnitPrefix;
    using static UnitTypeEnum;

    [TestFixture]
    public class UnitsTest
    {
        private static readonly UnitElement mg = new UnitElement(UNIT_G, MILLI, 1);
        private static readonly UnitElement mL = new UnitElement(UNIT_L, MILLI, 1);
        private static readonly UnitElement perHr = new UnitElement(UNIT_HR, NONE, -1);
        private static readonly UnitElement perMin = new UnitElement(UNIT_MIN, NONE, -1);

        private static Unit UnitOf(params UnitElement[] elements)
        {
            return new Unit { elements = elements };
        }

        [Test]
        public void DefaultsCountNothing()
        {
            var value = new UnitValue();
            Assert.AreEqual(0.0, value.value);
            Assert.AreEqual(1, value.unit.elements.Length);
            Assert.True(value.unit.elements[0].isEqual(new UnitElement(UNIT_NUMBER_OF, NONE, 1)));
            Assert.False(mg.isEqual(new UnitElement(UNIT_G, NONE, 1)));
            Assert.True(new UnitElement(mg).isEqual(mg));
        }

        [Test]
        public void FieldsAreMappedByNameFromNativeMemory()
        {
            var elements = GCHandle.Alloc(new[] { -1, 0, 1, 1, 13, -2 }, GCHandleType.Pinned);
            IntPtr memory = Marshal.AllocHGlobal(8 + 2 * IntPtr.Size);
            Marshal.WriteInt64(memory, BitConverter.DoubleToInt64Bits(2.5));
            Marshal.WriteIntPtr(memory, 8, elements.AddrOfPinnedObject());
            Marshal.WriteIntPtr(memory, 8 + IntPtr.Size, (IntPtr)2);
            var value = new UnitValue(memory);
            Marshal.FreeHGlobal(memory);
            elements.Free();
            Assert.AreEqual("2.5 mg/kg\u00B2", value.ToString(1));
            Assert.True(value.unit.elements[1].isEqual(new UnitElement(UNIT_G_PT, KILO, -2)));
            Assert.AreEqual(value.asNative().unit, new Unit(value.unit.asNative()).asNative());
        }

        [Test]
        public void UnitsShareUntilTheirArrayIsReplaced()
        {
            var gram = new UnitElement(UNIT_G, MILLI, 1);
            var original = new Unit(gram);
            var longer = new Unit(original);
            var shorter = new Unit(original);
            Assert.AreSame(original.elements, longer.elements);
            gram.prefix = KILO;
            Assert.AreEqual("kg", longer.ToString());

            longer.addElement(perHr);
            Assert.AreEqual("kg/hr", longer.ToString());
            Assert.AreSame(perHr, longer.elements[1]);
            Assert.True(shorter.removeElement(UNIT_G));
            Assert.AreEqual("", shorter.ToString());
            Assert.AreEqual("kg", original.ToString());
            var value = new UnitValue(5, original);
            Assert.AreSame(original, new UnitValue(value).unit);
        }

        [Test]
        public void RemovalTakesEveryElementOfAKind()
        {
            Unit unit = UnitOf(mg, new UnitElement(UNIT_L, NONE, -1), mg);
            UnitElement[] array = unit.elements;
            Assert.False(unit.removeElement(UNIT_MOL));
            Assert.AreSame(array, unit.elements);
            Assert.True(unit.removeElement(UNIT_G));
            Assert.AreEqual("/L", unit.ToString());
            Assert.False(unit.removeElement(UNIT_G));
            Assert.AreEqual(3, array.Length);
        }

        [Test]
        public void ArithmeticIsReducedAndSharesNothing()
        {
            var dose = new UnitValue(5, UnitOf(new UnitElement(UNIT_G, MICRO, 1),
                new UnitElement(UNIT_G_PT, KILO, -1), perMin));
            var weight = new UnitValue(70, UnitOf(new UnitElement(UNIT_G_PT, KILO, 1)));
            UnitValue concentration =
                new UnitValue(400, UnitOf(mg)) / new UnitValue(250, UnitOf(mL));

            UnitValue rate = dose * weight;
            Assert.AreEqual("350 mcg/min", rate.ToString(0));
            Assert.AreNotSame(dose.unit.elements[0], rate.unit.elements[0]);
            UnitValue pump = rate.div(concentration).convertTo(UnitOf(mL, perHr));
            Assert.AreEqual(13.125, pump.value);
            Assert.AreNotSame(mL, pump.unit.elements[0]);
            Assert.AreEqual("0.0131 L/hr", pump.toNormalized(1).ToString(4));

            UnitValue area = new UnitValue(3, UnitOf(new UnitElement(UNIT_M, NONE, 2))).convertTo(
                UnitOf(new UnitElement(UNIT_CM, NONE, 1), new UnitElement(UNIT_M, NONE, 1)));
            Assert.AreEqual("m\u00B2", area.unit.ToString());
            Assert.AreEqual("2.0", new UnitValue(2, UnitOf()).mul(new UnitValue(1, UnitOf()))
                .ToString(1).Trim());
        }

        [Test]
        public void AUnitKnowsWhatItMeasures()
        {
            Unit infusion = UnitOf(mL, perHr);
            Assert.True(infusion.compatibleWith(UnitOf(new UnitElement(UNIT_L, NONE, 1), perMin)));
            Assert.False(infusion.compatibleWith(UnitOf(mg, perHr)));
            string answers = "";
            foreach (Unit unit in new[] { infusion, UnitOf(mg), new Unit(
                new UnitElement(UNIT_MOL, NONE, 1)), new Unit(new UnitElement(UNIT_U, NONE, 1)),
                new Unit(new UnitElement(UNIT_G_PT, KILO, -1)) })
                foreach (bool answer in new[] { unit.unitIsRate(), unit.unitIsVolume(),
                    unit.unitIsWeight(), unit.unitIsMol(), unit.unitIsUnit(), unit.unitIsPrPt() })
                    answers += answer ? "1" : "0";
            Assert.AreEqual("110000" + "001000" + "000100" + "000010" + "000001", answers);
        }

        [Test]
        public void AValueHasNoTextWithoutAFormat()
        {
            var value = new UnitValue(13.126, UnitOf(mL, perHr));
            Assert.AreEqual("Pelmora.UnitValue", value.ToString());
            Assert.AreEqual("Pelmora.UnitValue|13.13 mL/hr|13.1 mL/hr",
                string.Format("{0}|{0:F2}|{0:S3}", value));
            foreach (string format in new[] { "X2", "F", "F-1", "F2 " })
                Assert.Throws<FormatException>(
                    () => ((IFormattable)value).ToString(format, null), format);
        }

        [Test]
        public void NullReferencesFailAsThePlatformDoes()
        {
            var unit = new Unit(mg);
            var value = new UnitValue(1, unit);
            var rows = new TestDelegate[]
            {
                () => unit.addElement(null), () => new Unit((UnitElement)null),
                () => new Unit((Unit)null), () => new UnitElement((UnitElement)null),
                () => mg.isEqual(null), () => new UnitValue(1, null),
                () => new UnitValue((UnitValue)null), () => new UnitValue(IntPtr.Zero),
                () => value.mul(null), () => value.div(null), () => value.convertTo(null),
                () => unit.compatibleWith(null),
                () => new UnitValue { unit = null }.ToString(1),
                () => value.mul(new UnitValue { unit = null }),
                () => UnitOf(null).ToString(), () => UnitOf(null).addElement(mg),
                () => UnitOf(mg, null).unitIsRate(),
                () => UnitOf(mg, null).removeElement(UNIT_G),
            };
            for (int i = 0; i < rows.Length; ++i)
                Assert.Throws<NullReferenceException>(rows[i], "row " + i);
        }

        [Test]
        public void UnitsThatShareStillShareAfterARoundTrip()
        {
            var dose = new Unit(new UnitElement(UNIT_G, MILLI, 1));
            var value = new UnitValue(2.5, new Unit(dose));
            var report = new ExceptionData("no \u00E9lan \uD83D\uDE00", "ward", "trace", "site");
            var formatter = new BinaryFormatter();
            var stream = new MemoryStream();
            formatter.Serialize(stream, new object[] { dose, value, report });
            stream.Position = 0;
            var read = (object[])formatter.Deserialize(stream);
            var readDose = (Unit)read[0];
            var readValue = (UnitValue)read[1];
            Assert.AreEqual("2.5 mg", readValue.ToString(1));
            Assert.AreSame(readDose.elements, readValue.unit.elements);
            readDose.elements[0].prefix = KILO;
            Assert.AreEqual("kg", readValue.unit.ToString());
            Assert.AreEqual(report.mMessage, ((ExceptionData)read[2]).mMessage);
            Assert.AreEqual(report.mDateTime, ((ExceptionData)read[2]).mDateTime);
        }
    }
}
