#include "pelmora/pelmora.h"

#include "tests/TemporaryFolder.h"

#include <chrono>
#include <cstdlib>
#include <functional>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace ManagedHTTP
{
namespace
{

using Pelmora::TemporaryFolder;

std::string setting(const char* name)
{
    const char* const value = std::getenv(name);
    if (value == nullptr)
        throw std::runtime_error("start this program through tests/servers/withServers");
    return value;
}

std::string server(const char* portName = "PELMORA_HTTP_PORT")
{
    return "http://127.0.0.1:" + setting(portName);
}

constexpr const char* failed = "(failed)";

/// What was downloaded over an older, longer file; `failed` when that file is still there whole.
std::string downloaded(const std::string& url, int timeoutMs = 20000, const char* user = nullptr,
                       const char* pass = nullptr)
{
    const TemporaryFolder folder;
    const std::string older(6000, 'o');
    TemporaryFolder::write(folder.path(u"caf\u00E9 1.bin"), older);
    const bool done = HTTPDownloader::DownloadFile(
        url.c_str(), folder.name("caf\xE9 1.bin").c_str(), timeoutMs, user, pass);
    const std::string content = TemporaryFolder::read(folder.path(u"caf\u00E9 1.bin"));
    if (!done)
        return content == older ? failed : "(failed and harmed the file)";
    return content;
}

TEST(HTTPDownloader, BodiesAndFailures)
{
    const std::tuple<std::string, std::string> rows[] = {
        {"/text", "text"},
        {"/none", ""},
        {"/untilClose", "until close"},
        {"/chunked", "in chunks"},
        {"/echo/a b/\xE9?q=\xE9#fragment", "/echo/a%20b/%C3%A9?q=%C3%A9 []"},
        {"/length/5", "12345"},
        {"/length/6", failed},
        {"/length/-5", failed},
        {"/length/99999999999999999999999", failed},
        {"/length/9000000000000000000", failed},
        {"/garbage", failed},
        {"/status/404", failed},
        {"/status/500", failed},
        {"/status/304", failed},
        {"/status/302", failed},
        {"/status/302?", failed},
        {"/redirect/3", "end"},
        {"/redirect/50", "end"},
        {"/redirect/51", failed},
        {"/to?/text", "text"},
        {"/to?file:///etc/hostname", failed},
        {"/to?" + server("PELMORA_OTHER_PORT") + "/text", "text"},
    };
    for (const auto& [path, content] : rows)
        EXPECT_EQ(downloaded(server() + path), content) << path;
    std::string large;
    for (int i = 0; i < 256 * 20000; ++i)
        large += static_cast<char>(i);
    EXPECT_TRUE(downloaded(server() + "/large") == large);

    for (const std::string& url :
         {server("PELMORA_CLOSED_PORT") + "/text", std::string("http://nowhere.invalid/"),
          std::string("file:///etc/hostname"), std::string("/etc/hostname"), std::string()})
        EXPECT_EQ(downloaded(url), failed) << url;
}

TEST(HTTPDownloader, CredentialsOnlyWhenAskedAndOnlyThere)
{
    const std::string other = server("PELMORA_OTHER_PORT");
    const std::tuple<std::string, const char*, const char*, std::string> rows[] = {
        {"/basic?m:s3:cret", "m", "s3:cret", "let in"},
        {"/basic?m:long password", "m", "long password", failed}, // the address has it encoded
        {"/basic?:", "", "", "let in"},
        {"/basic?m:", "m", "", "let in"},
        {"/basic?m:s", "m", "wrong", failed},
        {"/basic?m:s", nullptr, "s", failed},
        {"/basic?m:s", "m", nullptr, failed},
        {"/echo", "m", "s", "/echo []"},
        {"/to?/basic?m:s", "m", "s", "let in"},
        {"/to?" + other + "/basic?m:s", "m", "s", failed},
        {"/to?" + other + "/to?" + server() + "/basic?m:s", "m", "s", "let in"},
    };
    for (const auto& [path, user, pass, content] : rows)
        EXPECT_EQ(downloaded(server() + path, 20000, user, pass), content) << path;
}

TEST(HTTPDownloader, TheTimeLimitIsForTheWholeDownload)
{
    EXPECT_EQ(downloaded(server() + "/text", -1), "text");
    for (const int limit : {0, -2, std::numeric_limits<int>::min()})
        EXPECT_EQ(downloaded(server() + "/text", limit), failed) << limit;
    for (const char* path : {"/silent", "/trickle", "/to?/trickle"}) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(downloaded(server() + path, 500), failed) << path;
        // The limit is what is tested; a trickling body would take 100 seconds.
        const auto taken = std::chrono::steady_clock::now() - start;
        EXPECT_GE(taken, std::chrono::milliseconds(490)) << path;
        EXPECT_LT(taken, std::chrono::seconds(5)) << path;
    }
}

TEST(HTTPDownloader, Files)
{
    const TemporaryFolder folder;
    const std::string url = server() + "/text";
    const auto download = [&](const char* file) {
        return HTTPDownloader::DownloadFile(url.c_str(), file, 20000, nullptr, nullptr);
    };
    EXPECT_TRUE(download(folder.name("new").c_str()));
    EXPECT_EQ(TemporaryFolder::read(folder.path("new")), "text");
    EXPECT_FALSE(download(folder.name("no/folder").c_str()));
    EXPECT_FALSE(download(folder.name("").c_str()));
    EXPECT_FALSE(download(""));
    EXPECT_FALSE(download(nullptr));
    EXPECT_FALSE(HTTPDownloader::DownloadFile(nullptr, folder.name("new").c_str(), 1000, "", ""));
    EXPECT_EQ(TemporaryFolder::read(folder.path("new")), "text");
}

TEST(HTTPDownloader, SeveralThreads)
{
    std::vector<std::string> results(8);
    {
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < results.size(); ++i)
            threads.emplace_back([&results, i] {
                results[i] = downloaded(server() + (i % 2 == 0 ? "/redirect/3" : "/chunked"));
            });
    }
    for (std::size_t i = 0; i < results.size(); ++i)
        EXPECT_EQ(results[i], i % 2 == 0 ? "end" : "in chunks");
}

TEST(HTTPDownloader, UntrustedCertificatesFail)
{
    EXPECT_EQ(downloaded("https://localhost:" + setting("PELMORA_HTTPS_PORT") + "/text"), failed);
}

} // namespace
} // namespace ManagedHTTP
