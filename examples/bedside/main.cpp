// bedside [--lang LANGUAGE]: the window at which an instructor sits.
//
// LANGUAGE is a language code or the path of a catalogue (.mo).
//
// Exit status: 0 when the window was closed, 1 when it could not be shown, 2 for wrong arguments,
// such as a language without a catalogue.

#include "BedsideDialog.h"

#include "translation/translation.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace
{

enum ExitStatus { shown = 0, notShown = 1, wrongArguments = 2 };

} // namespace

int main(int argumentCount, char** argumentValues)
{
    const std::vector<std::string> arguments(argumentValues + 1, argumentValues + argumentCount);
    const bool hasLanguage = arguments.size() == 2 && arguments[0] == "--lang";
    if (!hasLanguage && !arguments.empty()) {
        std::cerr << "usage: bedside [--lang LANGUAGE]\n";
        return wrongArguments;
    }
    try {
        if (hasLanguage)
            Translation::speak(arguments[1]);
        Bedside::BedsideDialog dialog;
        return dialog.show() ? shown : notShown;
    } catch (const Translation::LanguageError& error) {
        std::cerr << "bedside: " << error.what() << '\n';
        return wrongArguments;
    } catch (const std::exception& error) {
        std::cerr << "bedside: " << error.what() << '\n';
        return notShown;
    }
}
