#include "pelmora/platform/xmlDocument.h"

#include "pelmora/platform/win32/com.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <system_error>

#include <msxml2.h>

namespace Pelmora::Native::Platform
{
namespace
{

// Not in mingw-w64's headers and libraries.
constexpr CLSID domDocument60 = {
    0x88d96a05, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};
constexpr IID domDocument2 = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};

using NodePointer = ComPointer<IXMLDOMNode>;

void require(HRESULT result)
{
    if (result == E_OUTOFMEMORY)
        throw std::bad_alloc();
    if (FAILED(result))
        throw std::system_error(static_cast<int>(result), std::system_category(),
                                "MSXML 6 cannot be used; repair the Windows installation");
}

ComPointer<IXMLDOMDocument2> newDocument(const ComUse& com)
{
    require(com.status());
    ComPointer<IXMLDOMDocument2> document;
    require(CoCreateInstance(domDocument60, nullptr, CLSCTX_INPROC_SERVER, domDocument2,
                             reinterpret_cast<void**>(document.receive())));
    require(document->put_async(VARIANT_FALSE));
    require(document->put_validateOnParse(VARIANT_FALSE));
    require(document->put_resolveExternals(VARIANT_FALSE));
    require(document->put_preserveWhiteSpace(VARIANT_TRUE));
    Variant no;
    no.vt = VT_BOOL;
    no.boolVal = VARIANT_FALSE;
    require(document->setProperty(Bstr(L"ProhibitDTD").get(), no));
    return document;
}

/// The place of the encoding's name in an XML declaration.
std::optional<std::wstring_view> declaredEncoding(std::wstring_view text)
{
    if (!text.starts_with(L"<?xml"))
        return std::nullopt;
    const std::wstring_view declaration = text.substr(0, text.find(L"?>"));
    const auto name = declaration.find(L"encoding");
    const auto open = declaration.find_first_of(L"\"'", name);
    if (name == std::wstring_view::npos || open == std::wstring_view::npos)
        return std::nullopt;
    const auto close = declaration.find(declaration[open], open + 1);
    if (close == std::wstring_view::npos)
        return std::nullopt;
    const std::wstring_view encoding = declaration.substr(open + 1, close - open - 1);
    // What is no name of an encoding stays, so that the parser reports it.
    const auto isLetter = [](wchar_t c) {
        return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
    };
    const bool isName =
        !encoding.empty() && isLetter(encoding.front()) &&
        std::all_of(encoding.begin(), encoding.end(), [&](wchar_t c) {
            return isLetter(c) || (c >= L'0' && c <= L'9') || c == L'.' || c == L'_' || c == L'-';
        });
    return isName ? std::optional(encoding) : std::nullopt;
}

/// False when the text is too long or has a surrogate that is not part of a pair.
bool toUtf8(std::wstring_view text, std::string& utf8)
{
    constexpr std::size_t longest = std::numeric_limits<int>::max() / 3;
    if (text.empty() || text.size() > longest)
        return false;
    const int units = static_cast<int>(text.size());
    const auto convert = [&](char* buffer, int size) {
        return WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), units, buffer, size,
                                   nullptr, nullptr);
    };
    const int size = convert(nullptr, 0);
    utf8.resize(static_cast<std::size_t>(size));
    return size > 0 && convert(utf8.data(), size) == size;
}

std::wstring nodeName(IXMLDOMNode& node)
{
    Bstr name;
    require(node.get_nodeName(name.receive()));
    return std::wstring(name.view());
}

DOMNodeType nodeType(IXMLDOMNode& node)
{
    DOMNodeType type = NODE_INVALID;
    require(node.get_nodeType(&type));
    return type;
}

/// Goes through the nodes within `top` in document order, `top` first, without recursion, so that
/// no depth can exhaust the stack. References to entities are not entered.
class Walk
{
public:
    explicit Walk(IXMLDOMNode& top)
    {
        top.AddRef();
        *node_.receive() = &top;
    }

    IXMLDOMNode* node() const { return node_.get(); }

    /// To the next node; node() is null behind the last one.
    void advance()
    {
        NodePointer next;
        if (nodeType(*node_.get()) != NODE_ENTITY_REFERENCE) {
            require(node_->get_firstChild(next.receive()));
            if (next) {
                ++depth_;
                node_ = std::move(next);
                return;
            }
        }
        for (; depth_ > 0; --depth_) {
            require(node_->get_nextSibling(next.receive()));
            if (next) {
                node_ = std::move(next);
                return;
            }
            NodePointer parent;
            require(node_->get_parentNode(parent.receive()));
            node_ = std::move(parent);
        }
        node_ = NodePointer();
    }

private:
    NodePointer node_;
    int depth_ = 0;
};

} // namespace

struct XmlDocument::Content {
    ComUse com;
    ComPointer<IXMLDOMDocument2> document = newDocument(com);

    ComPointer<IXMLDOMElement> root() const
    {
        ComPointer<IXMLDOMElement> element;
        require(document->get_documentElement(element.receive()));
        return element;
    }
};

XmlDocument::XmlDocument() : content_(std::make_unique<Content>()) {}

XmlDocument::~XmlDocument() = default;

bool XmlDocument::parseText(WideView text)
{
    WideString withEncoding;
    if (const auto encoding = declaredEncoding(text)) {
        const auto at = static_cast<std::size_t>(encoding->data() - text.data());
        withEncoding.append(text).replace(at, encoding->size(), L"UTF-8");
        text = withEncoding;
    }
    std::string utf8;
    return text.find(L'\0') == WideView::npos && toUtf8(text, utf8) && parseBytes(utf8);
}

bool XmlDocument::parseBytes(std::string_view bytes)
{
    if (bytes.size() > std::numeric_limits<ULONG>::max())
        return false;
    Variant source;
    source.vt = VT_ARRAY | VT_UI1;
    source.parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    if (source.parray == nullptr)
        throw std::bad_alloc();
    if (!bytes.empty())
        std::memcpy(source.parray->pvData, bytes.data(), bytes.size());
    VARIANT_BOOL done = VARIANT_FALSE;
    const HRESULT result = content_->document->load(source, &done);
    if (result == E_OUTOFMEMORY)
        throw std::bad_alloc();
    return result == S_OK && done == VARIANT_TRUE;
}

bool XmlDocument::hasRoot() const
{
    return static_cast<bool>(content_->root());
}

WideString XmlDocument::rootAttribute(const WideString& name) const
{
    Variant value;
    const HRESULT result = content_->root()->getAttribute(Bstr(name).get(), &value);
    return result == S_OK ? WideString(value.text()) : WideString();
}

WideString XmlDocument::firstSelected(const WideString& expression) const
{
    NodePointer node;
    if (expression.find(L'\0') != WideString::npos ||
        content_->document->selectSingleNode(Bstr(expression).get(), node.receive()) != S_OK)
        return {};
    Bstr xml;
    require(node->get_xml(xml.receive()));
    return WideString(xml.view());
}

WideString XmlDocument::textOfFirst(const WideString& name) const
{
    const auto root = content_->root();
    if (!root)
        return {};
    // MSXML's own search by name does not look at prefixes under Wine.
    Walk element(*root.get());
    while (element.node() != nullptr && (nodeType(*element.node()) != NODE_ELEMENT ||
                                         (name != L"*" && nodeName(*element.node()) != name)))
        element.advance();
    if (element.node() == nullptr)
        return {};
    // The text property trims white space, which would lose some of it.
    WideString text;
    for (Walk inside(*element.node()); inside.node() != nullptr; inside.advance()) {
        const DOMNodeType type = nodeType(*inside.node());
        if (type == NODE_ENTITY_REFERENCE) {
            // Wine has no nodes for what it stands for, but knows the text of the whole.
            Bstr whole;
            require(element.node()->get_text(whole.receive()));
            return WideString(whole.view());
        } else if (type == NODE_TEXT || type == NODE_CDATA_SECTION) {
            Variant value;
            require(inside.node()->get_nodeValue(&value));
            text += value.text();
        }
    }
    return text;
}

} // namespace Pelmora::Native::Platform
