#include "pelmora/pelmora.h"

#include "tests/TemporaryFolder.h"

#include <csignal>
#include <cstdlib>
#include <tuple>

#include <gtest/gtest.h>

#include <sys/resource.h>

namespace ManagedHTTP
{
namespace
{

bool download(const std::string& url, const char* user = nullptr, const char* pass = nullptr)
{
    const Pelmora::TemporaryFolder folder;
    return HTTPDownloader::DownloadFile(url.c_str(), folder.name("file").c_str(), 20000, user,
                                        pass);
}

TEST(Trust, ACertificateIsForItsHostOnly)
{
    const std::string port = std::getenv("PELMORA_HTTPS_PORT");
    const std::string plain = std::getenv("PELMORA_HTTP_PORT");
    const std::string secure = "https://localhost:" + port;
    EXPECT_FALSE(download(secure + "/text"));
    setenv("SSL_CERT_FILE", std::getenv("PELMORA_CERTIFICATE"), 1);
    setenv("SSL_CERT_DIR", "/etc/ssl/certs", 1); // trusted, too
    EXPECT_TRUE(download(secure + "/text"));
    EXPECT_TRUE(download(secure + "/to?/text"));
    EXPECT_TRUE(download("http://127.0.0.1:" + plain + "/to?" + secure + "/text"));
    EXPECT_FALSE(download("https://127.0.0.1:" + port + "/text"));
    EXPECT_FALSE(download(secure + "/to?http://127.0.0.1:" + plain + "/text"));
    unsetenv("SSL_CERT_FILE");
    EXPECT_FALSE(download(secure + "/text"));
    setenv("SSL_CERT_DIR", std::getenv("PELMORA_CERTIFICATES"), 1);
    EXPECT_TRUE(download(secure + "/text"));
    unsetenv("SSL_CERT_DIR");
}

TEST(Trust, DigestAuthentication)
{
    const std::string url =
        std::string("http://127.0.0.1:") + std::getenv("PELMORA_HTTP_PORT") + "/digest?m:secret";
    EXPECT_TRUE(download(url, "m", "secret"));
    EXPECT_FALSE(download(url, "m", "wrong"));
    EXPECT_FALSE(download(url, "", ""));
}

TEST(Bodies, EndAsTheServerSays)
{
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const std::string chunked = ok + "Transfer-Encoding: chunked\r\n\r\n";
    const std::tuple<std::string, bool> rows[] = {
        {ok + "Content-Length: 3\r\n\r\n12345", false},
        {"HTTP/1.1 100 Continue\r\n\r\n" + ok + "Content-Length: 5\r\n\r\n12345", true},
        {chunked + "5\r\nin ch\r\n0\r\nTrailer: x\r\n\r\n", true},
        {"HTTP/1.1 200 OK\nContent-Length: 2\n\nok", true},
        {chunked + "5\r\nin", false},
        {chunked + "5\r\nin ch\r\n", false},
        {chunked + "5\r\nin ch\r\n0", false},
        {chunked + "FFFFFFFFFFFFFFFFF\r\nx", false},
        {chunked + "-5\r\nx", false},
    };
    const std::string url = std::string("http://127.0.0.1:") + std::getenv("PELMORA_HTTP_PORT");
    const auto descriptors = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    EXPECT_TRUE(download(url + "/text")); // the libraries keep what they open first
    const auto before = descriptors();
    for (const auto& [response, whole] : rows)
        EXPECT_EQ(download(url + "/raw?" + response + "#"), whole) << response;
    EXPECT_EQ(descriptors(), before);
}

TEST(Files, WithoutRoomForAllAreDeleted)
{
    const std::tuple<const char*, rlim_t> rows[] = {{"/text", 2}, {"/large", 100000}};
    const std::string url = std::string("http://127.0.0.1:") + std::getenv("PELMORA_HTTP_PORT");
    std::signal(SIGXFSZ, SIG_IGN);
    for (const auto& [path, room] : rows) {
        const Pelmora::TemporaryFolder folder;
        const auto setRoom = [](rlim_t size) {
            const rlimit limit{size, RLIM_INFINITY};
            ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        };
        setRoom(room);
        const bool done = HTTPDownloader::DownloadFile(
            (url + path).c_str(), folder.name("file").c_str(), 20000, nullptr, nullptr);
        setRoom(RLIM_INFINITY);
        EXPECT_FALSE(done) << path;
        EXPECT_FALSE(std::filesystem::exists(folder.path("file"))) << path;
    }
}

} // namespace
} // namespace ManagedHTTP
