// Any document and any queries; documents without a type declaration against libxml2 alone.

#include "fuzz/FuzzedInput.h"
#include "pelmora/api/ManagedXMLParser.h"
#include "pelmora/platform/posix/utf16.h"
#include "pelmora/platform/xmlDocument.h"

#include <memory>

#include <libxml/parser.h>

using namespace Pelmora;
using Native::Platform::toUtf16;
using Native::Platform::XmlDocument;

namespace
{

GString taken(xmlChar* text)
{
    const std::unique_ptr<xmlChar, void (*)(xmlChar*)> owner(text, [](xmlChar* t) { xmlFree(t); });
    return text == nullptr ? GString() : toUtf16(reinterpret_cast<const char*>(text));
}

bool isName(const std::string& text)
{
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

void compareBytes(const std::string& bytes, const std::string& attribute)
{
    XmlDocument document;
    if (!document.parseBytes(bytes)) {
        check(!document.hasRoot() && document.textOfFirst(u"*").empty());
        return;
    }
    if (bytes.find("<!DOCTYPE") != std::string::npos)
        return;
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> plain(
        xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE),
        xmlFreeDoc);
    check(plain != nullptr);
    xmlNode* const root = xmlDocGetRootElement(plain.get());
    check(document.textOfFirst(u"*") == taken(xmlNodeGetContent(root)));
    const auto* const name = reinterpret_cast<const xmlChar*>(attribute.c_str());
    if (isName(attribute) && attribute != "xmlns")
        check(document.rootAttribute(toUtf16(attribute)) == taken(xmlGetNoNsProp(root, name)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const std::string attribute = input.line();
    const std::string value = input.line();
    const std::string element = input.line();
    const std::string bytes = input.rest();
    compareBytes(bytes, attribute);

    ManagedXML::ManagedXMLParser parser;
    for (const GString& text : {GString(wide(bytes)), GString(toUtf16(bytes))}) {
        const bool isSound = parser.parseFromString(text);
        static_cast<void>(parser.getElement(wide(element)));
        try {
            static_cast<void>(parser.getAttribute(wide(attribute)));
            check(isSound);
        } catch (const ManagedXML::NoDocumentError&) {
            check(!isSound);
        }
        const GString event = parser.getElementWithAttributeValue(wide(attribute), wide(value));
        check(isSound || event.empty());
        if (event.empty() || !isName(attribute) || value.find('"') != std::string::npos)
            continue;
        ManagedXML::ManagedXMLParser again;
        check(again.parseFromString(event) && again.getAttribute(wide(attribute)) == wide(value));
    }
    return 0;
}
