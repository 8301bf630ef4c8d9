using System;
using System.Collections.Generic;
using System.IO;
using System.Reflection;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;

namespace Pelmora.Native
{
    /// <summary>Finds the native library: beside this assembly or the program, or below them in
    /// runtimes/RID/native, and else where the system looks for libraries.</summary>
    /// <remarks>.NET finds a package's runtimes folder itself, but only for programs that it built;
    /// the .NET Framework and mono never do.</remarks>
    internal static class Library
    {
        private static readonly object gate = new object();
        private static volatile bool loaded;
        private static List<string> candidates; // null before the search
        private static string target; // null when the search is left to the runtime
        private static Func<string, IntPtr> load;

        private static bool IsWindows
        {
            get { return Environment.OSVersion.Platform == PlatformID.Win32NT; }
        }

        /// <summary>Loads the library; does nothing when it is loaded.</summary>
        /// <exception cref="DllNotFoundException">It is missing, cannot be loaded, or is not the
        /// one that belongs to this assembly.</exception>
        internal static void Require()
        {
            if (loaded)
                return;
            lock (gate)
            {
                if (candidates == null)
                    Search();
                int abi;
                try
                {
                    abi = NativeAbi();
                }
                catch (Exception error) when (error is DllNotFoundException ||
                    error is BadImageFormatException || error is EntryPointNotFoundException)
                {
                    throw new DllNotFoundException(Explanation(error), error);
                }
                if (abi != NativeMethods.Abi)
                    throw new DllNotFoundException("The native library " + target +
                        " has version " + abi + " of the C interface, and Pelmora.dll needs " +
                        "version " + NativeMethods.Abi + ": take both from one release.");
                loaded = true;
            }
        }

        // Mono looks for a function's library before the method that calls it begins.
        [MethodImpl(MethodImplOptions.NoInlining)]
        private static int NativeAbi()
        {
            return NativeMethods.pelmora_abi();
        }

        private static void Search()
        {
            candidates = Candidates();
            target = candidates.Find(File.Exists) ?? (IsWindows ? null : "libpelmora-c.so.1");
            if (target == null)
                return;
            // Each runtime is told in its own way what "pelmora-c" stands for.
            Type loader = Type.GetType("System.Runtime.InteropServices.NativeLibrary");
            if (loader != null)
                SetResolver(loader);
            else if (IsWindows)
                LoadLibraryW(target); // the name alone finds it from now on
            else
                mono_dllmap_insert(IntPtr.Zero, NativeMethods.LibraryName, null, target, null);
        }

        private static List<string> Candidates()
        {
            string runtime = (IsWindows ? "win-" : "linux-") + (IntPtr.Size == 8 ? "x64" : "x86");
            string[] names = IsWindows
                ? new[] { "pelmora-c.dll" }
                : new[] { "libpelmora-c.so", "libpelmora-c.so.1" };
            var found = new List<string>();
            Action<string> add = folder =>
            {
                foreach (string name in names)
                {
                    string path = Path.Combine(folder, name);
                    if (!found.Contains(path))
                        found.Add(path);
                }
            };
            string program = AppDomain.CurrentDomain.BaseDirectory;
            string assembly = typeof(Library).Assembly.Location; // empty when loaded from memory
            string own = assembly == "" ? program : Path.GetDirectoryName(assembly);
            foreach (string folder in new[] { own, program })
            {
                add(folder);
                add(Path.Combine(folder, "runtimes", runtime, "native"));
            }
            // Where .NET has the packages of a program that is not published.
            object packages = AppDomain.CurrentDomain.GetData("NATIVE_DLL_SEARCH_DIRECTORIES");
            foreach (string folder in (packages as string ?? "").Split(
                    new[] { Path.PathSeparator }, StringSplitOptions.RemoveEmptyEntries))
                add(folder);
            return found;
        }

        private static string Explanation(Exception error)
        {
            if (target != null && File.Exists(target))
                return "Pelmora's native library " + target + " cannot be used by this " +
                    (IntPtr.Size == 8 ? "64" : "32") + "-bit program: " + error.Message;
            return "Pelmora's native library is missing. Put it beside Pelmora.dll. None of " +
                "these files exists, and the system does not find it either:\n    " +
                string.Join("\n    ", candidates);
        }

        /// <summary>NativeLibrary.SetDllImportResolver, which is newer than what this assembly is
        /// compiled against.</summary>
        private static void SetResolver(Type loader)
        {
            load = (Func<string, IntPtr>)Delegate.CreateDelegate(typeof(Func<string, IntPtr>),
                loader.GetMethod("Load", new[] { typeof(string) }));
            MethodInfo set = loader.GetMethod("SetDllImportResolver");
            MethodInfo resolve = typeof(Library).GetMethod(
                "Resolve", BindingFlags.Static | BindingFlags.NonPublic);
            Delegate resolver = Delegate.CreateDelegate(
                set.GetParameters()[1].ParameterType, resolve);
            set.Invoke(null, new object[] { typeof(Library).Assembly, resolver });
        }

        private static IntPtr Resolve(string name, Assembly assembly, DllImportSearchPath? search)
        {
            return name == NativeMethods.LibraryName ? load(target) : IntPtr.Zero;
        }

        [DllImport("kernel32", CharSet = CharSet.Unicode, ExactSpelling = true)]
        private static extern IntPtr LoadLibraryW(string path);

        [DllImport("__Internal", CharSet = CharSet.Ansi)]
        private static extern void mono_dllmap_insert(
            IntPtr assembly, string name, string function, string target, string targetFunction);
    }
}
