#include "pelmora/platform/posix/xmlReading.h"

#include "pelmora/platform/posix/XmlErrors.h"

#include <algorithm>
#include <limits>
#include <new>

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>

namespace Pelmora::Native::Platform
{
namespace
{

constexpr int maxDepth = 256; // the limit of MSXML 6, so that both builds agree

// libxml2 limits what general entities grow to, but not parameter entities.
constexpr int maxParameterReferences = 10000;
constexpr std::size_t toleratedGrowth = 10'000'000; // however small the document is
constexpr std::size_t maxGrowthFactor = 10;

// Nor does it limit attributes, whose number costs it time by its square, and whose defaults a
// document type can repeat in every element.
constexpr int maxAttributes = 4096;
constexpr std::size_t maxDefaultedBytes = 10'000'000;

enum class Mode {
    withoutDocumentType, ///< texts of any length; stops at a document type declaration
    withLimits,          ///< libxml2's own limits, among them those of entities
};

/// One run of libxml2's parser with callbacks that refuse what must not be read.
class Reading
{
public:
    Reading(Mode mode, int encodingOption);

    Tree tree(std::string_view bytes);
    bool metDocumentType() const { return metDocumentType_; }
    bool knowsEncoding() const { return context_->errNo != XML_ERR_UNSUPPORTED_ENCODING; }

private:
    struct ContextFree {
        void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
    };

    static Reading& of(void* context);
    static void startElement(void* context, const xmlChar* name, const xmlChar* prefix,
                             const xmlChar* uri, int spaceCount, const xmlChar** spaces,
                             int attributeCount, int defaultedCount, const xmlChar** attributes);
    static void startDocumentType(void* context, const xmlChar* name, const xmlChar* publicId,
                                  const xmlChar* systemId);
    static void declareEntity(void* context, const xmlChar* name, int type, const xmlChar* publicId,
                              const xmlChar* systemId, xmlChar* content);
    static xmlEntity* entityOf(void* context, const xmlChar* name);
    static xmlEntity* parameterEntityOf(void* context, const xmlChar* name);

    void stop();

    XmlErrors errors_; // lives longest
    Mode mode_;
    int encodingOption_;
    bool metDocumentType_ = false;
    bool stopped_ = false;
    bool lostEntity_ = false;
    std::size_t parameterBudget_ = 0;
    int parameterReferences_ = 0;
    std::size_t defaultedBytes_ = 0;
    xmlChar nothing_[1] = {0};
    xmlEntity emptyEntity_ = {};
    std::unique_ptr<xmlParserCtxt, ContextFree> context_;
};

Reading::Reading(Mode mode, int encodingOption)
    : mode_(mode), encodingOption_(encodingOption), context_(xmlNewParserCtxt())
{
    if (context_ == nullptr)
        throw std::bad_alloc();
    emptyEntity_.type = XML_ENTITY_DECL;
    emptyEntity_.etype = XML_INTERNAL_GENERAL_ENTITY;
    emptyEntity_.content = nothing_;
    emptyEntity_.orig = nothing_;

    context_->_private = this;
    context_->sax->startElementNs = startElement;
    context_->sax->internalSubset = startDocumentType;
    context_->sax->entityDecl = declareEntity;
    context_->sax->getEntity = entityOf;
    context_->sax->getParameterEntity = parameterEntityOf;
    // Asked for the external part of a document type, too.
    context_->sax->resolveEntity = [](void*, const xmlChar*, const xmlChar*) {
        return static_cast<xmlParserInput*>(nullptr);
    };
}

Reading& Reading::of(void* context)
{
    return *static_cast<Reading*>(static_cast<xmlParserCtxt*>(context)->_private);
}

void Reading::stop()
{
    stopped_ = true;
    xmlStopParser(context_.get());
}

void Reading::startElement(void* context, const xmlChar* name, const xmlChar* prefix,
                           const xmlChar* uri, int spaceCount, const xmlChar** spaces,
                           int attributeCount, int defaultedCount, const xmlChar** attributes)
{
    constexpr std::size_t attributeOverhead = 100;
    for (int i = attributeCount - defaultedCount; i < attributeCount; ++i)
        of(context).defaultedBytes_ +=
            attributeOverhead +
            static_cast<std::size_t>(attributes[5 * i + 4] - attributes[5 * i + 3]);
    if (static_cast<xmlParserCtxt*>(context)->nodeNr >= maxDepth ||
        attributeCount > maxAttributes || of(context).defaultedBytes_ > maxDefaultedBytes)
        of(context).stop();
    else
        xmlSAX2StartElementNs(context, name, prefix, uri, spaceCount, spaces, attributeCount,
                              defaultedCount, attributes);
}

void Reading::startDocumentType(void* context, const xmlChar* name, const xmlChar* publicId,
                                const xmlChar* systemId)
{
    Reading& reading = of(context);
    reading.metDocumentType_ = true;
    if (reading.mode_ == Mode::withoutDocumentType)
        reading.stop();
    else
        xmlSAX2InternalSubset(context, name, publicId, systemId);
}

void Reading::declareEntity(void* context, const xmlChar* name, int type, const xmlChar* publicId,
                            const xmlChar* systemId, xmlChar* content)
{
    // libxml2 opens external parameter entities when it substitutes any; an empty one is not
    // opened.
    if (type == XML_EXTERNAL_PARAMETER_ENTITY)
        xmlSAX2EntityDecl(context, name, XML_INTERNAL_PARAMETER_ENTITY, nullptr, nullptr,
                          of(context).nothing_);
    else
        xmlSAX2EntityDecl(context, name, type, publicId, systemId, content);
    // libxml2 does not say that it had no memory for it.
    const bool isParameter =
        type == XML_EXTERNAL_PARAMETER_ENTITY || type == XML_INTERNAL_PARAMETER_ENTITY;
    const xmlEntity* const known =
        isParameter ? xmlSAX2GetParameterEntity(context, name) : xmlSAX2GetEntity(context, name);
    of(context).lostEntity_ = of(context).lostEntity_ || known == nullptr;
}

xmlEntity* Reading::entityOf(void* context, const xmlChar* name)
{
    // Text under another name is not joined with what follows; joining takes time by the square of
    // how many references there are.
    static const xmlChar notJoined[] = "text";
    const xmlNode* const parent = static_cast<xmlParserCtxt*>(context)->node;
    if (parent != nullptr && parent->last != nullptr && parent->last->type == XML_TEXT_NODE)
        parent->last->name = notJoined;
    xmlEntity* entity = xmlSAX2GetEntity(context, name);
    const bool isExternal =
        entity != nullptr && entity->etype == XML_EXTERNAL_GENERAL_PARSED_ENTITY;
    // In an attribute's value it is an error, which the parser reports.
    if (!isExternal || static_cast<xmlParserCtxt*>(context)->instate == XML_PARSER_ATTRIBUTE_VALUE)
        return entity;
    Reading& reading = of(context);
    reading.emptyEntity_.name = entity->name;
    return &reading.emptyEntity_;
}

xmlEntity* Reading::parameterEntityOf(void* context, const xmlChar* name)
{
    Reading& reading = of(context);
    xmlEntity* entity = xmlSAX2GetParameterEntity(context, name);
    const std::size_t size = entity == nullptr ? 0 : static_cast<std::size_t>(entity->length);
    if (++reading.parameterReferences_ > maxParameterReferences ||
        size > reading.parameterBudget_) {
        reading.stop();
        return nullptr;
    }
    reading.parameterBudget_ -= size;
    return entity;
}

Tree Reading::tree(std::string_view bytes)
{
    parameterBudget_ = std::max(toleratedGrowth, maxGrowthFactor * bytes.size());
    int options = XML_PARSE_NOENT | XML_PARSE_DTDATTR | XML_PARSE_NONET | XML_PARSE_NOERROR |
                  XML_PARSE_NOWARNING | encodingOption_;
    if (mode_ == Mode::withoutDocumentType)
        options |= XML_PARSE_HUGE;
    Tree result(xmlCtxtReadMemory(context_.get(), bytes.data(), static_cast<int>(bytes.size()),
                                  nullptr, nullptr, options));
    errors_.check();
    if (lostEntity_)
        throw std::bad_alloc();
    // The parser takes a NUL after the root for the end of the input.
    const xmlParserInput* input = context_->input;
    const bool readToEnd = input != nullptr && input->cur == input->end;
    const bool isSound =
        !stopped_ && readToEnd && context_->wellFormed != 0 && context_->nsWellFormed != 0;
    return isSound ? std::move(result) : nullptr;
}

Tree read(std::string_view bytes, int encodingOption)
{
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return nullptr;
    // An encoding seems to be unknown, too, when there is no memory for its converter.
    Tree result;
    bool knowsEncoding = false;
    bool needsLimits = false;
    for (int tries = 0; tries < 2 && !knowsEncoding; ++tries) {
        Reading reading(Mode::withoutDocumentType, encodingOption);
        result = reading.tree(bytes);
        knowsEncoding = reading.knowsEncoding();
        needsLimits = reading.metDocumentType();
    }
    if (!needsLimits)
        return result;
    Reading reading(Mode::withLimits, encodingOption);
    result = reading.tree(bytes);
    if (!reading.knowsEncoding())
        throw std::bad_alloc();
    return result;
}

} // namespace

Tree readXml(std::string_view bytes)
{
    return read(bytes, 0);
}

Tree readUtf8Xml(std::string_view utf8)
{
    // With a NUL among its first bytes it would be taken for UTF-16. To name the encoding instead
    // would make the parser convert the whole text.
    constexpr std::size_t shortestDocument = 4;
    if (utf8.substr(0, shortestDocument).find('\0') != std::string_view::npos)
        return nullptr;
    return read(utf8, XML_PARSE_IGNORE_ENC);
}

} // namespace Pelmora::Native::Platform
