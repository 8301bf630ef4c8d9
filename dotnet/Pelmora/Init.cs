using System.Globalization;
using Pelmora.Native;

namespace Pelmora
{
    /// <summary>Starts the library's translations: called once by a program, before it translates
    /// anything and before other threads do; again to change the language. A language whose
    /// catalogue cannot be loaded is no failure.</summary>
    public class Init
    {
        private Init()
        {
        }

        /// <summary>A language code, "de", or the path of a catalogue, which crosses to the system
        /// in the ANSI code page.</summary>
        /// <exception cref="System.NullReferenceException"><paramref name="lang"/> is null.
        /// </exception>
        /// <exception cref="System.ArgumentException">Fewer than two characters stand before
        /// ".mo".</exception>
        public static void init(string lang)
        {
            byte[] narrow = Calls.Narrow(Calls.Reference(lang, "lang"));
            Calls.Do(() => NativeMethods.pelmora_language_init(narrow));
        }

        /// <summary>The language of the thread's current culture, such as de-DE.</summary>
        public static void init()
        {
            init(CultureInfo.CurrentCulture.Name);
        }
    }
}
