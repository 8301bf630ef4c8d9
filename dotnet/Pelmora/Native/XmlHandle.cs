using System;
using System.Runtime.InteropServices;

namespace Pelmora.Native
{
    /// <summary>Owns an XML document of the C interface.</summary>
    internal sealed class XmlHandle : SafeHandle
    {
        private XmlHandle(IntPtr xml) : base(IntPtr.Zero, true)
        {
            SetHandle(xml);
        }

        public override bool IsInvalid
        {
            get { return handle == IntPtr.Zero; }
        }

        internal static XmlHandle Create()
        {
            IntPtr xml = IntPtr.Zero;
            Calls.Do(() => NativeMethods.pelmora_xml_create(out xml));
            return new XmlHandle(xml);
        }

        protected override bool ReleaseHandle()
        {
            NativeMethods.pelmora_xml_destroy(handle);
            return true;
        }
    }
}
