#pragma once

#include "pelmora/base/wideChar.h"

#include <memory>
#include <string>
#include <string_view>

// What the host must provide to read and query XML 1.0 with namespaces.

namespace Pelmora::Native::Platform
{

/// One document, empty at first. A document type declaration is read, and the entities declared in
/// it are known, but no external entity, other file or network address is ever opened. Elements
/// nested more than 256 deep, and entities that grow out of proportion, are a failure like
/// malformed text. Text is kept with all its white space.
///
/// Only the constructor and lack of memory raise exceptions: std::system_error when the host has no
/// XML parser. An object is used by one thread at a time.
class XmlDocument
{
public:
    XmlDocument();
    XmlDocument(const XmlDocument&) = delete;
    XmlDocument& operator=(const XmlDocument&) = delete;
    ~XmlDocument();

    /// Whether the text is well-formed; the document is left empty when not. An encoding that the
    /// text declares means nothing. Requires: the document is empty.
    bool parseText(WideView text);

    /// The same for a file's bytes in the encoding that they begin with or declare, or in UTF-8.
    bool parseBytes(std::string_view bytes);

    bool hasRoot() const;

    /// The value of the root's attribute of that qualified name, or "". Requires: hasRoot().
    WideString rootAttribute(const WideString& name) const;

    /// The first node in document order that the XPath 1.0 expression selects, with its tags; ""
    /// when there is none or the expression is not one for nodes.
    WideString firstSelected(const WideString& expression) const;

    /// All text within the first element of that qualified name as it is written in the document,
    /// "*" for any; "" when there is none.
    WideString textOfFirst(const WideString& name) const;

private:
    struct Content;
    std::unique_ptr<Content> content_;
};

} // namespace Pelmora::Native::Platform
