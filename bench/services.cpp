#include "bench/measure.h"
#include "bench/scenario.h"

#include "pelmora/api/ManagedXMLParser.h"
#include "pelmora/log/LogStream.h"

#include <cstdio>

// XML and the log; what each row measures stands in goals.txt.

namespace
{

using ManagedXML::ManagedXMLParser;
using Pelmora::GString;
using Pelmora::Bench::Measured;
using namespace Pelmora::Native;

const Measured parse("XML: parse 1 MB/ours",
                     [xml = GString::from_utf8(Pelmora::Bench::scenario())] {
                         ManagedXMLParser parser;
                         return parser.parseFromString(xml);
                     });
const Measured query("XML: parse 1 MB, query/ours",
                     [xml = GString::from_utf8(Pelmora::Bench::scenario()),
                      id = GString("e" + std::to_string(Pelmora::Bench::lastEvent))] {
                         ManagedXMLParser parser;
                         parser.parseFromString(xml);
                         return parser.getElementWithAttributeValue(u"id", id);
                     });

LogStream& logInNoFile()
{
    log_settings().file_name = "pelmora-bench.log";
    LogStream& log = get_log();
    std::remove(log.path().c_str()); // where the system can, while it is open
    return log;
}

const Measured line("log line/ours", [log = &logInNoFile(), i = 0, value = 12.5]() mutable {
    *log << "convert(" << i++ << ") - value: " << value << " mg" << endl;
    return i;
});

} // namespace
