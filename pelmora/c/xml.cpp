#include "pelmora/api/ManagedXMLParser.h"
#include "pelmora/c/border.h"

using namespace Pelmora;
using namespace Pelmora::C;

struct pelmora_xml {
    ManagedXML::ManagedXMLParser native;
};

namespace
{

template <class Parse>
pelmora_status parse(pelmora_xml* xml, const Parse& parseIn)
{
    return guarded([&] {
        if (!parseIn(required(xml, "xml").native))
            throw Failure{PELMORA_MALFORMED, "the text is not well-formed XML"};
        return PELMORA_OK;
    });
}

} // namespace

pelmora_status pelmora_xml_create(pelmora_xml** xml)
{
    return giveHandle(xml, "xml", [] { return std::make_unique<pelmora_xml>(); });
}

void pelmora_xml_destroy(pelmora_xml* xml)
{
    delete xml;
}

pelmora_status pelmora_xml_parse_text(pelmora_xml* xml, const pelmora_char16* text)
{
    return parse(xml, [&](ManagedXML::ManagedXMLParser& parser) {
        return parser.parseFromString(GString(requiredText(text, "text")));
    });
}

pelmora_status pelmora_xml_parse_file(pelmora_xml* xml, const pelmora_char16* name)
{
    return parse(xml, [&](ManagedXML::ManagedXMLParser& parser) {
        const GString file(requiredText(name, "name"));
        if (file.empty())
            throw Failure{PELMORA_BAD_ARGUMENT, "'name' is empty"};
        return parser.parseFromFile(file);
    });
}

pelmora_status pelmora_xml_element_with_attribute(const pelmora_xml* xml,
                                                  const pelmora_char16* attribute,
                                                  const pelmora_char16* value,
                                                  pelmora_char16* buffer, size_t capacity,
                                                  size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        GString element =
            required(xml, "xml")
                .native.getElementWithAttributeValue(GString(requiredText(attribute, "attribute")),
                                                     GString(requiredText(value, "value")));
        if (element.empty())
            throw Failure{PELMORA_NOT_FOUND, "no Event in an Action has that attribute"};
        return element;
    });
}

pelmora_status pelmora_xml_attribute(const pelmora_xml* xml, const pelmora_char16* attribute,
                                     pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        return required(xml, "xml")
            .native.getAttribute(GString(requiredText(attribute, "attribute")));
    });
}

pelmora_status pelmora_xml_element(const pelmora_xml* xml, const pelmora_char16* name,
                                   pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        return required(xml, "xml").native.getElement(GString(requiredText(name, "name")));
    });
}
