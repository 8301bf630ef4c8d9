// Any declarations in a document's type: what the reading for MSXML makes of an entity, against
// what libxml2 does.

#include "pelmora/platform/win32/XmlEntities.h"
#include "fuzz/FuzzedInput.h"
#include "pelmora/platform/posix/utf16.h"
#include "pelmora/platform/xmlDocument.h"

using namespace Pelmora;
using namespace Native::Platform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes = FuzzedInput(data, size).rest();
    static_cast<void>(XmlEntities().read(bytes));

    const std::string document = "<!DOCTYPE r [" + bytes + "]><r>&a;</r>";
    XmlDocument parsed;
    XmlEntities entities;
    if (!parsed.parseBytes(document) || !entities.read(document))
        return 0;
    const std::string text = entities.textOf("a");
    if (text.find('\r') == std::string::npos) // libxml2 makes line feeds of them, also of "&#13;"
        check(toUtf16(text) == parsed.textOfFirst(u"r"));
    return 0;
}
