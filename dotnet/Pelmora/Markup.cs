using System;
using Pelmora.Native;

namespace Pelmora
{
    /// <summary>Texts in XML and HTML.</summary>
    public static class Markup
    {
        /// <summary>&amp; &gt; " ' &lt; as entities.</summary>
        public static string Escape(string text)
        {
            return Changed(NativeMethods.pelmora_escape, text);
        }

        /// <summary>The five entities as characters, once.</summary>
        public static string Unescape(string text)
        {
            return Changed(NativeMethods.pelmora_unescape, text);
        }

        /// <summary>A link with a target, or the text alone for an empty target; neither is
        /// escaped.</summary>
        public static string Link(string text, string target)
        {
            return Calls.Text((char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                NativeMethods.pelmora_make_link(text, target, buffer, capacity, out length));
        }

        private delegate Status Change(
            string text, UIntPtr textLength, char[] buffer, UIntPtr capacity, out UIntPtr length);

        private static string Changed(Change change, string text)
        {
            return Calls.Text((char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                change(text, Calls.Length(text), buffer, capacity, out length));
        }
    }
}
