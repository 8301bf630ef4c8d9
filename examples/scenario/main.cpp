// scenario [--lang LANGUAGE] ADDRESS [ATTRIBUTE VALUE]...: downloads a scenario document and prints
// its version and, for each pair, the first event whose attribute has that value.
//
// LANGUAGE is a language code or the path of a catalogue (.mo).
//
// Exit status: 0 when everything was found, 1 when some event was not, 2 for wrong arguments, 3
// when the document could not be downloaded, 4 when it is not well-formed, 5 when it is no
// scenario.

#include "translation/translation.h"

#include "pelmora/pelmora.h"

#include <filesystem>
#include <iostream>
#include <random>
#include <span>
#include <string>

namespace
{

using ManagedHTTP::HTTPDownloader;
using ManagedXML::ManagedXMLParser;
using Pelmora::GString;
using Translation::N_;
using Translation::tr;

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

/// An argument, which is UTF-8 or, on Windows, in the ANSI code page.
GString textOf(const char* argument)
{
    try {
        return GString::from_utf8(argument);
    } catch (const char*) {
        return GString(argument);
    }
}

/// The reason has a place for the address.
ExitStatus failure(ExitStatus status, const char* address, const char* reason)
{
    std::cerr << "scenario: " << GString::format(tr(reason), textOf(address)).to_utf8() << '\n';
    return status;
}

/// Prints the first event whose attribute has the value; false when there is none.
bool printEvent(const ManagedXMLParser& document, const GString& attribute, const GString& value)
{
    const GString event = document.getElementWithAttributeValue(attribute, value);
    std::cout << GString::format(tr("Event with %s \"%s\": %s"), attribute, value,
                                 event.empty() ? tr("none") : event)
                     .to_utf8()
              << '\n';
    return !event.empty();
}

ExitStatus run(const char* address, std::span<char*> pairs)
{
    const TemporaryFile file;
    if (!HTTPDownloader::DownloadFile(address, file.name().c_str(),
                                      HTTPDownloader::defaultTimeoutMs, nullptr, nullptr))
        return failure(notDownloaded, address, N_("%s cannot be downloaded"));
    ManagedXMLParser document;
    if (!document.parseFromFile(file.name().c_str()))
        return failure(notWellFormed, address, N_("%s is not a well-formed XML document"));
    const GString version = document.getAttribute("version");
    if (version.empty())
        return failure(noScenario, address,
                       N_("%s is no scenario: its root element has no version"));

    std::cout << GString::format(tr("Scenario: %s (version %s)"), document.getElement("Title"),
                                 version)
                     .to_utf8()
              << '\n';
    bool all = true;
    for (std::size_t i = 0; i < pairs.size(); i += 2)
        all = printEvent(document, textOf(pairs[i]), textOf(pairs[i + 1])) && all;
    return all ? allFound : someNotFound;
}

} // namespace

int main(int argumentCount, char** argumentValues)
{
    std::span<char*> arguments(argumentValues + 1, argumentValues + argumentCount);
    const bool hasLanguage = arguments.size() > 2 && arguments[0] == std::string("--lang");
    const char* const language = hasLanguage ? arguments[1] : "en";
    if (hasLanguage)
        arguments = arguments.subspan(2);
    if (arguments.size() % 2 == 0) {
        std::cerr << "usage: scenario [--lang LANGUAGE] ADDRESS [ATTRIBUTE VALUE]...\n";
        return wrongArguments;
    }
    try {
        Translation::speak(language);
        return run(arguments[0], arguments.subspan(1));
    } catch (const Translation::LanguageError& error) {
        std::cerr << "scenario: " << error.what() << '\n';
        return wrongArguments;
    } catch (const std::exception& error) {
        std::cerr << "scenario: " << error.what() << '\n';
        return notDownloaded;
    }
}
