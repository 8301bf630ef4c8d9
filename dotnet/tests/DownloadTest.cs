using System;
using System.IO;
using ManagedHTTP;
using NUnit.Framework;

namespace Pelmora.Tests
{
    [TestFixture]
    public class DownloadTest
    {
        /// <summary>What was downloaded over an older, longer file; "(failed)" when that file is
        /// still there whole.</summary>
        private static string Downloaded(string path, int timeoutMs = 20000, string user = null,
            string pass = null)
        {
            string file = Path.Combine(Path.GetTempPath(), "pelmora caf\u00E9 1.bin");
            string older = new string('o', 6000);
            File.WriteAllText(file, older);
            string port = Environment.GetEnvironmentVariable("PELMORA_HTTP_PORT");
            Assert.NotNull(port, "start the tests through tests/servers/withServers");
            bool done = HTTPDownloader.DownloadFile(
                "http://127.0.0.1:" + port + path, file, timeoutMs, user, pass);
            string content = File.ReadAllText(file);
            File.Delete(file);
            if (!done)
                return content == older ? "(failed)" : "(failed and harmed the file)";
            return content;
        }

        [TestCase("/text", "text")]
        [TestCase("/echo/\u00E9?q#fragment", "/echo/%C3%A9?q []")]
        [TestCase("/redirect/3", "end")]
        [TestCase("/status/404", "(failed)")]
        [TestCase("/text\0", "(failed)")]
        public void BodiesAndFailures(string path, string content)
        {
            Assert.AreEqual(content, Downloaded(path));
        }

        [TestCase("/basic?m:s3:cret", "m", "s3:cret", "let in")]
        [TestCase("/basic?:", "", "", "let in")]
        [TestCase("/basic?m:s", null, "s", "(failed)")]
        [TestCase("/basic?m:s", "m", null, "(failed)")]
        public void CredentialsAreBothOrNone(string path, string user, string pass, string content)
        {
            Assert.AreEqual(content, Downloaded(path, 20000, user, pass));
        }

        [Test]
        public void TimeLimitsAndNulls()
        {
            Assert.AreEqual("(failed)", Downloaded("/silent", 300));
            Assert.AreEqual("(failed)", Downloaded("/text", 0));
            Assert.AreEqual("text", Downloaded("/text", -1));
            Assert.False(HTTPDownloader.DownloadFile(null, "file"));
            Assert.False(HTTPDownloader.DownloadFile("http://127.0.0.1/", null));
        }
    }
}
