// infusions [--lang LANGUAGE] FILE: reads infusion orders and prints what to set on the pumps.
//
// LANGUAGE is a language code or the path of a catalogue (.mo); texts that it does not translate
// are listed in the error log.
//
// Exit status: 0 when every order was calculated, 1 when some were refused (each is named on
// standard error with its line and the reason), 2 when nothing was calculated or printed, for a
// reason that standard error gives.

#include "Order.h"
#include "drugNames.h"
#include "pump.h"
#include "quantity.h"
#include "table.h"

#include "translation/translation.h"

#include "pelmora/log/LogStream.h"

#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace
{

using Infusions::Order;
using Translation::N_;
using Translation::tr;

enum ExitStatus { allCalculated = 0, someRefused = 1, nothingDone = 2 };

Infusions::TableRow tableRow(const Order& order)
{
    return {Infusions::displayName(order.drug), Infusions::quantityText(order.dose),
            Infusions::quantityText(Infusions::concentration(order)),
            Infusions::pumpText(Infusions::pumpRate(order))};
}

ExitStatus failure(const std::string& fileName, const char* reason)
{
    std::cerr << fileName << ": " << tr(reason).to_utf8() << '\n';
    return nothingDone;
}

ExitStatus run(const std::string& fileName)
{
    std::ifstream file(fileName);
    std::vector<Infusions::TableRow> rows = {
        {tr("Drug"), tr("Dose"), tr("Concentration"), tr("Pump rate")}};
    std::string refused;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        const auto content = Infusions::trimmed(line);
        if (content.empty() || content.front() == '#')
            continue;
        try {
            rows.push_back(tableRow(Infusions::parseOrder(content)));
        } catch (const Infusions::OrderError& error) {
            refused += fileName + ":" + std::to_string(number) + ": " +
                       tr("order refused:").to_utf8() + " " + error.what() + "\n";
        }
    }
    if (!file.eof()) // a folder can be opened on some systems
        return failure(fileName, N_("the file cannot be read"));
    if (rows.size() == 1 && refused.empty())
        return failure(fileName, N_("the file has no orders"));
    if (!(std::cout << Infusions::tableText(rows).to_utf8() << std::flush))
        return failure(fileName, N_("the table cannot be printed"));
    std::cerr << refused;
    return refused.empty() ? allCalculated : someRefused;
}

} // namespace

int main(int argumentCount, char** argumentValues)
{
    const std::vector<std::string> arguments(argumentValues + 1, argumentValues + argumentCount);
    const bool hasLanguage = arguments.size() == 3 && arguments[0] == "--lang";
    if (!hasLanguage && arguments.size() != 1) {
        std::cerr << "usage: infusions [--lang LANGUAGE] FILE\n";
        return nothingDone;
    }
    try {
        if (hasLanguage)
            Translation::speak(arguments[1]);
        const ExitStatus status = run(arguments.back());
        if (Translation::hasUntranslated())
            std::cerr << tr("Untranslated texts are listed in").to_utf8() << ' '
                      << Pelmora::Native::get_log().path() << '\n';
        return status;
    } catch (const std::exception& error) {
        std::cerr << "infusions: " << error.what() << '\n';
        return nothingDone;
    }
}
