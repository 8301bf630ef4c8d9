// Written by dotnet/generate from pelmora/c/pelmora.h.

using System;
using System.Runtime.InteropServices;

namespace Pelmora.Native
{
    internal enum Status
    {
        Ok = 0,
        NullArgument = 1,
        BadArgument = 2,
        BufferTooSmall = 3,
        NotFound = 4,
        Malformed = 5,
        System = 6,
        OutOfMemory = 7,
        Failed = 8,
    }

    internal static class NativeMethods
    {
        internal const string LibraryName = "pelmora-c";
        internal const int Abi = 1;

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern int pelmora_abi();

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern IntPtr pelmora_last_error();

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unit_compatible(UnitElement[] a, UIntPtr a_count,
            UnitElement[] b, UIntPtr b_count, out int result);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unit_is_rate(UnitElement[] unit, UIntPtr unit_count,
            out int result);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unit_is_volume(UnitElement[] unit,
            UIntPtr unit_count, out int result);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unit_is_mol(UnitElement[] unit, UIntPtr unit_count,
            out int result);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unit_is_per_patient(UnitElement[] unit,
            UIntPtr unit_count, out int result);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unit_is_weight(UnitElement[] unit,
            UIntPtr unit_count, out int result);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unit_is_unit(UnitElement[] unit, UIntPtr unit_count,
            out int result);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unit_text(UnitElement[] unit, UIntPtr unit_count,
            [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_value_mul_reduced(double a, UnitElement[] a_unit,
            UIntPtr a_count, double b, UnitElement[] b_unit, UIntPtr b_count, out double number,
            [Out] UnitElement[] buffer, UIntPtr capacity, out UIntPtr count);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_value_div_reduced(double a, UnitElement[] a_unit,
            UIntPtr a_count, double b, UnitElement[] b_unit, UIntPtr b_count, out double number,
            [Out] UnitElement[] buffer, UIntPtr capacity, out UIntPtr count);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_value_convert_reduced(double a, UnitElement[] from,
            UIntPtr from_count, UnitElement[] to, UIntPtr to_count, out double number,
            [Out] UnitElement[] buffer, UIntPtr capacity, out UIntPtr count);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_value_normalized(double a, UnitElement[] unit,
            UIntPtr unit_count, int max_magnitude, out double number, [Out] UnitElement[] buffer,
            UIntPtr capacity, out UIntPtr count);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_value_text(double a, UnitElement[] unit,
            UIntPtr unit_count, int precision, [Out] char[] buffer, UIntPtr capacity,
            out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_value_normalized_text(double a, UnitElement[] unit,
            UIntPtr unit_count, int digits, [Out] char[] buffer, UIntPtr capacity,
            out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_set_number_format(byte decimal_point, byte separator,
            int group);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_text_from_narrow(byte[] narrow,
            UIntPtr narrow_length, uint code_page, [Out] char[] buffer, UIntPtr capacity,
            out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_text_to_narrow(string text, UIntPtr text_length,
            uint code_page, [Out] byte[] buffer, UIntPtr capacity, out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_language_init(byte[] path);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_language_set_translator(Translator translator,
            IntPtr context);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_language_use_catalogue();

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_language_set_log_missing(int report);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_tr(byte[] text, [Out] char[] buffer,
            UIntPtr capacity, out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_language_code([Out] byte[] buffer, UIntPtr capacity,
            out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_language_code_page(out uint code_page);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_escape(string text, UIntPtr text_length,
            [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_unescape(string text, UIntPtr text_length,
            [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_make_link(string text, string target,
            [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_log_configure(byte[] file_name, byte[] header,
            int append);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_log_write(byte[] text);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_log_line(byte[] text);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_log_separator();

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_log_path([Out] byte[] buffer, UIntPtr capacity,
            out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_xml_create(out IntPtr xml);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern void pelmora_xml_destroy(IntPtr xml);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_xml_parse_text(XmlHandle xml, string text);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_xml_parse_file(XmlHandle xml, string name);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_xml_element_with_attribute(XmlHandle xml,
            string attribute, string value, [Out] char[] buffer, UIntPtr capacity,
            out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_xml_attribute(XmlHandle xml, string attribute,
            [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_xml_element(XmlHandle xml, string name,
            [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);

        [DllImport(LibraryName, CallingConvention = CallingConvention.Cdecl,
            CharSet = CharSet.Unicode, ExactSpelling = true)]
        internal static extern Status pelmora_download(byte[] url, byte[] path, int milliseconds,
            byte[] user, byte[] password);
    }
}
