using System;
using System.Runtime.InteropServices;
using Pelmora.Native;

namespace Pelmora
{
    /// <summary>The process's language, which <see cref="Init"/> sets: translated texts, and what
    /// the language is. What changes it runs before other threads translate.</summary>
    public static class Language
    {
        /// <summary>The text in the user's language, without a tag such as the "r|" of "r|mg/dL";
        /// the text itself when it has no translation. Empty for null.</summary>
        public static string tr(string text)
        {
            byte[] narrow = Calls.Narrow(text);
            return Calls.Text((char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                NativeMethods.pelmora_tr(narrow, buffer, capacity, out length));
        }

        /// <summary>Translates from the catalogue that <see cref="Init"/> loaded. Without this or
        /// <see cref="SetTranslator"/>, nothing is translated.</summary>
        public static void UseCatalogue()
        {
            Calls.Do(() => NativeMethods.pelmora_language_use_catalogue());
            translator = null;
        }

        /// <summary>Translates by a function, which returns null for a text that it does not know;
        /// an exception in it counts as null. Null translates nothing.</summary>
        public static void SetTranslator(Func<string, string> translate)
        {
            Translator wanted = translate == null ? null : Adapted(translate);
            Calls.Do(() => NativeMethods.pelmora_language_set_translator(wanted, IntPtr.Zero));
            translator = wanted;
        }

        /// <summary>Whether texts without a translation are listed in the error log; they are not
        /// at first.</summary>
        public static void LogMissing(bool report)
        {
            Calls.Do(() => NativeMethods.pelmora_language_set_log_missing(report ? 1 : 0));
        }

        /// <summary>The language's code, "de".</summary>
        public static string Code
        {
            get { return Calls.FromNarrow(NativeMethods.pelmora_language_code); }
        }

        /// <summary>The Windows code page of the language's narrow texts.</summary>
        public static int CodePage
        {
            get
            {
                uint page = 0;
                Calls.Do(() => NativeMethods.pelmora_language_code_page(out page));
                return (int)page;
            }
        }

        /// <summary>How all numbers of the library are written: the decimal point, and a separator
        /// between groups of so many digits, or 0 for none. "." and no groups at first. No other
        /// thread makes texts meanwhile.</summary>
        /// <exception cref="ArgumentException">A character is not ASCII, is a digit, or both are
        /// the same.</exception>
        public static void SetNumberFormat(char decimalPoint, char separator = ',', int group = 0)
        {
            if (decimalPoint > 127 || separator > 127)
                throw new ArgumentException("The characters in numbers are ASCII.");
            Calls.Do(() => NativeMethods.pelmora_set_number_format(
                (byte)decimalPoint, (byte)separator, group));
        }

#pragma warning disable 414 // never read: the library calls it, so it must not be collected
        private static Translator translator;
#pragma warning restore 414

        private static Translator Adapted(Func<string, string> translate)
        {
            return (msgid, buffer, capacity, context) =>
            {
                try
                {
                    string text = translate(Calls.FromNarrow(Calls.BytesAt(msgid)));
                    if (text == null)
                        return UIntPtr.Zero;
                    if ((ulong)text.Length < (ulong)capacity)
                    {
                        Marshal.Copy(text.ToCharArray(), 0, buffer, text.Length);
                        Marshal.WriteInt16(buffer, 2 * text.Length, 0);
                    }
                    return (UIntPtr)text.Length;
                }
                catch (Exception)
                {
                    return UIntPtr.Zero; // none may pass through the native library
                }
            };
        }
    }
}
