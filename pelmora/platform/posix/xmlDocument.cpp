#include "pelmora/platform/xmlDocument.h"

#include "pelmora/platform/posix/XmlErrors.h"
#include "pelmora/platform/posix/utf16.h"
#include "pelmora/platform/posix/xmlReading.h"

#include <utility>

#include <libxml/entities.h>
#include <libxml/xmlsave.h>
#include <libxml/xpath.h>

namespace Pelmora::Native::Platform
{
namespace
{

struct ContextFree {
    void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
};
struct ResultFree {
    void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
};
struct BufferFree {
    void operator()(xmlBuffer* buffer) const { xmlBufferFree(buffer); }
};
struct SaveClose {
    void operator()(xmlSaveCtxt* save) const { xmlSaveClose(save); }
};
struct TextFree {
    void operator()(xmlChar* text) const { xmlFree(text); }
};

std::string_view view(const xmlChar* text)
{
    return text == nullptr ? std::string_view() : reinterpret_cast<const char*>(text);
}

const xmlChar* chars(const std::string& utf8)
{
    return reinterpret_cast<const xmlChar*>(utf8.c_str());
}

std::string qualifiedName(const xmlNs* space, const xmlChar* localName)
{
    std::string name;
    if (space != nullptr && space->prefix != nullptr)
        name.append(view(space->prefix)).append(":");
    return name.append(view(localName));
}

/// The node after this one in document order, within `top`; null at the end. Goes by pointers
/// alone, so that no depth can exhaust the stack. The content of an entity is not entered: where
/// it counts, it stands in the tree itself.
xmlNode* following(xmlNode* node, const xmlNode* top)
{
    if (node->children != nullptr && node->type != XML_ENTITY_REF_NODE)
        return node->children;
    while (node != top && node->next == nullptr)
        node = node->parent;
    return node == top ? nullptr : node->next;
}

/// libxml2 writes the names of namespaces as they are. Of the characters that need escaping, only
/// the ampersand may stand in them.
void escapeNamespaces(xmlNode* top)
{
    for (xmlNode* node = top; node != nullptr; node = following(node, top)) {
        if (node->type != XML_ELEMENT_NODE)
            continue;
        for (xmlNs* space = node->nsDef; space != nullptr; space = space->next) {
            if (view(space->href).find('&') == std::string_view::npos)
                continue;
            xmlChar* const escaped = xmlEncodeSpecialChars(node->doc, space->href);
            if (escaped == nullptr)
                throw std::bad_alloc();
            xmlFree(const_cast<xmlChar*>(std::exchange(space->href, escaped)));
        }
    }
}

/// The node as XML, with declarations of the namespaces it inherits.
WideString outerXml(xmlNode* node)
{
    const XmlErrors errors;
    const Tree ownTree(xmlNewDoc(nullptr));
    errors.check();
    ownTree->encoding =
        xmlStrdup(chars("UTF-8")); // or other characters would be written as numbers
    if (node->type == XML_ELEMENT_NODE) {
        node = xmlDocCopyNode(node, ownTree.get(), 1);
        xmlDocSetRootElement(ownTree.get(), node);
        errors.check();
        escapeNamespaces(node);
    }
    const std::unique_ptr<xmlBuffer, BufferFree> buffer(xmlBufferCreate());
    std::unique_ptr<xmlSaveCtxt, SaveClose> save(
        xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL));
    errors.check();
    xmlSaveTree(save.get(), node);
    save.reset(); // writes the rest
    errors.check();
    std::string_view xml = view(xmlBufferContent(buffer.get()));
    if (node->type == XML_ATTRIBUTE_NODE && xml.starts_with(' '))
        xml.remove_prefix(1);
    return toUtf16(xml);
}

} // namespace

struct XmlDocument::Content {
    Tree tree;
};

XmlDocument::XmlDocument() : content_(std::make_unique<Content>()) {}

XmlDocument::~XmlDocument() = default;

bool XmlDocument::parseText(WideView text)
{
    content_->tree = readUtf8Xml(toUtf8(text));
    return content_->tree != nullptr;
}

bool XmlDocument::parseBytes(std::string_view bytes)
{
    content_->tree = readXml(bytes);
    return content_->tree != nullptr;
}

bool XmlDocument::hasRoot() const
{
    return content_->tree != nullptr;
}

WideString XmlDocument::rootAttribute(const WideString& name) const
{
    const std::string wanted = toUtf8(name);
    xmlNode* root = xmlDocGetRootElement(content_->tree.get());
    for (xmlAttr* attribute = root->properties; attribute != nullptr; attribute = attribute->next) {
        if (qualifiedName(attribute->ns, attribute->name) != wanted)
            continue;
        const XmlErrors errors;
        const std::unique_ptr<xmlChar, TextFree> value(
            xmlNodeListGetString(content_->tree.get(), attribute->children, 1));
        errors.check();
        return toUtf16(view(value.get()));
    }
    // Declarations of namespaces are attributes too, which libxml2 keeps apart.
    for (const xmlNs* space = root->nsDef; space != nullptr; space = space->next) {
        const std::string prefix(view(space->prefix));
        if (wanted == (prefix.empty() ? "xmlns" : "xmlns:" + prefix))
            return toUtf16(view(space->href));
    }
    return {};
}

WideString XmlDocument::firstSelected(const WideString& expression) const
{
    if (!hasRoot() || expression.find(WideChar(0)) != WideString::npos)
        return {};
    XmlErrors errors;
    const std::unique_ptr<xmlXPathContext, ContextFree> context(
        xmlXPathNewContext(content_->tree.get()));
    errors.check();
    context->userData = &errors;
    context->error = XmlErrors::note;
    const std::unique_ptr<xmlXPathObject, ResultFree> result(
        xmlXPathEval(chars(toUtf8(expression)), context.get()));
    errors.check();
    if (result == nullptr || result->type != XPATH_NODESET ||
        xmlXPathNodeSetIsEmpty(result->nodesetval))
        return {};
    return outerXml(xmlXPathNodeSetItem(result->nodesetval, 0));
}

WideString XmlDocument::textOfFirst(const WideString& name) const
{
    if (!hasRoot())
        return {};
    const std::string wanted = toUtf8(name);
    xmlNode* const root = xmlDocGetRootElement(content_->tree.get());
    xmlNode* element = root;
    while (element != nullptr &&
           (element->type != XML_ELEMENT_NODE ||
            (wanted != "*" && qualifiedName(element->ns, element->name) != wanted)))
        element = following(element, root);
    std::string text;
    for (xmlNode* node = element; node != nullptr; node = following(node, element))
        if (node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE)
            text += view(node->content);
    return toUtf16(text);
}

} // namespace Pelmora::Native::Platform
