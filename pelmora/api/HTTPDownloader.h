#pragma once

#include "pelmora/export.h"

namespace ManagedHTTP
{

/// Fetches files from HTTP servers.
class PELMORA_API HTTPDownloader
{
public:
    /// The time limit for callers who have no reason for another one.
    static constexpr int defaultTimeoutMs = 60000;

    /// Downloads what an "http" or "https" address leads to, and only then replaces the file by it.
    /// Returns true on success and false for any failure, including a response other than success.
    /// After a failure the file is as it was, unless it could not be written: it is deleted first.
    ///
    /// The texts are in the ANSI code page. `timeoutMs` is for the whole download: -1 for no limit,
    /// 0 runs out at once, other negative numbers fail. `user` and `pass`, when neither is null,
    /// are given to that server alone and when it asks for them, by Digest or Basic authentication;
    /// with a control character in either, nothing is sent and the download fails.
    ///
    /// Goes directly to the server, whatever proxy the system is set to, and follows up to 50
    /// redirects, but none from https to http. The system's store says which certificates are
    /// trusted; on Linux SSL_CERT_FILE names another one, and SSL_CERT_DIR a further one. The body
    /// is held in memory. Never throws. Several threads may download at once.
    static bool DownloadFile(const char* url, const char* filepath, int timeoutMs, const char* user,
                             const char* pass);
};

} // namespace ManagedHTTP
