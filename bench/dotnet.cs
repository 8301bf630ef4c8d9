using System;
using System.Collections.Generic;
using System.Diagnostics;
using System.Globalization;
using System.Linq;
using Pelmora;

/// What two calls of the .NET classes cost. The argument is the number of repetitions; the medians
/// go to the standard output in the form of Google Benchmark's JSON.
static class Benchmark
{
    static Unit Product(UnitTypeEnum kind, UnitPrefix prefix, UnitTypeEnum time)
    {
        var unit = new Unit(new UnitElement(kind, prefix, 1));
        unit.addElement(new UnitElement(UnitTypeEnum.UNIT_G_PT, UnitPrefix.KILO, -1));
        unit.addElement(new UnitElement(time, UnitPrefix.NONE, -1));
        return unit;
    }

    static double Nanoseconds(Func<object> work, int count)
    {
        Stopwatch watch = Stopwatch.StartNew();
        for (int i = 0; i < count; ++i)
            GC.KeepAlive(work());
        return watch.Elapsed.TotalMilliseconds * 1e6 / count;
    }

    static void Main(string[] arguments)
    {
        Unit dose = Product(UnitTypeEnum.UNIT_G, UnitPrefix.MILLI, UnitTypeEnum.UNIT_MIN);
        Unit target = Product(UnitTypeEnum.UNIT_G, UnitPrefix.NONE, UnitTypeEnum.UNIT_HR);
        var value = new UnitValue(2.5, dose);
        var small = new UnitValue(0.0525, dose);
        var works = new Dictionary<string, Func<object>> {
            { ".NET: convertTo/ours", () => value.convertTo(target) },
            { ".NET: toNormalizedString/ours", () => small.toNormalizedString(3) },
        };
        const int calls = 50000;
        var rows = new List<string>();
        foreach (KeyValuePair<string, Func<object>> work in works) {
            Nanoseconds(work.Value, calls); // compiles it
            double[] times = Enumerable.Range(0, int.Parse(arguments[0]))
                .Select(i => Nanoseconds(work.Value, calls)).OrderBy(x => x).ToArray();
            rows.Add(string.Format(CultureInfo.InvariantCulture,
                "{{\"run_name\": \"{0}\", \"aggregate_name\": \"median\", " +
                "\"time_unit\": \"ns\", \"cpu_time\": {1}}}",
                work.Key, times[times.Length / 2]));
        }
        Console.WriteLine("{\"benchmarks\": [" + string.Join(",\n", rows) + "]}");
    }
}
