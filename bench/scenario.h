#pragma once

#include <string>

namespace Pelmora::Bench
{

/// The number of the last event of `scenario()`.
constexpr int lastEvent = 6999;

/// An XML document of 1 MB in UTF-8, with events e0 to e6999.
inline std::string scenario()
{
    std::string xml = "<?xml version=\"1.0\"?>\n<Scenario version=\"3\">\n";
    for (int i = 0; i <= lastEvent; ++i) {
        const std::string number = std::to_string(i);
        xml += "  <Action time=\"" + number + "\">\n    <Event id=\"e" + number +
               "\" drug=\"dopamine\"><Text>Der Patient erh\xC3\xA4lt " + number +
               " mcg/kg/min</Text><Dose unit=\"mcg\">2.5</Dose></Event>\n  </Action>\n";
    }
    return xml + "</Scenario>\n";
}

} // namespace Pelmora::Bench
