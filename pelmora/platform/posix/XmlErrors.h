#pragma once

#include <libxml/xmlerror.h>

namespace Pelmora::Native::Platform
{

/// Every use of libxml2 stands between the construction of such an object and its `check`. It takes
/// the calling thread's errors, which would be written to standard error otherwise, and remembers
/// whether one was that memory could not be had: often that shows in nothing else but a result that
/// lacks something. The first object initialises libxml2. All of it throws std::bad_alloc.
class XmlErrors
{
public:
    XmlErrors();
    XmlErrors(const XmlErrors&) = delete;
    XmlErrors& operator=(const XmlErrors&) = delete;
    ~XmlErrors();

    /// Throws when libxml2 could not have memory.
    void check() const;

    /// For what has a place of its own for such a function; `errors` is the object.
    static void note(void* errors, xmlError* error);

private:
    struct Initialised {
    };
    static Initialised initialise();
    explicit XmlErrors(Initialised);

    bool outOfMemory_ = false;
    int latestCode_ = XML_ERR_OK;
    xmlStructuredErrorFunc formerFunction_ = nullptr;
    void* formerContext_ = nullptr;
};

} // namespace Pelmora::Native::Platform
