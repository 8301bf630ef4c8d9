using System;
using Pelmora.Native;

namespace ManagedHTTP
{
    /// <summary>Fetches files from HTTP servers.</summary>
    public class HTTPDownloader
    {
        /// <summary>Downloads what an "http" or "https" address leads to, and only then replaces
        /// the file by it. True on success. False for any failure, an answer of the server other
        /// than success among them; the file is as it was then, unless it could not be written: it
        /// is deleted first.</summary>
        /// <remarks>The texts cross to the system in the ANSI code page. Goes directly to the
        /// server, whatever proxy the system is set to. The body is held in memory. Several threads
        /// may download at once.</remarks>
        /// <param name="url">An "http" or "https" address.</param>
        /// <param name="filepath">The file that is replaced.</param>
        /// <param name="timeoutMs">For the whole download: -1 for no limit, 0 runs out at once,
        /// other negative numbers fail.</param>
        /// <param name="user">With <paramref name="pass"/>, when neither is null, given to that
        /// server alone and when it asks for them.</param>
        /// <param name="pass">See <paramref name="user"/>.</param>
        /// <exception cref="DllNotFoundException">The native library is missing, which is no
        /// failure of a download.</exception>
        public static bool DownloadFile(string url, string filepath, int timeoutMs, string user,
            string pass)
        {
            foreach (string text in new[] { url, filepath, user, pass })
            {
                // The C interface's texts end at a NUL: what follows must not be lost unseen.
                if (text != null && text.IndexOf('\0') >= 0)
                    return false;
            }
            return Calls.Try(() => NativeMethods.pelmora_download(Calls.Narrow(url),
                Calls.Narrow(filepath), timeoutMs, Calls.Narrow(user), Calls.Narrow(pass))) ==
                Status.Ok;
        }

        /// <summary>The same without credentials, in at most a minute.</summary>
        public static bool DownloadFile(string url, string filepath)
        {
            return DownloadFile(url, filepath, 60000, null, null);
        }
    }
}
