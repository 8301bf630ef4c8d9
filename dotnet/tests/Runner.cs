using System;
using System.Linq;
using System.Reflection;
using NUnit.Framework;

namespace Pelmora.Tests
{
    /// <summary>Runs the tests where NUnit's own runner does not start; the exit status is the
    /// number of those that failed.</summary>
    public static class Runner
    {
        public static int Main()
        {
            int passed = 0, failed = 0;
            foreach (MethodInfo method in Assembly.GetExecutingAssembly().GetTypes()
                .SelectMany(type => type.GetMethods()))
            {
                var rows = method.GetCustomAttributes(typeof(TestCaseAttribute), false)
                    .Select(row => ((TestCaseAttribute)row).Arguments).ToList();
                if (method.IsDefined(typeof(TestAttribute), false))
                    rows.Add(null);
                foreach (object[] row in rows)
                {
                    try
                    {
                        method.Invoke(Activator.CreateInstance(method.DeclaringType), row);
                        ++passed;
                    }
                    catch (TargetInvocationException error)
                    {
                        ++failed;
                        Console.WriteLine(method.Name + "(" + string.Join(", ", row ??
                            new object[0]) + "): " + error.InnerException);
                    }
                }
            }
            Console.WriteLine(passed + " tests passed, " + failed + " failed, on " +
                Environment.OSVersion + ", runtime " + Environment.Version);
            return failed;
        }
    }
}
