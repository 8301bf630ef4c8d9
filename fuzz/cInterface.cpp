// Any calls of the C interface in any order, with any arguments that C can pass: nulls, buffers of
// every size, texts of every kind. Whatever comes back has the form that the header promises.

#include "fuzz/CallArguments.h"
#include "fuzz/FuzzedInput.h"
#include "tests/TemporaryFolder.h"

#include <filesystem>

using namespace Pelmora;

namespace
{

struct Call {
    std::string_view name;
    void (*run)(CallArguments&);
};

template <auto function>
void run(CallArguments& arguments)
{
    arguments.call(function);
}

// Not among them: what writes to files of any name, reads from any, or goes to the network.
constexpr Call calls[] = {
#define PELMORA_CALL_OF(function) {#function, run<function>},
#include "fuzz/cFunctions.inc"
#undef PELMORA_CALL_OF
};

/// Whoever asks for two billion digits gets them; here, that would take too long.
bool writesDigits(std::string_view name)
{
    return name == "pelmora_value_text" || name == "pelmora_value_normalized_text" ||
           name == "pelmora_format_significant";
}

/// For the log, which is written to until the process ends, and for the input's file.
const TemporaryFolder& folder()
{
    static const TemporaryFolder made;
    static const bool isSet = setenv("TMPDIR", made.path("").c_str(), 1) == 0;
    check(isSet);
    return made;
}

void startAnew()
{
    pelmora_language_set_translator(nullptr, nullptr);
    pelmora_language_set_log_missing(0);
    pelmora_language_init("en");
    pelmora_set_number_format('.', 0, 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const std::string name = folder().path("any.mo").string();
    const std::string file = input.bytes(input.number<std::uint8_t>());
    TemporaryFolder::write(name, "\xde\x12\x04\x95" + file); // a catalogue, a document, or neither
    {
        CallArguments arguments(input, name);
        while (!input.empty()) {
            const std::size_t number = input.number<std::uint8_t>();
            if (number >= std::size(calls)) {
                arguments.destroyOne(number);
                continue;
            }
            arguments.limitNumbers(writesDigits(calls[number].name));
            calls[number].run(arguments);
        }
    }
    startAnew();
    std::error_code ignored;
    std::filesystem::resize_file(folder().path("errors.txt"), 0, ignored);
    return 0;
}
