#include "pelmora/platform/posix/XmlErrors.h"

#include <new>

#include <libxml/globals.h>
#include <libxml/parser.h>
#include <libxml/threads.h>

namespace Pelmora::Native::Platform
{

/// libxml2 would do it by itself, but not safely when several threads come first.
XmlErrors::Initialised XmlErrors::initialise()
{
    static const Initialised done = [] {
        const XmlErrors errors(Initialised{});
        xmlInitParser();
        // It would never get again what it had no memory for.
        if (errors.outOfMemory_)
            xmlCleanupParser();
        errors.check();
        return Initialised();
    }();
    return done;
}

XmlErrors::XmlErrors() : XmlErrors(initialise()) {}

XmlErrors::XmlErrors(Initialised)
{
    // Without memory for the thread's own state, libxml2 would crash where it uses it.
    if (xmlGetGlobalState() == nullptr)
        throw std::bad_alloc();
    formerFunction_ = xmlStructuredError;
    formerContext_ = xmlStructuredErrorContext;
    xmlSetStructuredErrorFunc(this, note);
}

XmlErrors::~XmlErrors()
{
    xmlSetStructuredErrorFunc(formerContext_, formerFunction_);
}

void XmlErrors::check() const
{
    if (outOfMemory_)
        throw std::bad_alloc();
}

void XmlErrors::note(void* errors, xmlError* error)
{
    auto& self = *static_cast<XmlErrors*>(errors);
    // It says the same again of an attribute that is longer than its limits.
    const bool isLimit = self.latestCode_ == XML_ERR_ATTRIBUTE_NOT_FINISHED;
    self.outOfMemory_ = self.outOfMemory_ || (error->code == XML_ERR_NO_MEMORY && !isLimit);
    self.latestCode_ = error->code;
}

} // namespace Pelmora::Native::Platform
