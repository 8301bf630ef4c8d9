// scenario ADDRESS [ATTRIBUTE VALUE]...: downloads a scenario document and prints its version and,
// for each pair, the first event whose attribute has that value.
//
// Exit status: 0 when everything was found, 1 when some event was not, 2 for wrong arguments, 3
// when the document could not be downloaded, 4 when it is not well-formed, 5 when it is no
// scenario.

#include "pelmora/pelmora.h"

#include <cstddef>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>

namespace
{

using ManagedHTTP::HTTPDownloader;
using ManagedXML::ManagedXMLParser;
using Pelmora::GString;

enum ExitStatus {
    allFound = 0,
    someNotFound = 1,
    wrongArguments = 2,
    notDownloaded = 3,
    notWellFormed = 4,
    noScenario = 5,
};

/// A name for a new file in the system's folder for such; the file goes with this object.
class TemporaryFile
{
public:
    TemporaryFile()
        : path_(std::filesystem::temp_directory_path() /
                ("scenario-" + std::to_string(std::random_device()()) + ".xml"))
    {
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    /// In the ANSI code page, as the library takes it.
    std::string name() const { return GString(std::u16string_view(path_.u16string())).to_narrow(); }

private:
    std::filesystem::path path_;
};

ExitStatus failure(ExitStatus status, const std::string& address, const char* reason)
{
    std::cerr << "scenario: " << address << ' ' << reason << '\n';
    return status;
}

/// Prints the first event whose attribute has the value; false when there is none.
bool printEvent(const ManagedXMLParser& document, const char* attribute, const char* value)
{
    const GString event = document.getElementWithAttributeValue(attribute, value);
    std::cout << "Event with " << attribute << " \"" << value
              << "\": " << (event.empty() ? "none" : event.to_utf8()) << '\n';
    return !event.empty();
}

ExitStatus run(const std::string& address, char** pairs, std::ptrdiff_t pairCount)
{
    const TemporaryFile file;
    if (!HTTPDownloader::DownloadFile(address.c_str(), file.name().c_str(),
                                      HTTPDownloader::defaultTimeoutMs, nullptr, nullptr))
        return failure(notDownloaded, address, "cannot be downloaded");
    ManagedXMLParser document;
    if (!document.parseFromFile(file.name().c_str()))
        return failure(notWellFormed, address, "is not a well-formed XML document");
    const GString version = document.getAttribute("version");
    if (version.empty())
        return failure(noScenario, address, "is no scenario: its root element has no version");

    std::cout << "Scenario: " << document.getElement("Title").to_utf8() << " (version "
              << version.to_utf8() << ")\n";
    bool all = true;
    for (std::ptrdiff_t i = 0; i < pairCount; ++i)
        all = printEvent(document, pairs[2 * i], pairs[2 * i + 1]) && all;
    return all ? allFound : someNotFound;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount < 2 || argumentCount % 2 != 0) {
        std::cerr << "usage: scenario ADDRESS [ATTRIBUTE VALUE]...\n";
        return wrongArguments;
    }
    try {
        return run(arguments[1], arguments + 2, (argumentCount - 2) / 2);
    } catch (const std::exception& error) {
        std::cerr << "scenario: " << error.what() << '\n';
        return notDownloaded;
    }
}
