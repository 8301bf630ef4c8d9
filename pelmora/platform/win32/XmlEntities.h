#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace Pelmora::Native::Platform
{

/// What a document's own type declaration says about entities and the defaults of attributes, read
/// from its text, because MSXML does not bound what they grow to and under Wine does not tell what
/// they stand for.
class XmlEntities
{
public:
    /// Reads a document in UTF-8. False when its entities or defaults grow out of proportion, when
    /// entities are nested more than 40 deep (libxml2's limit), or when a declaration is not
    /// well-formed. Other mistakes are left to the parser. Requires: this object is new.
    bool read(std::string_view document);

    /// All text within what a reference to the entity stands for, in UTF-8; "" for an unknown one.
    /// Requires: `read` gave true.
    std::string textOf(std::string_view name) const;

private:
    class Cursor;

    struct Growth {
        std::size_t size = 0;
        std::size_t references = 0;
        int depth = 0;
    };
    struct Replacement {
        enum class State { unmeasured, measuring, measured };

        std::string text;
        std::size_t overhead = 0;
        State state = State::unmeasured;
        Growth growth = {};
    };
    using Replacements = std::map<std::string, Replacement, std::less<>>;

    bool readDeclarations(Cursor& cursor, int depth);
    bool readEntity(Cursor& cursor);
    bool readDefaults(Cursor& cursor);
    bool expandParameter(std::string_view name, int depth);
    Growth growthOf(std::string_view content, int depth);
    Growth growthOf(Replacement& replacement, int depth);
    static void add(Growth& growth, const Growth& inner);
    void appendText(std::string_view content, std::string& text) const;

    Replacements entities_;
    Replacements parameters_;
    Replacements defaults_; ///< of all attributes of an element
    std::size_t budget_ = 0;
    std::size_t attributeCost_ = 0;
    std::size_t parameterBytes_ = 0;
    int parameterReferences_ = 0;
};

} // namespace Pelmora::Native::Platform
