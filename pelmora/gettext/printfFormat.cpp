#include "pelmora/gettext/printfFormat.h"

#include "pelmora/gettext/gstringUtil.h"
#include "pelmora/gettext/printfNumber.h"

#include <algorithm>
#include <optional>
#include <string>

namespace Pelmora::Native
{
namespace
{

/// No caller's buffer is larger, so that a wider field is cut to the buffer anyway.
constexpr int largestField = 65536;

constexpr std::string_view conversionLetters = "diuoxXcCsSpfFeEgGaA";

/// Hands out the arguments in order, each once.
class ArgumentQueue
{
public:
    explicit ArgumentQueue(std::span<const FormatArgument> arguments) : left_(arguments) {}

    const FormatArgument* next()
    {
        if (left_.empty())
            return nullptr;
        const FormatArgument* first = &left_.front();
        left_ = left_.subspan(1);
        return first;
    }

private:
    std::span<const FormatArgument> left_;
};

template <class Char>
class Parser
{
public:
    Parser(std::basic_string_view<Char> format, std::size_t afterPercent, ArgumentQueue& arguments)
        : format_(format), position_(afterPercent), arguments_(arguments)
    {
    }

    Conversion parse()
    {
        Conversion result;
        while (const char flag = takeAnyOf("-+ #0"))
            if (!result.has(flag))
                result.flags += flag;
        result.width = number();
        if (result.width && *result.width < 0) {
            result.flags += '-';
            result.width = -*result.width;
        }
        if (takeAnyOf(".") != 0) {
            result.precision = number().value_or(0);
            if (*result.precision < 0)
                result.precision.reset();
        }
        skipLengthModifiers(result);
        if (position_ < format_.size()) {
            const auto unit = format_[position_++];
            result.letter = unit > 0 && unit < 0x80 ? static_cast<char>(unit) : '?';
        }
        result.end = position_;
        return result;
    }

private:
    bool take(std::string_view characters)
    {
        const auto next = format_.substr(position_, characters.size());
        if (!std::equal(next.begin(), next.end(), characters.begin(), characters.end()))
            return false;
        position_ += characters.size();
        return true;
    }

    char takeAnyOf(std::string_view characters)
    {
        for (const char character : characters) {
            if (position_ < format_.size() && format_[position_] == static_cast<Char>(character)) {
                ++position_;
                return character;
            }
        }
        return 0;
    }

    /// A number in digits or, for *, the next argument; limited to the largest field.
    std::optional<int> number()
    {
        if (takeAnyOf("*") != 0) {
            const FormatArgument* argument = arguments_.next();
            const auto* integer = argument == nullptr
                                      ? nullptr
                                      : std::get_if<FormatArgument::Integer>(&argument->value());
            const auto value =
                integer == nullptr ? 0 : static_cast<std::int32_t>(integer->bits & 0xFFFFFFFFU);
            return std::clamp(value, -largestField, largestField);
        }
        std::optional<int> value;
        while (const char digit = takeAnyOf("0123456789"))
            value = std::min(value.value_or(0) * 10 + (digit - '0'), largestField);
        return value;
    }

    /// Arguments know their sizes. Only h and hh, which cut a number, have an effect.
    void skipLengthModifiers(Conversion& result)
    {
        while (const char modifier = takeAnyOf("hlLqjztwI"))
            if (modifier == 'h')
                result.lengthBits = result.lengthBits == 16 ? 8 : 16;
            else if (modifier == 'I')
                static_cast<void>(take("32") || take("64"));
    }

    std::basic_string_view<Char> format_;
    std::size_t position_;
    ArgumentQueue& arguments_;
};

template <class Char>
std::basic_string<Char> converted(std::string_view narrow)
{
    if constexpr (std::is_same_v<Char, char>)
        return std::string(narrow);
    else
        return GString(narrow).text();
}

template <class Char>
std::basic_string<Char> converted(const WideString& wide)
{
    if constexpr (std::is_same_v<Char, char>)
        return GString(wide).to_narrow();
    else
        return wide;
}

template <class Char>
std::basic_string<Char> padded(const Conversion& conversion, std::basic_string<Char> text)
{
    const auto width = static_cast<std::size_t>(conversion.width.value_or(0));
    if (text.size() >= width)
        return text;
    text.insert(conversion.has('-') ? text.size() : 0, width - text.size(), static_cast<Char>(' '));
    return text;
}

/// The converted argument; nothing when the conversion does not fit its type.
template <class Char>
std::optional<std::basic_string<Char>> convertedArgument(const Conversion& conversion,
                                                         const FormatArgument& argument)
{
    const FormatArgument::Value& value = argument.value();
    const auto isOneOf = [&conversion](std::string_view letters) {
        return letters.find(conversion.letter) != std::string_view::npos;
    };
    if (const auto* integer = std::get_if<FormatArgument::Integer>(&value)) {
        if (isOneOf("diuoxX"))
            return converted<Char>(std::string_view(printedInteger(conversion, *integer)));
        if (isOneOf("cC"))
            return padded(conversion, std::basic_string<Char>(1, static_cast<Char>(integer->bits)));
    }
    if (const auto* number = std::get_if<double>(&value); number != nullptr && isOneOf("fFeEgGaA"))
        return converted<Char>(std::string_view(printedNumber(conversion, *number)));
    if (const auto* pointer = std::get_if<const void*>(&value); pointer != nullptr && isOneOf("p"))
        return padded(conversion, converted<Char>(std::string_view(printedAddress(*pointer))));
    if (isOneOf("sS")) {
        std::optional<std::basic_string<Char>> text;
        if (const auto* narrow = std::get_if<std::string_view>(&value))
            text = converted<Char>(*narrow);
        if (const auto* wide = std::get_if<WideString>(&value))
            text = converted<Char>(*wide);
        if (text && conversion.precision)
            text->resize(std::min(text->size(), static_cast<std::size_t>(*conversion.precision)));
        if (text)
            return padded(conversion, *std::move(text));
    }
    return std::nullopt;
}

/// Keeps what fits into the buffer, and knows whether everything did.
template <class Char>
class BoundedOutput
{
public:
    explicit BoundedOutput(std::span<Char> buffer) : buffer_(buffer) {}

    void append(std::basic_string_view<Char> text)
    {
        const std::size_t count = std::min(text.size(), buffer_.size() - used_);
        std::copy_n(text.data(), count, buffer_.data() + used_);
        used_ += count;
        full_ = full_ || count < text.size();
    }

    bool full() const { return full_; }
    std::size_t used() const { return used_; }

private:
    std::span<Char> buffer_;
    std::size_t used_ = 0;
    bool full_ = false;
};

} // namespace

template <class Char>
FormatResult formatInto(std::span<Char> buffer, std::basic_string_view<Char> format,
                        std::span<const FormatArgument> arguments)
{
    BoundedOutput<Char> output(buffer);
    ArgumentQueue queue(arguments);
    std::size_t position = 0;
    while (position < format.size() && !output.full()) {
        const std::size_t percent =
            std::min(format.find(static_cast<Char>('%'), position), format.size());
        output.append(format.substr(position, percent - position));
        if (percent == format.size())
            break;
        const Conversion conversion = Parser<Char>(format, percent + 1, queue).parse();
        position = conversion.end;
        const auto whole = format.substr(percent, position - percent);
        if (conversion.letter == '%') {
            output.append(whole.substr(whole.size() - 1));
            continue;
        }
        const bool isKnown = conversionLetters.find(conversion.letter) != std::string_view::npos;
        const FormatArgument* argument = isKnown ? queue.next() : nullptr;
        const auto text =
            argument == nullptr ? std::nullopt : convertedArgument<Char>(conversion, *argument);
        output.append(text ? std::basic_string_view<Char>(*text) : whole);
    }
    return {output.used(), output.full()};
}

template FormatResult formatInto<char>(std::span<char>, std::string_view,
                                       std::span<const FormatArgument>);
template FormatResult formatInto<WideChar>(std::span<WideChar>, WideView,
                                           std::span<const FormatArgument>);

} // namespace Pelmora::Native
