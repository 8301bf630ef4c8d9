#include "pelmora/platform/win32/XmlEntities.h"

#include "pelmora/base/detail/utf8.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <utility>

namespace Pelmora::Native::Platform
{
namespace
{

constexpr int maxDepth = 40;
constexpr int maxParameterReferences = 10000;
constexpr std::size_t tolerated = 10'000'000; // however small the document is
constexpr std::size_t maxFactor = 10;
constexpr std::size_t defaultOverhead = 100; // each defaulted attribute of an element is a node
// Under Wine, an attribute's value is joined from its references anew for each of them.
constexpr std::size_t maxAttributeCost = 1'000'000'000;

constexpr std::string_view whiteSpace = " \t\r\n";

bool isNameByte(char c)
{
    return static_cast<unsigned char>(c) >= 0x80 || (c >= 'a' && c <= 'z') ||
           (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == ':' || c == '-' ||
           c == '.';
}

} // namespace

/// Goes through a text.
class XmlEntities::Cursor
{
public:
    explicit Cursor(std::string_view text) : rest_(text) {}

    std::string_view rest() const { return rest_; }
    bool atEnd() const { return rest_.empty(); }
    bool at(char c) const { return rest_.starts_with(c); }
    bool atName() const { return !atEnd() && isNameByte(rest_.front()); }

    bool skip(std::string_view token)
    {
        const bool found = rest_.starts_with(token);
        if (found)
            rest_.remove_prefix(token.size());
        return found;
    }

    void skipSpace() { take(std::min(rest_.find_first_not_of(whiteSpace), rest_.size())); }

    /// What comes before the token, which is skipped. Without one, goes to the end.
    std::optional<std::string_view> upTo(std::string_view token)
    {
        const std::size_t end = rest_.find(token);
        if (end == std::string_view::npos) {
            rest_ = {}; // what is not closed is searched once
            return std::nullopt;
        }
        const std::string_view before = take(end);
        rest_.remove_prefix(token.size());
        return before;
    }

    std::string_view name()
    {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), isNameByte);
        return take(static_cast<std::size_t>(end - rest_.begin()));
    }

    /// What comes before the first of these bytes, or all.
    std::string_view untilAny(std::string_view bytes)
    {
        return take(std::min(rest_.find_first_of(bytes), rest_.size()));
    }

    std::optional<std::string_view> literal()
    {
        for (const std::string_view quote : {"\"", "'"})
            if (skip(quote))
                return upTo(quote);
        return std::nullopt;
    }

    /// Skips a comment or a processing instruction; false where there is none.
    bool skipMiscellaneous() { return (skip("<!--") && upTo("-->")) || (skip("<?") && upTo("?>")); }

    /// Skips a declaration or a tag to its end. References to parameters do not belong in it.
    template <class Use>
    bool skipMarkup(Use useLiteral)
    {
        for (;;) {
            untilAny("\"'%>");
            if (skip(">"))
                return true;
            const auto value = literal();
            if (!value)
                return false;
            useLiteral(*value);
        }
    }
    bool skipMarkup()
    {
        return skipMarkup([](std::string_view) {});
    }

    /// The character of a reference by number, after "&#".
    Utf8Sequence character()
    {
        const int base = skip("x") ? 16 : 10;
        std::uint32_t number = 0;
        const auto end =
            std::from_chars(rest_.data(), rest_.data() + rest_.size(), number, base).ptr;
        take(static_cast<std::size_t>(end - rest_.data()));
        skip(";");
        constexpr std::uint32_t highest = 0x10FFFF; // the parser refuses others
        return encodeUtf8(std::min(number, highest));
    }

private:
    std::string_view take(std::size_t size)
    {
        const std::string_view taken = rest_.substr(0, size);
        rest_.remove_prefix(size);
        return taken;
    }

    std::string_view rest_;
};

bool XmlEntities::read(std::string_view document)
{
    budget_ = std::max(tolerated, maxFactor * document.size());
    Cursor cursor(document);
    cursor.skip("\xEF\xBB\xBF");
    do
        cursor.skipSpace();
    while (cursor.skipMiscellaneous());
    if (!cursor.skip("<!DOCTYPE"))
        return true;
    for (cursor.untilAny("\"'[>"); cursor.literal();)
        cursor.untilAny("\"'[>");
    if (cursor.at('>'))
        return true;
    if (!cursor.skip("[") || !readDeclarations(cursor, 0))
        return false;
    const bool growsNot = entities_.empty() && defaults_.empty();
    return growsNot ||
           (growthOf(cursor.rest(), 0).size <= budget_ && attributeCost_ <= maxAttributeCost);
}

/// To the end of the internal subset or, at some depth, of a parameter entity.
bool XmlEntities::readDeclarations(Cursor& cursor, int depth)
{
    for (;;) {
        cursor.skipSpace();
        if (cursor.atEnd() || cursor.at(']'))
            return cursor.atEnd() == (depth > 0);
        bool isSound = false;
        if (cursor.skip("%")) {
            const std::string_view name = cursor.name();
            isSound = cursor.skip(";") && expandParameter(name, depth + 1);
        } else if (cursor.skip("<!ENTITY")) {
            isSound = readEntity(cursor);
        } else if (cursor.skip("<!ATTLIST")) {
            isSound = readDefaults(cursor);
        } else if (cursor.skip("<!ELEMENT") || cursor.skip("<!NOTATION")) {
            isSound = cursor.skipMarkup();
        } else {
            isSound = cursor.skipMiscellaneous();
        }
        if (!isSound)
            return false;
    }
}

bool XmlEntities::readEntity(Cursor& cursor)
{
    cursor.skipSpace();
    Replacements& replacements = cursor.skip("%") ? parameters_ : entities_;
    cursor.skipSpace();
    const std::string_view name = cursor.name();
    cursor.skipSpace();
    Replacement replacement;
    if (const auto value = cursor.literal()) {
        if (value->find('%') != std::string_view::npos)
            return false; // a reference to a parameter, which does not belong here
        for (Cursor inside(*value); !inside.atEnd();) {
            replacement.text += inside.untilAny("&\r");
            if (inside.skip("&#"))
                replacement.text += inside.character().view();
            else if (inside.skip("&"))
                replacement.text += '&';
            else if (inside.skip("\r\n") || inside.skip("\r"))
                replacement.text += '\n';
        }
    }
    replacements.emplace(name, std::move(replacement)); // the first declaration counts
    return cursor.skipMarkup();
}

bool XmlEntities::readDefaults(Cursor& cursor)
{
    cursor.skipSpace();
    Replacement& defaults = defaults_[std::string(cursor.name())];
    return cursor.skipMarkup([&](std::string_view value) {
        defaults.text += value;
        defaults.overhead += defaultOverhead;
    });
}

bool XmlEntities::expandParameter(std::string_view name, int depth)
{
    const auto found = parameters_.find(name);
    if (found == parameters_.end())
        return true;
    const std::string& text = found->second.text;
    parameterBytes_ += text.size();
    if (depth > maxDepth || ++parameterReferences_ > maxParameterReferences ||
        parameterBytes_ > budget_)
        return false;
    Cursor cursor(text);
    return readDeclarations(cursor, depth);
}

/// What content or an attribute's value becomes, its own size included.
XmlEntities::Growth XmlEntities::growthOf(std::string_view content, int depth)
{
    Growth growth = {content.size()};
    Cursor cursor(content);
    const auto addUse = [&](Replacements& replacements) {
        if (const auto found = replacements.find(cursor.name()); found != replacements.end())
            add(growth, growthOf(found->second, depth + 1));
    };
    while (growth.size <= budget_ && !cursor.atEnd()) {
        cursor.untilAny("&<");
        if (cursor.skipMiscellaneous())
            continue;
        if (cursor.skip("<![CDATA[")) {
            cursor.upTo("]]>");
        } else if (cursor.skip("&")) {
            ++growth.references;
            addUse(entities_);
        } else if (cursor.skip("<") && cursor.atName()) {
            addUse(defaults_);
            cursor.skipMarkup([&](std::string_view value) {
                Growth inner = growthOf(value, depth);
                attributeCost_ += inner.references * inner.size;
                inner.size -= value.size(); // already counted
                add(growth, inner);
            });
        }
    }
    return growth;
}

void XmlEntities::add(Growth& growth, const Growth& inner)
{
    growth.size += inner.size;
    growth.references += inner.references;
    growth.depth = std::max(growth.depth, inner.depth);
}

XmlEntities::Growth XmlEntities::growthOf(Replacement& replacement, int depth)
{
    using enum Replacement::State;
    const Growth tooMuch = {budget_ + 1};
    if (replacement.state == measuring || depth > maxDepth)
        return tooMuch;
    if (replacement.state == unmeasured) {
        replacement.state = measuring;
        replacement.growth = growthOf(replacement.text, depth);
        replacement.growth.size += replacement.overhead;
        ++replacement.growth.depth;
        replacement.state = measured;
    }
    return depth - 1 + replacement.growth.depth > maxDepth ? tooMuch : replacement.growth;
}

std::string XmlEntities::textOf(std::string_view name) const
{
    constexpr std::pair<std::string_view, const char*> predefined[] = {
        {"lt", "<"}, {"gt", ">"}, {"amp", "&"}, {"quot", "\""}, {"apos", "'"}};
    for (const auto& [known, text] : predefined)
        if (name == known)
            return text;
    std::string text;
    if (const auto found = entities_.find(name); found != entities_.end())
        appendText(found->second.text, text);
    return text;
}

void XmlEntities::appendText(std::string_view content, std::string& text) const
{
    for (Cursor cursor(content); !cursor.atEnd();) {
        text += cursor.untilAny("<&");
        if (cursor.skip("&#")) {
            text += cursor.character().view();
        } else if (cursor.skip("&")) {
            text += textOf(cursor.name());
            cursor.skip(";");
        } else if (cursor.skip("<![CDATA[")) {
            text += cursor.upTo("]]>").value_or("");
        } else if (!cursor.atEnd() && !cursor.skipMiscellaneous()) {
            cursor.skip("<");
            cursor.skipMarkup();
        }
    }
}

} // namespace Pelmora::Native::Platform
