#pragma once

#include "pelmora/base/detail/Pieces.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

// What the host must provide to ask an HTTP server for a resource.

namespace Pelmora::Native::Platform
{

/// What an "http" or "https" address says, ready to be sent: ASCII without spaces, a host in lower
/// case, a target that begins with '/' and has no fragment.
struct HttpAddress {
    bool secure = false;
    std::string host;
    std::uint16_t port = 80;
    std::string target;
};

/// Bytes as the server is to get them, without control characters, which could end the header line
/// that holds them; either may be empty.
struct HttpCredentials {
    std::string user;
    std::string password;
};

struct HttpResponse {
    int status = 0;
    std::string location; ///< where a redirect leads; "" without one
    /// The length as the server states it, unchecked; absent when it states none, and when the body
    /// came in chunks, which have their own lengths.
    std::optional<std::string> contentLength;
    Pieces body;
};

using Deadline = std::optional<std::chrono::steady_clock::time_point>; ///< none: no limit

/// For clients that take no deadline: what is left until `end`, rounded up; 0 when nothing is.
inline int millisecondsUntil(std::chrono::steady_clock::time_point end)
{
    using std::chrono::milliseconds;
    const auto left = std::chrono::ceil<milliseconds>(end - std::chrono::steady_clock::now());
    constexpr milliseconds::rep most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp<milliseconds::rep>(left.count(), 0, most));
}

/// One request with GET, directly to the server whatever proxy the system names, and the whole
/// response, which may be a failure or a redirect: neither is followed up. Credentials are given
/// only when the server asks for them, by the Digest or the Basic scheme. Certificates are verified
/// by the system's store. Returns nothing without a connection, without trust, after an incomplete
/// response and after the deadline, which holds for name resolution, authentication and body
/// together. A response is complete when the blank line after its head and its whole body have
/// come. A body longer than its stated length gives nothing, too, except with WinHTTP, which hides
/// the rest.
///
/// May run in several threads at once.
std::optional<HttpResponse> httpGet(const HttpAddress& address, const HttpCredentials* credentials,
                                    const Deadline& deadline);

} // namespace Pelmora::Native::Platform
