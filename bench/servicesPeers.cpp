#include "bench/measure.h"
#include "bench/scenario.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include <libxml/parser.h>
#include <libxml/xpath.h>

// What a user would take instead for XML and for a log: libxml2 and the C library.

namespace
{

using Pelmora::Bench::Measured;

struct Free {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
    void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
    void operator()(xmlBuffer* buffer) const { xmlBufferFree(buffer); }
};
using Document = std::unique_ptr<xmlDoc, Free>;

/// With the options that the library sets, too.
Document parsed(const std::string& xml)
{
    return Document(xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, nullptr,
                                  XML_PARSE_NOENT | XML_PARSE_DTDATTR | XML_PARSE_NONET |
                                      XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE));
}

const Measured parse("XML: parse 1 MB/libxml2",
                     [xml = Pelmora::Bench::scenario()] { return parsed(xml) != nullptr; });

const Measured query("XML: parse 1 MB, query/libxml2", [xml = Pelmora::Bench::scenario()] {
    const Document document = parsed(xml);
    const std::string expression =
        "//Action/Event[@id=\"e" + std::to_string(Pelmora::Bench::lastEvent) + "\"]";
    const std::unique_ptr<xmlXPathContext, Free> context(xmlXPathNewContext(document.get()));
    const std::unique_ptr<xmlXPathObject, Free> result(
        xmlXPathEval(reinterpret_cast<const xmlChar*>(expression.c_str()), context.get()));
    const std::unique_ptr<xmlBuffer, Free> buffer(xmlBufferCreate());
    xmlNodeDump(buffer.get(), document.get(), xmlXPathNodeSetItem(result->nodesetval, 0), 0, 0);
    return xmlBufferLength(buffer.get());
});

std::FILE* appendingToNoFile()
{
    const std::string path = std::filesystem::temp_directory_path() / "pelmora-bench-peer.log";
    std::FILE* const file = std::fopen(path.c_str(), "a");
    std::remove(path.c_str());
    return file;
}

const Measured line("log line/fprintf",
                    [file = appendingToNoFile(), i = 0, value = 12.5]() mutable {
                        const auto print = [file](const char* format, auto item) {
                            std::fprintf(file, format, item);
                            std::fflush(file);
                        };
                        print("%s", "convert(");
                        print("%d", i++);
                        print("%s", ") - value: ");
                        print("%f", value);
                        print("%s", " mg");
                        print("%c", '\n');
                        return i;
                    });

} // namespace
