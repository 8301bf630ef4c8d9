using System;
using System.IO;
using Pelmora.Native;

namespace ManagedXML
{
    /// <summary>Answers three kinds of question about one XML document.</summary>
    /// <remarks>What is not there, a query that is malformed and text that is not well-formed are
    /// reported by value. Neither an external entity nor a network address is ever opened; entities
    /// that grow out of proportion and elements nested more than 256 deep count as malformed. One
    /// thread at a time may use an object.</remarks>
    public class ManagedXMLParser
    {
        private static ManagedXMLParser sThis;

        private XmlHandle document; // null before the first parse

        /// <summary>The process's shared object, made on first use.</summary>
        public static ManagedXMLParser sGet()
        {
            if (sThis == null)
                sThis = new ManagedXMLParser();
            return sThis;
        }

        /// <summary>Whether the text is a well-formed document. The one before is gone in any case:
        /// after a failure, queries answer from an empty document.</summary>
        /// <exception cref="ArgumentNullException">The text is null.</exception>
        public bool parseFromString(string xmlString)
        {
            XmlHandle empty = EmptyDocument();
            if (xmlString == null)
                throw new ArgumentNullException("xmlString");
            // A NUL is in no document, and the C interface would take the text before it for one.
            return xmlString.IndexOf('\0') < 0 &&
                Parsed(() => NativeMethods.pelmora_xml_parse_text(empty, xmlString));
        }

        /// <summary>The same for a file, in the encoding that its byte-order mark or its XML
        /// declaration says, or UTF-8. An empty name gives false and leaves the document as it was.
        /// </summary>
        /// <exception cref="ArgumentNullException">The name is null.</exception>
        /// <exception cref="IOException">The file cannot be read; a
        /// <see cref="FileNotFoundException"/> when it is missing.</exception>
        /// <exception cref="UnauthorizedAccessException">The file may not be read.</exception>
        public bool parseFromFile(string xmlFileName)
        {
            if (xmlFileName == "")
                return false;
            XmlHandle empty = EmptyDocument();
            if (xmlFileName == null)
                throw new ArgumentNullException("xmlFileName");
            if (xmlFileName.IndexOf('\0') >= 0)
                throw new ArgumentException("A file's name has no NUL.", "xmlFileName");
            Status status = Calls.Try(() =>
                NativeMethods.pelmora_xml_parse_file(empty, xmlFileName));
            if (status == Status.System)
            {
                string message = Calls.LastError();
                File.OpenRead(xmlFileName).Dispose(); // throws what the platform has for the reason
                throw new IOException(message);
            }
            return Parsed(() => status);
        }

        /// <summary>The first node that the XPath expression
        /// //Action/Event[&#64;namedAttribute="tag"] selects, as XML with its tags. The arguments are
        /// put in as they are, so that a tag with a double quote makes the expression malformed; ""
        /// for that, and when nothing matches.</summary>
        public string getElementWithAttributeValue(string namedAttribute, string tag)
        {
            return Query((XmlHandle xml, char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                NativeMethods.pelmora_xml_element_with_attribute(
                    xml, namedAttribute ?? "", tag ?? "", buffer, capacity, out length),
                namedAttribute, tag);
        }

        /// <summary>The value of the root element's attribute of that qualified name; "" when it
        /// has none.</summary>
        /// <exception cref="NullReferenceException">There is no root element, because the last
        /// parse failed.</exception>
        public string getAttribute(string namedAttribute)
        {
            return Query((XmlHandle xml, char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                NativeMethods.pelmora_xml_attribute(
                    xml, namedAttribute ?? "", buffer, capacity, out length),
                namedAttribute);
        }

        /// <summary>All text and CDATA inside the first element of that qualified name; "*" stands
        /// for any name. "" when there is no such element.</summary>
        /// <exception cref="ArgumentNullException">The name is null.</exception>
        public string getElement(string namedElement)
        {
            if (document != null && namedElement == null)
                throw new ArgumentNullException("namedElement");
            return Query((XmlHandle xml, char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                NativeMethods.pelmora_xml_element(
                    xml, namedElement, buffer, capacity, out length),
                namedElement);
        }

        private delegate Status QueryFunction(
            XmlHandle xml, char[] buffer, UIntPtr capacity, out UIntPtr length);

        private string Query(QueryFunction query, params string[] arguments)
        {
            XmlHandle xml = document;
            if (xml == null)
                throw new NullReferenceException(
                    "There is no document: call parseFromString or parseFromFile before a query.");
            string result;
            Status status = Calls.TryText((char[] buffer, UIntPtr capacity, out UIntPtr length) =>
                query(xml, buffer, capacity, out length), out result);
            if (status == Status.BadArgument)
                throw new NullReferenceException(Calls.LastError());
            // What has a NUL is not there; the C interface sees the text before it.
            bool isThere = status != Status.NotFound &&
                !Array.Exists(arguments, text => text != null && text.IndexOf('\0') >= 0);
            if (status != Status.NotFound)
                Calls.Check(status);
            return isThere ? result : "";
        }

        private XmlHandle EmptyDocument()
        {
            if (document == null)
                document = XmlHandle.Create();
            Parsed(() => NativeMethods.pelmora_xml_parse_text(document, ""));
            return document;
        }

        private static bool Parsed(Func<Status> parse)
        {
            Status status = Calls.Try(parse);
            if (status == Status.Malformed)
                return false;
            Calls.Check(status);
            return true;
        }
    }
}
