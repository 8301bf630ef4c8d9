using System;
using System.Globalization;
using System.IO;
using System.Text;
using System.Threading;
using NUnit.Framework;

namespace Pelmora.Tests
{
    [TestFixture]
    public class TextTest
    {
        [TestCase("de", "de", 1252)]
        [TestCase("lang/ja.mo", "ja", 932)]
        [TestCase("", "", 1252)]
        public void ALanguageIsACodeOrACatalogue(string lang, string code, int codePage)
        {
            Init.init(lang);
            Assert.AreEqual(code, Language.Code);
            Assert.AreEqual(codePage, Language.CodePage);
        }

        [Test]
        public void TheCultureOfTheThreadIsALanguage()
        {
            CultureInfo before = Thread.CurrentThread.CurrentCulture;
            Thread.CurrentThread.CurrentCulture = CultureInfo.InvariantCulture;
            Init.init();
            Thread.CurrentThread.CurrentCulture = before;
            Assert.AreEqual("", Language.Code);
            Assert.Throws<NullReferenceException>(() => Init.init(null));
            Assert.Catch<ArgumentException>(() => Init.init("x.mo"));
        }

        [Test]
        public void ATranslatorAnswersInTextsOfAnyLength()
        {
            string longText = new string('\u65E5', 5000);
            Language.SetTranslator(text =>
            {
                if (text == "caf\u00E9")
                    return "<\uD83D\uDE00>";
                if (text == "fails")
                    throw new InvalidOperationException();
                return text == "long" ? longText : null;
            });
            GC.Collect();
            Assert.AreEqual("<\uD83D\uDE00>", Language.tr("r|caf\u00E9"));
            Assert.AreEqual(longText, Language.tr("long"));
            Assert.AreEqual("fails", Language.tr("fails"));
            Assert.AreEqual("other", Language.tr("other"));
            Assert.AreEqual("", Language.tr(null));
            Language.SetTranslator(null);
            Assert.AreEqual("caf\u00E9", Language.tr("caf\u00E9"));
        }

        [Test]
        public void NumbersAreWrittenAsSet()
        {
            var value = new UnitValue(1234.5,
                new Unit(new UnitElement(UnitTypeEnum.UNIT_G, UnitPrefix.NONE, 1)));
            Language.SetNumberFormat(',', '.', 3);
            string german = value.ToString(1);
            Language.SetNumberFormat('.');
            Assert.AreEqual("1.234,5 g", german);
            Assert.AreEqual("1234.5 g", value.ToString(1));
            Assert.Throws<ArgumentException>(() => Language.SetNumberFormat('\u066B'));
            Assert.Throws<ArgumentException>(() => Language.SetNumberFormat('5'));
        }

        [Test]
        public void EscapingIsUndoneAndKeepsNuls()
        {
            string text = "<a b='\u65E5\0'>&\"" + new string('<', 300);
            string escaped = Markup.Escape(text);
            StringAssert.StartsWith("&lt;a b=&apos;\u65E5\0&apos;&gt;&amp;&quot;&lt;", escaped);
            Assert.AreEqual(text, Markup.Unescape(escaped));
            Assert.AreEqual("", Markup.Escape(""));
            Assert.AreEqual("<a href=\"t\">x</a>", Markup.Link("x", "t"));
            Assert.Throws<ArgumentNullException>(() => Markup.Escape(null));
        }

        [Test]
        public void TheLogTakesTextsAsLines()
        {
            Log.WriteLine("one \u00E9lan");
            Log.Write("two");
            Log.WriteLine(" words");
            Log.Separator();
            string log;
            using (var file = new FileStream(Log.Path, FileMode.Open, FileAccess.Read,
                FileShare.ReadWrite)) // the library goes on writing
                log = new StreamReader(file, Encoding.GetEncoding("iso-8859-1")).ReadToEnd();
            StringAssert.Contains("one \u00E9lan", log);
            StringAssert.Contains("two words", log);
        }
    }
}
