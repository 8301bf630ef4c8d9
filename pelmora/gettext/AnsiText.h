#pragma once

#include "pelmora/gettext/gstringUtil.h"

#include <concepts>
#include <string>
#include <string_view>

namespace Pelmora::Native
{

/// A parameter's type for text that crosses to the system in the ANSI code page: made from narrow
/// text, which is in that page already, and from everything that a `GString` is made from, which is
/// converted. A pointer must not be null.
class AnsiText
{
public:
    /// The empty text.
    AnsiText() = default;
    /// From any text.
    template <class Text>
    requires std::convertible_to<const Text&, std::string> ||
        std::convertible_to<const Text&, std::string_view>
        AnsiText(const Text& text) // NOLINT(google-explicit-constructor): callers pass text
        : narrow_(ofNarrow(text))
    {
    }
    template <class Text>
    requires std::convertible_to<const Text&, GString>
    AnsiText(const Text& text) // NOLINT(google-explicit-constructor): as above
    {
        const GString& wide = text;
        narrow_ = wide.to_narrow();
        isExact_ = GString(narrow_) == wide;
    }

    /// The text in the ANSI code page. Wide text ends at its first NUL.
    const std::string& narrow() const noexcept { return narrow_; }
    const char* c_str() const noexcept { return narrow_.c_str(); }

    /// Whether that is all of the text: false when it had characters that the code page lacks.
    bool isExact() const noexcept { return isExact_; }

private:
    template <class Text>
    static std::string ofNarrow(const Text& text)
    {
        if constexpr (std::convertible_to<const Text&, std::string>)
            return text;
        else
            return std::string(std::string_view(text));
    }

    std::string narrow_;
    bool isExact_ = true;
};

} // namespace Pelmora::Native
