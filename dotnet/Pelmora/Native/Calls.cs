using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Text;

namespace Pelmora.Native
{
    /// <summary>How every function of the C interface is called: the library is loaded before the
    /// first one, failures become exceptions, and results of variable length get a buffer that
    /// holds them.</summary>
    internal static class Calls
    {
        internal delegate Status TextFunction(
            char[] buffer, UIntPtr capacity, out UIntPtr length);

        internal delegate Status BytesFunction(
            byte[] buffer, UIntPtr capacity, out UIntPtr length);

        private const int usualCapacity = 128;
        private const uint ansi = 0;

        internal static Status Try(Func<Status> function)
        {
            Library.Require();
            return function();
        }

        internal static void Do(Func<Status> function)
        {
            Check(Try(function));
        }

        internal static void Check(Status status)
        {
            switch (status)
            {
                case Status.Ok:
                    return;
                case Status.NullArgument:
                    throw new NullReferenceException(LastError());
                case Status.BadArgument:
                    throw new ArgumentException(LastError());
                case Status.NotFound:
                    throw new KeyNotFoundException(LastError());
                case Status.Malformed:
                    throw new FormatException(LastError());
                case Status.OutOfMemory:
                    throw new OutOfMemoryException(LastError());
                default:
                    throw new InvalidOperationException(LastError());
            }
        }

        internal static Status TryText(TextFunction function, out string text)
        {
            var buffer = new char[usualCapacity];
            UIntPtr length = UIntPtr.Zero;
            Status status;
            // The text may have grown when it is asked for again.
            while ((status = Try(() => function(buffer, Length(buffer), out length))) ==
                    Status.BufferTooSmall)
                buffer = new char[checked((int)length + 1)];
            text = new string(buffer, 0, (int)length);
            return status;
        }

        internal static string Text(TextFunction function)
        {
            string text;
            Check(TryText(function, out text));
            return text;
        }

        internal static byte[] Bytes(BytesFunction function)
        {
            var buffer = new byte[usualCapacity];
            UIntPtr length = UIntPtr.Zero;
            Status status;
            while ((status = Try(() => function(buffer, Length(buffer), out length))) ==
                    Status.BufferTooSmall)
                buffer = new byte[checked((int)length + 1)];
            Check(status);
            Array.Resize(ref buffer, (int)length);
            return buffer;
        }

        /// <summary>The text in the ANSI code page, with a NUL at its end; null for null.
        /// </summary>
        internal static byte[] Narrow(string text)
        {
            if (text == null)
                return null;
            byte[] bytes = Bytes((byte[] buffer, UIntPtr capacity, out UIntPtr length) =>
                NativeMethods.pelmora_text_to_narrow(
                    text, Length(text), ansi, buffer, capacity, out length));
            Array.Resize(ref bytes, bytes.Length + 1);
            return bytes;
        }

        /// <summary>Text that the function writes in the ANSI code page.</summary>
        internal static string FromNarrow(BytesFunction function)
        {
            return FromNarrow(Bytes(function));
        }

        internal static string FromNarrow(byte[] bytes)
        {
            return Text((char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                NativeMethods.pelmora_text_from_narrow(
                    bytes, Length(bytes), ansi, buffer, capacity, out length));
        }

        internal static byte[] BytesAt(IntPtr text)
        {
            int length = 0;
            while (Marshal.ReadByte(text, length) != 0)
                ++length;
            var bytes = new byte[length];
            Marshal.Copy(text, bytes, 0, length);
            return bytes;
        }

        /// <summary>Why this thread's last call failed.</summary>
        internal static string LastError()
        {
            return Encoding.UTF8.GetString(BytesAt(NativeMethods.pelmora_last_error()));
        }

        internal static UIntPtr Length(Array array)
        {
            return (UIntPtr)array.Length;
        }

        internal static UIntPtr Length(string text)
        {
            if (text == null)
                throw new ArgumentNullException("text");
            return (UIntPtr)text.Length;
        }

        /// <summary>The reference itself, unless it is null.</summary>
        internal static T Reference<T>(T reference, string name) where T : class
        {
            if (reference == null)
                throw new NullReferenceException(
                    "'" + name + "' is null; give it an object before this call");
            return reference;
        }
    }
}
