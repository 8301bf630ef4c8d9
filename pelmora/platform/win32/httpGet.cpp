#include "pelmora/platform/httpGet.h"

#include "pelmora/platform/win32/WinHttpRequest.h"

namespace Pelmora::Native::Platform
{
namespace
{

constexpr DWORD unauthorized = 401;

std::wstring widened(const std::string& ascii)
{
    return {ascii.begin(), ascii.end()};
}

/// WinHttpSetCredentials takes no empty user name, so this scheme is written out.
std::wstring basicAuthorization(const HttpCredentials& credentials)
{
    static constexpr char digits[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::string bytes = credentials.user + ":" + credentials.password;
    std::string encoded;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        unsigned long group = 0;
        for (std::size_t k = 0; k < 3; ++k)
            group = group << 8U |
                    (i + k < bytes.size() ? static_cast<unsigned char>(bytes[i + k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k)
            encoded += i + k <= bytes.size() ? digits[group >> (18 - 6 * k) & 0x3FU] : '=';
    }
    return L"Authorization: Basic " + widened(encoded) + L"\r\n";
}

bool setDigestCredentials(HINTERNET request, const HttpCredentials& credentials)
{
    const auto wide = [](const std::string& ansi) {
        const int size = MultiByteToWideChar(CP_ACP, 0, ansi.c_str(), -1, nullptr, 0);
        std::wstring text(static_cast<std::size_t>(size), L'\0');
        MultiByteToWideChar(CP_ACP, 0, ansi.c_str(), -1, text.data(), size);
        return text;
    };
    return WinHttpSetCredentials(request, WINHTTP_AUTH_TARGET_SERVER, WINHTTP_AUTH_SCHEME_DIGEST,
                                 wide(credentials.user).c_str(), wide(credentials.password).c_str(),
                                 nullptr) != 0;
}

/// Answers the server's demand for authentication; false when that cannot be done.
bool authenticate(WinHttpRequest& request, const HttpCredentials& credentials)
{
    DWORD supported = 0;
    DWORD first = 0;
    DWORD target = 0;
    if (WinHttpQueryAuthSchemes(request.handle(), &supported, &first, &target) == 0)
        return false;
    // What is left of the body would be read by WinHTTP, which under Wine takes errors for sizes.
    Pieces unused;
    if (!request.readBody(unused))
        return false;
    if ((supported & WINHTTP_AUTH_SCHEME_DIGEST) != 0)
        return setDigestCredentials(request.handle(), credentials) && request.send(L"");
    return (supported & WINHTTP_AUTH_SCHEME_BASIC) != 0 &&
           request.send(basicAuthorization(credentials));
}

} // namespace

std::optional<HttpResponse> httpGet(const HttpAddress& address, const HttpCredentials* credentials,
                                    const Deadline& deadline)
{
    WinHttpRequest request(address.secure, widened(address.host), address.port,
                           widened(address.target), deadline);
    if (!request.send(L""))
        return std::nullopt;
    // A refused demand leaves its own response, whose status says so.
    if (request.status() == unauthorized && credentials != nullptr &&
        !authenticate(request, *credentials))
        return std::nullopt;

    HttpResponse response;
    response.status = static_cast<int>(request.status());
    response.location = request.header(WINHTTP_QUERY_LOCATION).value_or("");
    if (!request.header(WINHTTP_QUERY_TRANSFER_ENCODING))
        response.contentLength = request.header(WINHTTP_QUERY_CONTENT_LENGTH);
    if (!request.readBody(response.body))
        return std::nullopt;
    return response;
}

} // namespace Pelmora::Native::Platform
