// infusions FILE: reads infusion orders and prints what to set on the pumps.
//
// Exit status: 0 when every order was calculated, 1 when some were refused (each is named on
// standard error with its line and the reason), 2 when there was nothing to calculate.

#include "Order.h"
#include "drugNames.h"
#include "quantity.h"
#include "table.h"

#include <fstream>
#include <iostream>
#include <string>

namespace
{

using Infusions::Order;

enum ExitStatus { allCalculated = 0, someRefused = 1, nothingToDo = 2 };

constexpr int significantDigits = 3;

Infusions::TableRow tableRow(const Order& order)
{
    return {Infusions::displayName(order.drug), order.dose.toNormalizedString(significantDigits),
            Infusions::concentration(order).toNormalizedString(significantDigits),
            Infusions::pumpRate(order).toNormalizedString(significantDigits)};
}

int run(const char* fileName)
{
    std::ifstream file(fileName);
    if (!file) {
        std::cerr << fileName << ": cannot be opened\n";
        return nothingToDo;
    }
    std::vector<Infusions::TableRow> rows = {{u"Drug", u"Dose", u"Concentration", u"Pump rate"}};
    std::string refused;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        const auto content = Infusions::trimmed(line);
        if (content.empty() || content.front() == '#')
            continue;
        try {
            rows.push_back(tableRow(Infusions::parseOrder(content)));
        } catch (const Infusions::OrderError& error) {
            refused += std::string(fileName) + ":" + std::to_string(number) +
                       ": order refused: " + error.what() + "\n";
        }
    }
    std::cout << Infusions::tableText(rows).to_utf8() << std::flush;
    std::cerr << refused;
    return refused.empty() ? allCalculated : someRefused;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::cerr << "usage: infusions FILE\n";
        return nothingToDo;
    }
    try {
        return run(arguments[1]);
    } catch (const std::exception& error) {
        std::cerr << "infusions: " << error.what() << '\n';
        return nothingToDo;
    }
}
