#include "pelmora/pelmora.h"

#include "tests/TemporaryFolder.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace ManagedHTTP
{
namespace
{

/// Sets a variable of the environment while it lives.
class Environment
{
public:
    Environment(const char* name, const char* value) : name_(name) { setenv(name, value, 1); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { unsetenv(name_); }

private:
    const char* name_;
};

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
    const Environment trusted("SSL_CERT_FILE", std::getenv("PELMORA_CERTIFICATE"));
    EXPECT_TRUE(download(secure + "/text"));
    EXPECT_TRUE(download(secure + "/to?/text"));
    EXPECT_TRUE(download("http://127.0.0.1:" + plain + "/to?" + secure + "/text"));
    EXPECT_FALSE(download("https://127.0.0.1:" + port + "/text"));
    EXPECT_FALSE(download(secure + "/to?http://127.0.0.1:" + plain + "/text"));
}

TEST(Trust, DigestAuthentication)
{
    const std::string url =
        std::string("http://127.0.0.1:") + std::getenv("PELMORA_HTTP_PORT") + "/digest?m:secret";
    EXPECT_TRUE(download(url, "m", "secret"));
    EXPECT_FALSE(download(url, "m", "wrong"));
    EXPECT_FALSE(download(url, "", ""));
}

TEST(Lengths, MoreThanStatedFails)
{
    const std::string url = std::string("http://127.0.0.1:") + std::getenv("PELMORA_HTTP_PORT");
    EXPECT_FALSE(download(url + "/length/3"));
}

TEST(ChunkedBodies, MustComeToTheirEnd)
{
    const std::string url = std::string("http://127.0.0.1:") + std::getenv("PELMORA_HTTP_PORT");
    for (const char* chunks : {"5-in", "5-in%20ch-", "5-in%20ch-0", "FFFFFFFFFFFFFFFFF-x", "-5-x"})
        EXPECT_FALSE(download(url + "/cutChunks/" + chunks)) << chunks;
}

} // namespace
} // namespace ManagedHTTP
