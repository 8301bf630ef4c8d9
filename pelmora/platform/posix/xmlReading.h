#pragma once

#include <memory>
#include <string_view>

#include <libxml/tree.h>

namespace Pelmora::Native::Platform
{

struct TreeFree {
    void operator()(xmlDoc* tree) const { xmlFreeDoc(tree); }
};
using Tree = std::unique_ptr<xmlDoc, TreeFree>;

/// The tree of a well-formed document within the limits that XmlDocument states, otherwise null.
/// They are in the encoding that they begin with or declare, or else in UTF-8.
Tree readXml(std::string_view bytes);

/// The same for bytes that are in UTF-8, whatever encoding they declare.
Tree readUtf8Xml(std::string_view utf8);

} // namespace Pelmora::Native::Platform
