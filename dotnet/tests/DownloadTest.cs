using System;
using System.IO;
using ManagedHTTP;
using NUnit.Framework;

namespace Pelmora.Tests
{
    [TestFixture]
    public class DownloadTest
    {
        // What comes over an older, longer file; "(failed)" when that file is still there whole.
        [TestCase("/text", -1, null, null, "text")]
        [TestCase("/echo/\u00E9?q#fragment", 20000, null, null, "/echo/%C3%A9?q []")]
        [TestCase("/redirect/3", 20000, null, null, "end")]
        [TestCase("/status/404", 20000, null, null, "(failed)")]
        [TestCase("/text\0", 20000, null, null, "(failed)")]
        [TestCase("/silent", 300, null, null, "(failed)")]
        [TestCase("/text", 0, null, null, "(failed)")]
        [TestCase("/basic?m:s3:cret", 20000, "m", "s3:cret", "let in")]
        [TestCase("/basic?:", 20000, "", "", "let in")]
        [TestCase("/basic?m:s", 20000, null, "s", "(failed)")]
        [TestCase("/basic?m:s", 20000, "m", null, "(failed)")]
        public void BodiesAndFailures(
            string path, int timeoutMs, string user, string pass, string expected)
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
            Assert.AreEqual(expected != "(failed)", done);
            Assert.AreEqual(done ? expected : older, content);
        }

        [Test]
        public void NullsFail()
        {
            Assert.False(HTTPDownloader.DownloadFile(null, "file"));
            Assert.False(HTTPDownloader.DownloadFile("http://127.0.0.1/", null));
        }
    }
}
