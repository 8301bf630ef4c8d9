#include "pelmora/platform/win32/WinHttpRequest.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <limits>
#include <mutex>
#include <new>

namespace Pelmora::Native::Platform
{

/// What WinHTTP's threads report. Lives until the request's handle has reported its end, which may
/// be later than the request's own: a step that is under way cannot always be cut short.
class WinHttpRequest::PendingCall
{
public:
    std::array<char, 65536> piece; ///< where WinHTTP puts what it reads

    static void start(const std::shared_ptr<PendingCall>& call) { call->self_ = call; }

    /// To be called before each call that WinHTTP completes later.
    void begin()
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        finished_ = false;
    }

    /// Whether the step has ended as expected within the deadline.
    bool wait(DWORD expected, const Deadline& deadline)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        const auto isFinished = [this] { return finished_; };
        if (!deadline) {
            changed_.wait(lock, isFinished);
        } else {
            // A call that completed at once may still have taken too long.
            const bool finished = changed_.wait_until(lock, *deadline, isFinished);
            if (!finished || std::chrono::steady_clock::now() >= *deadline)
                return false;
        }
        return status_ == expected;
    }

    DWORD size() const
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return size_;
    }

    /// WinHTTP's callback; nothing in it throws.
    static void CALLBACK report(HINTERNET, DWORD_PTR context, DWORD status, void* information,
                                DWORD size)
    {
        auto* const call =
            reinterpret_cast<PendingCall*>(context); // NOLINT: WinHTTP's own type for it
        if (call == nullptr)
            return; // of the session or the connection
        if (status == WINHTTP_CALLBACK_STATUS_HANDLE_CLOSING) {
            const auto last = std::move(call->self_);
            return;
        }
        if (status == WINHTTP_CALLBACK_STATUS_DATA_AVAILABLE)
            size = *static_cast<DWORD*>(information);
        call->finish(status, size);
    }

private:
    void finish(DWORD status, DWORD size)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        finished_ = true;
        status_ = status;
        size_ = size;
        changed_.notify_one();
    }

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    bool finished_ = false;
    DWORD status_ = 0;
    DWORD size_ = 0;
    std::shared_ptr<PendingCall> self_; ///< while WinHTTP knows its address
};

namespace
{

void setOption(HINTERNET handle, DWORD option, DWORD value)
{
    WinHttpSetOption(handle, option, &value, sizeof value);
}

} // namespace

WinHttpRequest::WinHttpRequest(bool secure, const std::wstring& host, INTERNET_PORT port,
                               const std::wstring& target, const Deadline& deadline)
    : pending_(std::make_shared<PendingCall>()), deadline_(deadline)
{
    session_.reset(WinHttpOpen(nullptr, WINHTTP_ACCESS_TYPE_NO_PROXY, WINHTTP_NO_PROXY_NAME,
                               WINHTTP_NO_PROXY_BYPASS, WINHTTP_FLAG_ASYNC));
    if (session_ == nullptr)
        return;
    connection_.reset(WinHttpConnect(session_.get(), host.c_str(), port, 0));
    if (connection_ == nullptr)
        return;
    request_.reset(
        WinHttpOpenRequest(connection_.get(), L"GET", target.c_str(), nullptr, WINHTTP_NO_REFERER,
                           WINHTTP_DEFAULT_ACCEPT_TYPES,
                           WINHTTP_FLAG_ESCAPE_DISABLE | (secure ? WINHTTP_FLAG_SECURE : 0)));
    if (request_ == nullptr)
        return;
    setOption(handle(), WINHTTP_OPTION_DISABLE_FEATURE,
              WINHTTP_DISABLE_REDIRECTS | WINHTTP_DISABLE_COOKIES | WINHTTP_DISABLE_KEEP_ALIVE);
    // The name and password of the user who is logged on are never sent.
    setOption(handle(), WINHTTP_OPTION_AUTOLOGON_POLICY, WINHTTP_AUTOLOGON_SECURITY_LEVEL_HIGH);

    auto context = reinterpret_cast<DWORD_PTR>(pending_.get()); // NOLINT: WinHTTP's own type for it
    constexpr DWORD notifications =
        WINHTTP_CALLBACK_FLAG_ALL_COMPLETIONS | WINHTTP_CALLBACK_FLAG_HANDLES;
    if (WinHttpSetOption(handle(), WINHTTP_OPTION_CONTEXT_VALUE, &context, sizeof context) == 0 ||
        WinHttpSetStatusCallback(handle(), &PendingCall::report, notifications, 0) ==
            WINHTTP_INVALID_STATUS_CALLBACK) {
        request_.reset();
        return;
    }
    PendingCall::start(pending_);
}

WinHttpRequest::~WinHttpRequest() = default;

/// WinHTTP's own limits end each step by the deadline as well. Closing the handle would not: under
/// Wine, a step that waits for the server keeps its thread and its connection until it ends.
bool WinHttpRequest::limitStep() const
{
    int left = 0; // no limit
    if (deadline_) {
        left = millisecondsUntil(*deadline_);
        if (left == 0)
            return false;
    }
    setOption(handle(), WINHTTP_OPTION_RECEIVE_RESPONSE_TIMEOUT,
              left == 0 ? INFINITE : static_cast<DWORD>(left));
    return WinHttpSetTimeouts(handle(), left, left, left, left) != 0;
}

template <typename Call>
bool WinHttpRequest::step(DWORD completion, const Call& call)
{
    if (!limitStep())
        return false;
    pending_->begin();
    return call() != 0 && pending_->wait(completion, deadline_);
}

bool WinHttpRequest::send(const std::wstring& headers)
{
    if (request_ == nullptr)
        return false;
    const auto context = reinterpret_cast<DWORD_PTR>(pending_.get()); // NOLINT: as above
    return step(WINHTTP_CALLBACK_STATUS_SENDREQUEST_COMPLETE,
                [&] {
                    return WinHttpSendRequest(handle(), headers.empty() ? nullptr : headers.c_str(),
                                              static_cast<DWORD>(headers.size()), nullptr, 0, 0,
                                              context);
                }) &&
           step(WINHTTP_CALLBACK_STATUS_HEADERS_AVAILABLE,
                [&] { return WinHttpReceiveResponse(handle(), nullptr); }) &&
           hasWholeHead();
}

/// Wine takes a head for whole when the connection ends inside it; only the blank line proves it.
bool WinHttpRequest::hasWholeHead() const
{
    const auto head = header(WINHTTP_QUERY_RAW_HEADERS_CRLF);
    return head && head->ends_with("\r\n\r\n");
}

DWORD WinHttpRequest::status() const
{
    DWORD status = 0;
    DWORD size = sizeof status;
    WinHttpQueryHeaders(handle(), WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER,
                        WINHTTP_HEADER_NAME_BY_INDEX, &status, &size, WINHTTP_NO_HEADER_INDEX);
    return status;
}

std::optional<std::string> WinHttpRequest::header(DWORD query) const
{
    const auto read = [&](wchar_t* buffer, DWORD& size) {
        return WinHttpQueryHeaders(handle(), query, WINHTTP_HEADER_NAME_BY_INDEX, buffer, &size,
                                   WINHTTP_NO_HEADER_INDEX) != 0;
    };
    DWORD size = 0;
    if (!read(nullptr, size)) {
        const DWORD error = GetLastError();
        if (error == ERROR_WINHTTP_HEADER_NOT_FOUND)
            return std::nullopt;
        // Without it, nobody would see that a body has not its stated length.
        if (error != ERROR_INSUFFICIENT_BUFFER)
            throw std::bad_alloc();
    }
    std::wstring value(size / sizeof(wchar_t) + 1, L'\0');
    if (!read(value.data(), size))
        throw std::bad_alloc();
    std::string bytes;
    for (const wchar_t unit : std::wstring_view(value.c_str()))
        bytes += unit <= 0xFF ? static_cast<char>(unit) : '?';
    return bytes;
}

bool WinHttpRequest::readBody(Pieces& body)
{
    // Reads no more than is there: Wine would wait in the call itself for the buffer to fill.
    for (;;) {
        if (!step(WINHTTP_CALLBACK_STATUS_DATA_AVAILABLE,
                  [&] { return WinHttpQueryDataAvailable(handle(), nullptr); }))
            return false;
        // Wine can report an error, -1, as a size.
        if (pending_->size() > std::numeric_limits<int>::max())
            return false;
        const auto available = std::min<DWORD>(pending_->size(), sizeof pending_->piece);
        if (available == 0)
            return true;
        if (!step(WINHTTP_CALLBACK_STATUS_READ_COMPLETE, [&] {
                return WinHttpReadData(handle(), pending_->piece.data(), available, nullptr);
            }))
            return false;
        if (pending_->size() == 0 || pending_->size() > available)
            return false;
        body.append({pending_->piece.data(), pending_->size()});
    }
}

} // namespace Pelmora::Native::Platform
