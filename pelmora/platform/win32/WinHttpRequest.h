#pragma once

#include "pelmora/platform/httpGet.h"

#include <memory>
#include <optional>
#include <string>

#include <windows.h>

#include <winhttp.h>

namespace Pelmora::Native::Platform
{

/// One request to a server through WinHTTP and its response, every step within the deadline.
///
/// WinHTTP runs in its asynchronous mode, because the limits of the synchronous one are for each
/// step and not for the whole.
class WinHttpRequest
{
public:
    WinHttpRequest(bool secure, const std::wstring& host, INTERNET_PORT port,
                   const std::wstring& target, const Deadline& deadline);
    WinHttpRequest(const WinHttpRequest&) = delete;
    WinHttpRequest& operator=(const WinHttpRequest&) = delete;
    ~WinHttpRequest();

    /// Sends the request with these further header lines and receives the response's whole head.
    /// May be called again to answer a demand for authentication, after its body has been read.
    bool send(const std::wstring& headers);

    DWORD status() const;

    /// The header that a WINHTTP_QUERY_* number names, in bytes as they came.
    std::optional<std::string> header(DWORD query) const;

    bool readBody(Pieces& body);

    /// Null when the request could not be made; `send` then fails.
    HINTERNET handle() const noexcept { return request_.get(); }

private:
    class PendingCall;

    struct HandleClose {
        void operator()(void* handle) const { WinHttpCloseHandle(handle); }
    };
    using Handle = std::unique_ptr<void, HandleClose>;

    bool limitStep() const;
    /// Makes a call that WinHTTP completes later; true if it completed as expected by the deadline.
    template <typename Call>
    bool step(DWORD completion, const Call& call);
    bool hasWholeHead() const;

    std::shared_ptr<PendingCall> pending_;
    Handle session_;
    Handle connection_;
    Handle request_;
    Deadline deadline_;
};

} // namespace Pelmora::Native::Platform
