#include "pelmora/platform/xmlDocument.h"

#include "pelmora/platform/systemError.h"
#include "pelmora/platform/win32/XmlEntities.h"
#include "pelmora/platform/win32/comOwners.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <system_error>

#include <mlang.h>
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

constexpr CLSID multiLanguageClass = {
    0x275c23e2, 0x3747, 0x11d0, {0x9f, 0xea, 0x00, 0xaa, 0x00, 0x3f, 0x86, 0x46}};
constexpr IID multiLanguage = {
    0x275c23e1, 0x3747, 0x11d0, {0x9f, 0xea, 0x00, 0xaa, 0x00, 0x3f, 0x86, 0x46}};

using NodePointer = ComPointer<IXMLDOMNode>;

void require(HRESULT result)
{
    if (result == E_OUTOFMEMORY)
        throw std::bad_alloc();
    if (FAILED(result))
        throw std::system_error(static_cast<int>(result), systemErrors(),
                                "MSXML 6 cannot be used; repair the Windows installation");
}

/// Whether a search found something.
bool found(HRESULT result)
{
    if (result == E_OUTOFMEMORY)
        throw std::bad_alloc();
    return result == S_OK;
}

ComPointer<IXMLDOMDocument2> newDocument(const ComApartment& com)
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
std::optional<std::string_view> declaredEncoding(std::string_view text)
{
    if (!text.starts_with("<?xml"))
        return std::nullopt;
    const std::string_view declaration = text.substr(0, text.find("?>"));
    const auto name = declaration.find("encoding");
    const auto open = declaration.find_first_of("\"'", name);
    if (name == std::string_view::npos || open == std::string_view::npos)
        return std::nullopt;
    const auto close = declaration.find(declaration[open], open + 1);
    if (close == std::string_view::npos)
        return std::nullopt;
    const std::string_view encoding = declaration.substr(open + 1, close - open - 1);
    // An unknown name stays, so that the parser reports it.
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    const bool isName =
        !encoding.empty() && isLetter(encoding.front()) &&
        std::all_of(encoding.begin(), encoding.end(), [&](char c) {
            return isLetter(c) || (c >= '0' && c <= '9') || c == '.' || c == '_' || c == '-';
        });
    return isName ? std::optional(encoding) : std::nullopt;
}

/// The code page of an encoding that a document declares.
std::optional<UINT> codePageOf(std::string_view encoding)
{
    ComPointer<IMultiLanguage> languages;
    MIMECSETINFO information = {};
    const std::wstring name(encoding.begin(), encoding.end());
    if (!found(CoCreateInstance(multiLanguageClass, nullptr, CLSCTX_INPROC_SERVER, multiLanguage,
                                reinterpret_cast<void**>(languages.receive()))) ||
        !found(languages->GetCharsetInfo(Bstr(name).get(), &information)))
        return std::nullopt;
    return information.uiInternetEncoding;
}

/// Longer texts are refused, so that no conversion exceeds what the system can count.
constexpr std::size_t longest = std::numeric_limits<int>::max() / 3;

/// Nothing when the text is too long or has an unpaired surrogate.
std::optional<std::string> toUtf8(std::wstring_view text)
{
    if (text.empty() || text.size() > longest)
        return std::nullopt;
    const int units = static_cast<int>(text.size());
    const auto convert = [&](char* buffer, int size) {
        return WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), units, buffer, size,
                                   nullptr, nullptr);
    };
    std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(utf8.data(), static_cast<int>(utf8.size()));
    return utf8.empty() ? std::nullopt : std::optional(std::move(utf8));
}

/// "" when the bytes are too many or not all of that code page.
std::wstring toWide(UINT codePage, std::string_view bytes)
{
    if (bytes.empty() || bytes.size() > longest)
        return {};
    const int count = static_cast<int>(bytes.size());
    std::wstring wide;
    for (const DWORD flags : {DWORD(MB_ERR_INVALID_CHARS), DWORD(0)}) {
        const int size = MultiByteToWideChar(codePage, flags, bytes.data(), count, nullptr, 0);
        wide.resize(static_cast<std::size_t>(size));
        MultiByteToWideChar(codePage, flags, bytes.data(), count, wide.data(), size);
        // Some code pages, of the kind that shifts, cannot be asked to be strict.
        if (size > 0 || GetLastError() != ERROR_INVALID_FLAGS)
            break;
    }
    return wide;
}

/// The bytes of a file in UTF-8, by what they begin with or declare. MSXML is not left to find out,
/// because entities are bounded in the text that it will see.
std::optional<std::string> fileToUtf8(std::string_view bytes)
{
    using namespace std::string_view_literals;
    const auto begins = [&](std::string_view start) { return bytes.starts_with(start); };
    const bool isBigEndian = begins("\xFE\xFF") || begins("\0<"sv);
    if (isBigEndian || begins("\xFF\xFE") || begins("<\0"sv)) {
        std::wstring text;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
            const auto first = static_cast<unsigned char>(bytes[i]);
            const auto second = static_cast<unsigned char>(bytes[i + 1]);
            text += static_cast<wchar_t>(isBigEndian ? first << 8U | second : second << 8U | first);
        }
        const bool isMarked = text.starts_with(L'\xFEFF');
        return bytes.size() % 2 == 0 ? toUtf8(std::wstring_view(text).substr(isMarked ? 1 : 0))
                                     : std::nullopt;
    }
    if (begins("\xEF\xBB\xBF"))
        return std::string(bytes.substr(3));
    const auto encoding = declaredEncoding(bytes);
    if (!encoding)
        return std::string(bytes);
    const auto codePage = codePageOf(*encoding);
    if (!codePage)
        return std::nullopt;
    return *codePage == CP_UTF8 ? std::string(bytes) : toUtf8(toWide(*codePage, bytes));
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
class DocumentOrder
{
public:
    explicit DocumentOrder(IXMLDOMNode& top)
    {
        top.AddRef();
        *node_.receive() = &top;
    }

    IXMLDOMNode* node() const { return node_.get(); }

    /// Goes to the next node; node() is null after the last one.
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
    ComApartment com;
    ComPointer<IXMLDOMDocument2> document = newDocument(com);
    XmlEntities entities;

    ComPointer<IXMLDOMElement> root() const
    {
        ComPointer<IXMLDOMElement> element;
        require(document->get_documentElement(element.receive()));
        return element;
    }

    bool load(std::string utf8);
    /// The text within an element or an attribute's value.
    WideString textWithin(IXMLDOMNode& top) const;
};

/// Whether the UTF-8 text is well-formed, whatever encoding it declares.
bool XmlDocument::Content::load(std::string utf8)
{
    if (const auto encoding = declaredEncoding(utf8))
        utf8.replace(static_cast<std::size_t>(encoding->data() - utf8.data()), encoding->size(),
                     "UTF-8");
    if (utf8.size() > longest || utf8.find('\0') != std::string::npos || !entities.read(utf8))
        return false;
    Variant source;
    source.vt = VT_ARRAY | VT_UI1;
    source.parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(utf8.size()));
    if (source.parray == nullptr)
        throw std::bad_alloc();
    std::memcpy(source.parray->pvData, utf8.data(), utf8.size());
    VARIANT_BOOL done = VARIANT_FALSE;
    if (found(document->load(source, &done)) && done == VARIANT_TRUE)
        return true;
    ComPointer<IXMLDOMParseError> reason;
    long code = 0;
    if (found(document->get_parseError(reason.receive())) && found(reason->get_errorCode(&code)))
        static_cast<void>(found(code)); // MSXML gives the reason only here
    return false;
}

WideString XmlDocument::Content::textWithin(IXMLDOMNode& top) const
{
    // MSXML's text property trims white space, and under Wine takes time by the square of how many
    // references there are.
    WideString text;
    for (DocumentOrder inside(top); inside.node() != nullptr; inside.advance()) {
        const DOMNodeType type = nodeType(*inside.node());
        if (type == NODE_ENTITY_REFERENCE) {
            const auto name = toUtf8(nodeName(*inside.node()));
            text += toWide(CP_UTF8, entities.textOf(name.value_or("")));
        } else if (type == NODE_TEXT || type == NODE_CDATA_SECTION) {
            Variant value;
            require(inside.node()->get_nodeValue(&value));
            text += value.text();
        }
    }
    return text;
}

XmlDocument::XmlDocument() : content_(std::make_unique<Content>()) {}

XmlDocument::~XmlDocument() = default;

bool XmlDocument::parseText(WideView text)
{
    auto utf8 = toUtf8(text);
    return utf8 && content_->load(std::move(*utf8));
}

bool XmlDocument::parseBytes(std::string_view bytes)
{
    auto utf8 = fileToUtf8(bytes);
    return utf8 && content_->load(std::move(*utf8));
}

bool XmlDocument::hasRoot() const
{
    return static_cast<bool>(content_->root());
}

WideString XmlDocument::rootAttribute(const WideString& name) const
{
    const auto root = content_->root();
    ComPointer<IXMLDOMAttribute> attribute;
    NodePointer child;
    if (found(root->getAttributeNode(Bstr(name).get(), attribute.receive())))
        require(attribute->get_firstChild(child.receive()));
    if (child)
        return content_->textWithin(*attribute.get());
    // Under Wine, declarations of namespaces have no node.
    Variant value;
    const bool isThere = found(root->getAttribute(Bstr(name).get(), &value));
    return isThere ? WideString(value.text()) : WideString();
}

WideString XmlDocument::firstSelected(const WideString& expression) const
{
    NodePointer node;
    if (expression.find(L'\0') != WideString::npos ||
        !found(content_->document->selectSingleNode(Bstr(expression).get(), node.receive())))
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
    DocumentOrder element(*root.get());
    while (element.node() != nullptr && (nodeType(*element.node()) != NODE_ELEMENT ||
                                         (name != L"*" && nodeName(*element.node()) != name)))
        element.advance();
    return element.node() == nullptr ? WideString() : content_->textWithin(*element.node());
}

} // namespace Pelmora::Native::Platform
