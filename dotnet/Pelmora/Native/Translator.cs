using System;
using System.Runtime.InteropServices;

namespace Pelmora.Native
{
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    internal delegate UIntPtr Translator(
        IntPtr msgid, IntPtr buffer, UIntPtr capacity, IntPtr context);
}
