using System;
using Pelmora.Native;

namespace Pelmora
{
    /// <summary>The process's error log, "errors.txt" in the temporary folder, which is made on
    /// first use. Lines of several threads may mix item by item. A log that cannot be opened drops
    /// everything and is no failure.</summary>
    public static class Log
    {
        /// <summary>How the log is made; called before its first use. The file is in the temporary
        /// folder unless its name has a drive. With <paramref name="append"/> what an earlier
        /// process left stays in it.</summary>
        public static void Configure(string fileName, string header = null, bool append = false)
        {
            byte[] file = Calls.Narrow(fileName);
            byte[] text = Calls.Narrow(header);
            Calls.Do(() => NativeMethods.pelmora_log_configure(file, text, append ? 1 : 0));
        }

        /// <summary>Writes a text, without ending its line.</summary>
        public static void Write(string text)
        {
            byte[] narrow = Calls.Narrow(text);
            Calls.Do(() => NativeMethods.pelmora_log_write(narrow));
        }

        /// <summary>Writes a text and ends its line.</summary>
        public static void WriteLine(string text)
        {
            byte[] narrow = Calls.Narrow(text);
            Calls.Do(() => NativeMethods.pelmora_log_line(narrow));
        }

        /// <summary>Writes a line of dashes.</summary>
        public static void Separator()
        {
            Calls.Do(() => NativeMethods.pelmora_log_separator());
        }

        /// <summary>The log's file.</summary>
        public static string Path
        {
            get { return Calls.FromNarrow(NativeMethods.pelmora_log_path); }
        }
    }
}
