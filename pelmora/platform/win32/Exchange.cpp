#include "pelmora/platform/win32/Exchange.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <limits>
#include <mutex>

namespace Pelmora::Native::Platform
{

/// What WinHTTP's threads report. Lives until the request's handle has reported its end, which may
/// be later than the exchange's: a step that is under way cannot always be cut short.
class Exchange::Steps
{
public:
    std::array<char, 65536> piece; ///< where WinHTTP puts what it reads

    static void start(const std::shared_ptr<Steps>& steps) { steps->self_ = steps; }

    /// Before each call that WinHTTP completes later.
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
            // A call that completes at once may have taken its time nevertheless.
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
        auto* const steps = reinterpret_cast<Steps*>(context); // NOLINT: WinHTTP's own type for it
        if (steps == nullptr)
            return; // of the session or the connection
        if (status == WINHTTP_CALLBACK_STATUS_HANDLE_CLOSING) {
            const auto last = std::move(steps->self_);
            return;
        }
        if (status == WINHTTP_CALLBACK_STATUS_DATA_AVAILABLE)
            size = *static_cast<DWORD*>(information);
        steps->finish(status, size);
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
    std::shared_ptr<Steps> self_; ///< while WinHTTP knows its address
};

namespace
{

void setOption(HINTERNET handle, DWORD option, DWORD value)
{
    WinHttpSetOption(handle, option, &value, sizeof value);
}

} // namespace

Exchange::Exchange(bool secure, const std::wstring& host, INTERNET_PORT port,
                   const std::wstring& target, const Deadline& deadline)
    : steps_(std::make_shared<Steps>()), deadline_(deadline)
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
    setOption(request(), WINHTTP_OPTION_DISABLE_FEATURE,
              WINHTTP_DISABLE_REDIRECTS | WINHTTP_DISABLE_COOKIES | WINHTTP_DISABLE_KEEP_ALIVE);
    // Never the name and password of the user who is logged on.
    setOption(request(), WINHTTP_OPTION_AUTOLOGON_POLICY, WINHTTP_AUTOLOGON_SECURITY_LEVEL_HIGH);

    auto context = reinterpret_cast<DWORD_PTR>(steps_.get()); // NOLINT: WinHTTP's own type for it
    constexpr DWORD notifications =
        WINHTTP_CALLBACK_FLAG_ALL_COMPLETIONS | WINHTTP_CALLBACK_FLAG_HANDLES;
    if (WinHttpSetOption(request(), WINHTTP_OPTION_CONTEXT_VALUE, &context, sizeof context) == 0 ||
        WinHttpSetStatusCallback(request(), &Steps::report, notifications, 0) ==
            WINHTTP_INVALID_STATUS_CALLBACK) {
        request_.reset();
        return;
    }
    Steps::start(steps_);
}

Exchange::~Exchange() = default;

/// WinHTTP's own limits end each step by the deadline as well. Closing the handle would not: under
/// Wine, a step that waits for the server keeps its thread and its connection until it ends.
bool Exchange::limitStep() const
{
    int left = 0; // no limit
    if (deadline_) {
        left = millisecondsUntil(*deadline_);
        if (left == 0)
            return false;
    }
    setOption(request(), WINHTTP_OPTION_RECEIVE_RESPONSE_TIMEOUT,
              left == 0 ? INFINITE : static_cast<DWORD>(left));
    return WinHttpSetTimeouts(request(), left, left, left, left) != 0;
}

template <typename Call>
bool Exchange::step(DWORD completion, const Call& call)
{
    if (!limitStep())
        return false;
    steps_->begin();
    return call() != 0 && steps_->wait(completion, deadline_);
}

bool Exchange::send(const std::wstring& headers)
{
    if (request_ == nullptr)
        return false;
    const auto context = reinterpret_cast<DWORD_PTR>(steps_.get()); // NOLINT: as above
    return step(WINHTTP_CALLBACK_STATUS_SENDREQUEST_COMPLETE,
                [&] {
                    return WinHttpSendRequest(
                        request(), headers.empty() ? nullptr : headers.c_str(),
                        static_cast<DWORD>(headers.size()), nullptr, 0, 0, context);
                }) &&
           step(WINHTTP_CALLBACK_STATUS_HEADERS_AVAILABLE,
                [&] { return WinHttpReceiveResponse(request(), nullptr); }) &&
           hasWholeHead();
}

/// Wine takes a head for whole when the connection ends in it; only the blank line tells.
bool Exchange::hasWholeHead() const
{
    const auto head = header(WINHTTP_QUERY_RAW_HEADERS_CRLF);
    return head && head->ends_with("\r\n\r\n");
}

DWORD Exchange::status() const
{
    DWORD status = 0;
    DWORD size = sizeof status;
    WinHttpQueryHeaders(request(), WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER,
                        WINHTTP_HEADER_NAME_BY_INDEX, &status, &size, WINHTTP_NO_HEADER_INDEX);
    return status;
}

std::optional<std::string> Exchange::header(DWORD query) const
{
    const auto read = [&](wchar_t* buffer, DWORD& size) {
        return WinHttpQueryHeaders(request(), query, WINHTTP_HEADER_NAME_BY_INDEX, buffer, &size,
                                   WINHTTP_NO_HEADER_INDEX) != 0;
    };
    DWORD size = 0;
    if (!read(nullptr, size) && GetLastError() != ERROR_INSUFFICIENT_BUFFER)
        return std::nullopt;
    std::wstring value(size / sizeof(wchar_t) + 1, L'\0');
    if (!read(value.data(), size))
        return std::nullopt;
    std::string bytes;
    for (const wchar_t unit : std::wstring_view(value.c_str()))
        bytes += unit <= 0xFF ? static_cast<char>(unit) : '?';
    return bytes;
}

bool Exchange::readBody(std::string& body)
{
    // Reads no more than is there: Wine would wait in the call itself for the buffer to fill.
    for (;;) {
        if (!step(WINHTTP_CALLBACK_STATUS_DATA_AVAILABLE,
                  [&] { return WinHttpQueryDataAvailable(request(), nullptr); }))
            return false;
        // Wine may count an error, which is -1, as a size.
        if (steps_->size() > std::numeric_limits<int>::max())
            return false;
        const auto available = std::min<DWORD>(steps_->size(), sizeof steps_->piece);
        if (available == 0)
            return true;
        if (!step(WINHTTP_CALLBACK_STATUS_READ_COMPLETE, [&] {
                return WinHttpReadData(request(), steps_->piece.data(), available, nullptr);
            }))
            return false;
        if (steps_->size() == 0 || steps_->size() > available)
            return false;
        body.append(steps_->piece.data(), steps_->size());
    }
}

} // namespace Pelmora::Native::Platform
