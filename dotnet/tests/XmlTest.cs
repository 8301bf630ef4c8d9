using System;
using System.IO;
using System.Text;
using ManagedXML;
using NUnit.Framework;

namespace Pelmora.Tests
{
    [TestFixture]
    public class XmlTest
    {
        private static ManagedXMLParser Parsed(string xml)
        {
            var parser = new ManagedXMLParser();
            Assert.True(parser.parseFromString(xml), xml);
            return parser;
        }

        [TestCase("<s v='1'><Action><Event id='x'/></Action></s>", "id", "x",
            "<Event id=\"x\"/>")]
        [TestCase("<Action><Event id='x'/></Action>", null, null, "")]
        [TestCase("<Action><Event id='x'/></Action>", "id", "x\0", "")]
        public void ElementWithAttributeValue(
            string xml, string attribute, string value, string expected)
        {
            Assert.AreEqual(expected, Parsed(xml).getElementWithAttributeValue(attribute, value));
        }

        [Test]
        public void TextAndAttributes()
        {
            string longText = new string('\u65E5', 5000);
            ManagedXMLParser parser = Parsed("<r a='&lt;&#233;' empty=''><x> one <b>two</b> " +
                "<![CDATA[<3>]]></x><x>second</x><\u65E5>" + longText + "</\u65E5></r>");
            Assert.AreEqual(" one two <3>", parser.getElement("x"));
            Assert.AreEqual(longText, parser.getElement("\u65E5"));
            Assert.AreEqual("<\u00E9", parser.getAttribute("a"));
            foreach (string name in new[] { "none", "", "x\0" })
                Assert.AreEqual("", parser.getElement(name), name);
            foreach (string name in new[] { "empty", "w", "", null, "a\0" })
                Assert.AreEqual("", parser.getAttribute(name), name);
            Assert.Throws<ArgumentNullException>(() => parser.getElement(null));
        }

        [TestCase("<a>")]
        [TestCase("")]
        [TestCase("<a/>\0")]
        public void MalformedTextGivesFalseAndForgetsTheDocument(string xml)
        {
            ManagedXMLParser parser = Parsed("<a b='1'>before</a>");
            Assert.False(parser.parseFromString(xml));
            Assert.AreEqual("", parser.getElement("a"));
            Assert.AreEqual("", parser.getElementWithAttributeValue("a", "b"));
            Assert.Throws<NullReferenceException>(() => parser.getAttribute("b"));
        }

        [Test]
        public void QueriesBeforeTheFirstParseFail()
        {
            var parser = new ManagedXMLParser();
            Assert.Throws<NullReferenceException>(() => parser.getElement("a"));
            Assert.Throws<NullReferenceException>(() => parser.getElement(null));
            Assert.Throws<NullReferenceException>(() => parser.getAttribute("a"));
            Assert.Throws<NullReferenceException>(
                () => parser.getElementWithAttributeValue("a", "b"));
            Assert.False(parser.parseFromFile(""));
            Assert.Throws<NullReferenceException>(() => parser.getElement("a"));
            Assert.AreSame(ManagedXMLParser.sGet(), ManagedXMLParser.sGet());
        }

        [Test]
        public void AFileThatCannotBeReadIsThePlatformsException()
        {
            string folder = Path.Combine(Path.GetTempPath(), "pelmora caf\u00E9");
            Directory.CreateDirectory(folder);
            string file = Path.Combine(folder, "\u00E9 1.xml");
            File.WriteAllText(file, "<r a='1'>\u00E9</r>", new UTF8Encoding(false));
            var parser = new ManagedXMLParser();
            Assert.True(parser.parseFromFile(file));
            Assert.AreEqual("\u00E9", parser.getElement("r"));
            Assert.False(parser.parseFromFile(""));
            Assert.AreEqual("\u00E9", parser.getElement("r"));
            Assert.Throws<FileNotFoundException>(() => parser.parseFromFile(file + "2"));
            Assert.AreEqual("", parser.getElement("r"));
            Assert.Throws<DirectoryNotFoundException>(
                () => parser.parseFromFile(Path.Combine(folder, "none", "x.xml")));
            Assert.Throws<UnauthorizedAccessException>(() => parser.parseFromFile(folder));
            Assert.Throws<ArgumentNullException>(() => parser.parseFromFile(null));
            Assert.Throws<ArgumentNullException>(() => parser.parseFromString(null));
            Assert.Throws<ArgumentException>(() => parser.parseFromFile(file + "\0"));
            Assert.AreEqual("", parser.getElement("r"));
            Directory.Delete(folder, true);
        }
    }
}
