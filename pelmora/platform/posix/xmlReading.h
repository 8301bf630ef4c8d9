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
/// A given encoding overrides the declared one.
Tree readXml(std::string_view bytes, const char* encoding);

} // namespace Pelmora::Native::Platform
