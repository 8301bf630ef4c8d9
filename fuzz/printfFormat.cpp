// Conversions that C defines, against snprintf; and any format with any arguments, which does to a
// short buffer what it does to a long one.

#include "pelmora/gettext/printfFormat.h"
#include "fuzz/FuzzedInput.h"

#include <cmath>
#include <list>
#include <vector>

using namespace Pelmora;
using namespace Native;

namespace
{

template <class... Arguments>
std::string printed(const std::string& format, Arguments... arguments)
{
    char text[2000];
    const int length = std::snprintf(text, sizeof text, format.c_str(), arguments...);
    return {text, static_cast<std::size_t>(length)};
}

template <class Char>
std::basic_string<Char> formatted(std::basic_string_view<Char> format,
                                  const std::vector<FormatArgument>& arguments, std::size_t room,
                                  bool& isCut)
{
    static Char buffer[65536];
    const FormatResult result = formatInto<Char>(std::span(buffer).first(room), format, arguments);
    check(result.length <= room);
    isCut = result.isCut;
    return {buffer, result.length};
}

void compareWithC(FuzzedInput& input)
{
    std::string format;
    std::string expected;
    std::vector<FormatArgument> arguments;
    std::list<std::string> texts;
    for (std::size_t left = 1 + input.below(4); left > 0; --left) {
        const char letter = "diuoxXfFeEgGaAsc"[input.below(16)];
        const bool isInteger = std::strchr("diuoxX", letter) != nullptr;
        const bool isNumber = isInteger || std::strchr("sc", letter) == nullptr;
        const bool isHexadecimal = std::strchr("aA", letter) != nullptr;
        const std::size_t flags = input.number<std::uint8_t>();
        std::string conversion = "%";
        for (std::size_t i = 0; i < 5; ++i) {
            const char flag = "-+ 0#"[i];
            // For other conversions C does not define 0. With # and g, glibc drops digits of some.
            const bool isMeant =
                flag == '-' || (isNumber && (flag != '#' || (letter | 0x20) != 'g'));
            if ((flags >> i & 1) != 0 && isMeant)
                conversion += flag;
        }
        if ((flags >> 5 & 1) != 0)
            conversion += std::to_string(1 + input.below(90));
        if ((flags >> 6 & 1) != 0 && letter != 'c' && !isHexadecimal)
            conversion += "." + std::to_string(input.below(40));
        if (isInteger) {
            const char* const sizes[] = {"hh", "h", "", "ll"};
            const std::size_t place = input.below(4);
            conversion += sizes[place];
            const auto number = input.number<std::int64_t>();
            const auto word = static_cast<std::int32_t>(number);
            arguments.push_back(place == 3 ? FormatArgument(number) : FormatArgument(word));
            conversion += letter;
            expected += place == 3 ? printed(conversion, static_cast<long long>(number))
                                   : printed(conversion, word);
        } else if (isNumber) {
            auto number = input.number<double>();
            if (isHexadecimal && std::fpclassify(number) == FP_SUBNORMAL)
                number = 0; // glibc writes these with a leading 0
            if (!isHexadecimal && std::abs(number) > 1e60)
                number = std::remainder(number, 1e60);
            arguments.emplace_back(number);
            conversion += letter;
            expected += printed(conversion, number);
        } else if (letter == 's') {
            texts.push_back(input.line().substr(0, 200));
            arguments.emplace_back(texts.back().c_str());
            conversion += letter;
            expected += printed(conversion, texts.back().c_str());
        } else {
            const int character = 1 + static_cast<int>(input.below(127));
            arguments.emplace_back(character);
            conversion += letter;
            expected += printed(conversion, character);
        }
        format += conversion + "%%,";
        expected += "%,";
    }
    bool isCut = false;
    check(formatted<char>(format, arguments, 60000, isCut) == expected && !isCut);
    const bool isAscii =
        std::all_of(expected.begin(), expected.end(), [](char c) { return c > 0; });
    const WideString wideFormat(format.begin(), format.end());
    const WideString wideExpected(expected.begin(), expected.end());
    check(!isAscii || formatted<WideChar>(wideFormat, arguments, 60000, isCut) == wideExpected);
}

template <class Char>
void compareWithItself(const std::basic_string<Char>& format, FuzzedInput input)
{
    std::vector<FormatArgument> arguments;
    std::list<std::string> texts;
    const std::size_t room = input.number<std::uint16_t>() % 2000;
    for (std::size_t left = input.below(5); left > 0; --left) {
        switch (input.below(6)) {
        case 0:
            arguments.emplace_back(input.number<std::int32_t>());
            break;
        case 1:
            arguments.emplace_back(input.number<std::uint64_t>());
            break;
        case 2:
            arguments.emplace_back(input.number<double>());
            break;
        case 3:
            texts.push_back(input.line());
            arguments.emplace_back(std::string_view(texts.back()));
            break;
        case 4:
            arguments.emplace_back(WideView(wide(input.line())));
            break;
        default:
            arguments.emplace_back(static_cast<const void*>(nullptr));
        }
    }
    bool isShort = false;
    bool isCut = false;
    const auto most = formatted<Char>(format, arguments, 65535, isCut);
    check(formatted<Char>(format, arguments, room, isShort) == most.substr(0, room));
    check(isShort == (isCut || most.size() > room));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    if (input.flag()) {
        compareWithC(input);
        return 0;
    }
    const std::string format = input.line();
    compareWithItself(format, input);
    compareWithItself(wide(format), input);
    return 0;
}
