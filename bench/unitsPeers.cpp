#include "bench/measure.h"

#include <array>
#include <cstdio>
#include <memory>

#include <udunits2.h>

// What a user would take instead for units: UDUNITS-2, and printf for their texts.

namespace
{

using Pelmora::Bench::Measured;

struct Free {
    void operator()(ut_unit* unit) const { ut_free(unit); }
    void operator()(cv_converter* converter) const { cv_free(converter); }
};
using Owned = std::unique_ptr<ut_unit, Free>;
using Converter = std::unique_ptr<cv_converter, Free>;

/// Parsed units; grams of body weight are a base unit of their own there, too.
class System
{
public:
    System()
    {
        ut_set_error_message_handler(ut_ignore);
        system_ = ut_read_xml(nullptr);
        const Owned patient(ut_new_base_unit(system_));
        ut_map_name_to_unit("gpt", UT_ASCII, patient.get());
    }

    /// Lives as long as the program.
    ut_unit* parse(const char* text) const { return ut_parse(system_, text, UT_ASCII); }

private:
    ut_system* system_;
};

const System units;

ut_unit* dose()
{
    return units.parse("mg.(1000 gpt)-1.min-1");
}

ut_unit* target()
{
    return units.parse("g.(1000 gpt)-1.hour-1");
}

const Measured convert("convert, units given/UDUNITS-2",
                       [from = dose(), to = target(), value = 2.5] {
                           const Converter converter(ut_get_converter(from, to));
                           return cv_convert_double(converter.get(), value);
                       });
const Measured converterKept("convert, units given/kept converter",
                             [converter = ut_get_converter(dose(), target()), value = 2.5] {
                                 return cv_convert_double(converter, value);
                             });

const Measured build("build two units, convert/UDUNITS-2",
                     [milligram = units.parse("mg"), gram = units.parse("g"),
                      kilogram = units.parse("1000 gpt"), minute = units.parse("min"),
                      hour = units.parse("hour")] {
                         const Owned milligramPerKilogram(ut_divide(milligram, kilogram));
                         const Owned from(ut_divide(milligramPerKilogram.get(), minute));
                         const Owned gramPerKilogram(ut_divide(gram, kilogram));
                         const Owned to(ut_divide(gramPerKilogram.get(), hour));
                         const Converter converter(ut_get_converter(from.get(), to.get()));
                         return cv_convert_double(converter.get(), 2.5);
                     });

const Measured sameOrder("compatible, same order/UDUNITS-2",
                         [a = dose(), b = target()] { return ut_are_convertible(a, b); });
const Measured otherOrder("compatible, other order/UDUNITS-2",
                          [a = dose(), b = units.parse("hour-1.g.(1000 gpt)-1")] {
                              return ut_are_convertible(a, b);
                          });

const Measured multiply("multiply and reduce/UDUNITS-2",
                        [a = dose(), b = units.parse("1000 gpt"), x = 2.5, y = 70.0] {
                            const Owned product(ut_multiply(a, b));
                            return x * y;
                        });

/// Enough for any text here.
using Buffer = std::array<char, 64>;

const Measured text("toString(2)/printf", [value = 2.5] {
    Buffer buffer;
    std::snprintf(buffer.data(), buffer.size(), "%.2f %s", value, "mg/kg/min");
    return buffer;
});
const Measured normalizedText("toNormalizedString(3)/printf", [value = 52.5] {
    Buffer buffer;
    std::snprintf(buffer.data(), buffer.size(), "%.3g %s", value, "mcg/kg/min");
    return buffer;
});

} // namespace
