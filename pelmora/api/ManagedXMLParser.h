#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace Pelmora::Native::Platform
{
class XmlDocument;
}

namespace ManagedXML
{

using Pelmora::GString;

/// A query came before any document was parsed, or asked for the root of one that has none.
class PELMORA_API NoDocumentError : public std::logic_error
{
public:
    /// `what` says which question it was.
    using std::logic_error::logic_error;
    ~NoDocumentError() override;

    NoDocumentError(const NoDocumentError&) = default;
    NoDocumentError& operator=(const NoDocumentError&) = default;
};

/// A file is missing or cannot be read. The message, in UTF-8, has its name and the system's
/// reason.
class PELMORA_API FileError : public std::runtime_error
{
public:
    /// `reason` is UTF-8.
    FileError(const GString& fileName, const std::string& reason);
    ~FileError() override;

    FileError(const FileError&) = default;
    FileError& operator=(const FileError&) = default;
};

/// Answers three kinds of question about one XML document.
///
/// What is not there, a query that is malformed and text that is not well-formed are reported by
/// value. Exceptions are left for mistakes of the caller and for failures of the system:
/// NoDocumentError, FileError, Pelmora::NullReferenceError for a null pointer to text,
/// std::system_error where the system has no XML parser, std::bad_alloc.
///
/// A document may have a document type declaration, but neither an external entity nor a network
/// address is ever opened for it. Entities of either kind and defaults of attributes that make a
/// document grow to more than 10 MB and 10 times its size count as malformed, and so do elements
/// nested more than 256 deep, so that a hostile document cannot exhaust the process; on Linux also
/// elements of more than 4096 attributes and 10 MB of defaulted ones.
///
/// Every operation takes narrow text of the ANSI code page as well. One thread at a time may use an
/// object; on Windows, COM need not be initialised, and the thread's apartment is left as it is.
class PELMORA_API ManagedXMLParser
{
public:
    /// The process's shared object, made on first use and never destroyed.
    static ManagedXMLParser& sGet();

    /// Without a document. Objects of one's own are as good as the shared one.
    ManagedXMLParser();
    ManagedXMLParser(const ManagedXMLParser&) = delete;
    ManagedXMLParser& operator=(const ManagedXMLParser&) = delete;
    ~ManagedXMLParser();

    /// Whether the text is a well-formed document. The one before is gone in any case: after a
    /// failure, queries answer from an empty document. An encoding that the text declares means
    /// nothing, because a GString has one already.
    bool parseFromString(const GString& xmlString);
    bool parseFromString(const char* xmlString);

    /// The same for a file, in the encoding that its byte-order mark or its XML declaration says,
    /// or UTF-8. An empty name gives false and leaves the document as it was. A file that cannot be
    /// read throws FileError, and the document is empty then.
    bool parseFromFile(const GString& xmlFileName);
    bool parseFromFile(const char* xmlFileName);

    /// The first node that the XPath expression `//Action/Event[@namedAttribute="tag"]` selects, as
    /// XML with its tags: an Event without a namespace, directly in an Action. The arguments are
    /// put in as they are, so that a tag with a double quote makes the expression malformed; "" for
    /// that, and when nothing matches.
    GString getElementWithAttributeValue(const GString& namedAttribute, const GString& tag) const;
    GString getElementWithAttributeValue(const char* namedAttribute, const char* tag) const;

    /// The value of the root element's attribute of that qualified name; "" when it has none.
    /// Throws NoDocumentError when the last parse failed, because there is no root then.
    GString getAttribute(const GString& namedAttribute) const;
    GString getAttribute(const char* namedAttribute) const;

    /// All text and CDATA inside the first element of that qualified name, with its white space and
    /// without comments and processing instructions; "*" stands for any name. "" when there is no
    /// such element.
    GString getElement(const GString& namedElement) const;
    GString getElement(const char* namedElement) const;

private:
    using Document = Pelmora::Native::Platform::XmlDocument;

    Document& emptyDocument();
    const Document& requireDocument() const;

    std::unique_ptr<Document> document_; ///< of the last parse; null before the first one
};

} // namespace ManagedXML
