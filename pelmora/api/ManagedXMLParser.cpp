#include "pelmora/api/ManagedXMLParser.h"

#include "pelmora/api/NullReferenceError.h"
#include "pelmora/api/utf8Message.h"
#include "pelmora/base/detail/NeverDestroyed.h"
#include "pelmora/platform/wholeFile.h"
#include "pelmora/platform/xmlDocument.h"

namespace ManagedXML
{
namespace
{

GString fromAnsi(const char* text, const char* name)
{
    if (text == nullptr)
        throw Pelmora::NullReferenceError(name);
    return GString(std::string_view(text));
}

} // namespace

NoDocumentError::~NoDocumentError() = default;

FileError::FileError(const GString& fileName, const std::string& reason)
    : std::runtime_error("'" + Pelmora::utf8Message(fileName) + "' cannot be read: " + reason +
                         "; give the name of an XML file that exists and may be read")
{
}

FileError::~FileError() = default;

ManagedXMLParser& ManagedXMLParser::sGet()
{
    static Pelmora::Native::NeverDestroyed<ManagedXMLParser> instance;
    return instance.value;
}

ManagedXMLParser::ManagedXMLParser() = default;

ManagedXMLParser::~ManagedXMLParser() = default;

ManagedXMLParser::Document& ManagedXMLParser::emptyDocument()
{
    document_ = std::make_unique<Document>();
    return *document_;
}

const ManagedXMLParser::Document& ManagedXMLParser::requireDocument() const
{
    if (document_ == nullptr)
        throw NoDocumentError("ManagedXMLParser: there is no document; call parseFromString or "
                              "parseFromFile before a query");
    return *document_;
}

bool ManagedXMLParser::parseFromString(const GString& xmlString)
{
    return emptyDocument().parseText(xmlString);
}

bool ManagedXMLParser::parseFromString(const char* xmlString)
{
    emptyDocument();
    return parseFromString(fromAnsi(xmlString, "xmlString"));
}

bool ManagedXMLParser::parseFromFile(const GString& xmlFileName)
{
    if (xmlFileName.empty())
        return false;
    Document& document = emptyDocument();
    // The parsers would take some names for network addresses, so they get bytes.
    std::string bytes;
    if (const auto error = Pelmora::Native::Platform::readWholeFile(xmlFileName.text(), bytes))
        throw FileError(xmlFileName, error.message());
    return document.parseBytes(bytes);
}

bool ManagedXMLParser::parseFromFile(const char* xmlFileName)
{
    if (xmlFileName == nullptr)
        emptyDocument();
    return parseFromFile(fromAnsi(xmlFileName, "xmlFileName"));
}

GString ManagedXMLParser::getElementWithAttributeValue(const GString& namedAttribute,
                                                       const GString& tag) const
{
    const GString expression =
        GString(u"//Action/Event[@") + namedAttribute + u"=\"" + tag + u"\"]";
    return requireDocument().firstSelected(expression.text());
}

GString ManagedXMLParser::getElementWithAttributeValue(const char* namedAttribute,
                                                       const char* tag) const
{
    return getElementWithAttributeValue(fromAnsi(namedAttribute, "namedAttribute"),
                                        fromAnsi(tag, "tag"));
}

GString ManagedXMLParser::getAttribute(const GString& namedAttribute) const
{
    const Document& document = requireDocument();
    if (!document.hasRoot())
        throw NoDocumentError("ManagedXMLParser: the document has no root element, because the "
                              "last parse failed; check what it returned before this call");
    return document.rootAttribute(namedAttribute.text());
}

GString ManagedXMLParser::getAttribute(const char* namedAttribute) const
{
    return getAttribute(fromAnsi(namedAttribute, "namedAttribute"));
}

GString ManagedXMLParser::getElement(const GString& namedElement) const
{
    return requireDocument().textOfFirst(namedElement.text());
}

GString ManagedXMLParser::getElement(const char* namedElement) const
{
    return getElement(fromAnsi(namedElement, "namedElement"));
}

} // namespace ManagedXML
