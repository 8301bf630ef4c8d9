using System;
using Pelmora;
using static Pelmora.UnitPrefix;
using static Pelmora.UnitTypeEnum;

internal static class Program
{
    private static void Main()
    {
        var dose = new UnitValue(0.05, new Unit(new UnitElement(UNIT_G, MILLI, 1)));
        Console.WriteLine(dose.toNormalizedString(3));
    }
}
