#include "bench/measure.h"

#include "pelmora/c/pelmora.h"
#include "pelmora/units/unitText.h"

#include <array>

// What a call of the C interface costs beside the same call of the C++ one.

namespace
{

using namespace Pelmora::Native;
using Pelmora::Bench::Measured;
using enum UnitTypeEnum;
using enum UnitPrefix;

/// mg/kg/min and g/kg/hr by body weight, in both forms.
struct Operands {
    std::array<pelmora_element, 3> dose = {{{PELMORA_MILLI, PELMORA_UNIT_G, 1},
                                            {PELMORA_KILO, PELMORA_UNIT_G_PT, -1},
                                            {PELMORA_NO_PREFIX, PELMORA_UNIT_MIN, -1}}};
    std::array<pelmora_element, 3> target = {{{PELMORA_NO_PREFIX, PELMORA_UNIT_G, 1},
                                              {PELMORA_KILO, PELMORA_UNIT_G_PT, -1},
                                              {PELMORA_NO_PREFIX, PELMORA_UNIT_HR, -1}}};
    Unit nativeDose = Unit(UnitElement(UNIT_G, MILLI, 1))
                          .mul(UnitElement(UNIT_G_PT, KILO, -1))
                          .mul(UnitElement(UNIT_MIN, NONE, -1));
    Unit nativeTarget = Unit(UnitElement(UNIT_G, NONE, 1))
                            .mul(UnitElement(UNIT_G_PT, KILO, -1))
                            .mul(UnitElement(UNIT_HR, NONE, -1));
    UnitValue value = UnitValue(2.5, nativeDose);
};

/// A C call that writes a text, as a work.
template <class Call>
auto text(Call call)
{
    return [o = Operands(), call] {
        std::array<pelmora_char16, 64> buffer;
        size_t length = 0;
        call(o, buffer.data(), buffer.size(), &length);
        return buffer;
    };
}

const Measured convertC("C: convert/ours", [o = Operands()] {
    double result = 0;
    pelmora_value_convert(2.5, o.dose.data(), 3, o.target.data(), 3, &result);
    return result;
});
const Measured convertNative("C: convert/C++", [o = Operands()] {
    return o.value.getConvertedValue(o.nativeTarget);
});

const Measured compatibleC("C: compatible/ours", [o = Operands()] {
    int result = 0;
    pelmora_unit_compatible(o.dose.data(), 3, o.target.data(), 3, &result);
    return result;
});
const Measured compatibleNative("C: compatible/C++", [o = Operands()] {
    return o.nativeDose.compatibleWith(o.nativeTarget);
});

const Measured unitTextC("C: unit text/ours", text([](const Operands& o, auto... buffer) {
                             pelmora_unit_text(o.dose.data(), 3, buffer...);
                         }));
const Measured unitTextNative("C: unit text/C++",
                              [o = Operands()] { return o.nativeDose.toString(); });

const Measured valueTextC("C: value text/ours", text([](const Operands& o, auto... buffer) {
                              pelmora_value_text(2.5, o.dose.data(), 3, 2, buffer...);
                          }));
const Measured valueTextNative("C: value text/C++",
                               [o = Operands()] { return o.value.toString(2); });

const Measured
    normalizedTextC("C: normalised text/ours", text([](const Operands& o, auto... buffer) {
                        pelmora_value_normalized_text(2.5, o.dose.data(), 3, 3, buffer...);
                    }));
const Measured normalizedTextNative("C: normalised text/C++",
                                    [o = Operands()] { return o.value.toNormalizedString(3); });

// What the .NET classes call for the works of dotnet.cs.
const Measured dotnetConvert(".NET: convertTo/C", [o = Operands()] {
    std::array<pelmora_element, 6> unit;
    double number = 0;
    size_t count = 0;
    pelmora_value_convert_reduced(2.5, o.dose.data(), 3, o.target.data(), 3, &number, unit.data(),
                                  unit.size(), &count);
    return unit;
});
const Measured dotnetText(".NET: toNormalizedString/C", text([](const Operands& o, auto... buffer) {
                              pelmora_value_normalized_text(0.0525, o.dose.data(), 3, 3, buffer...);
                          }));

} // namespace
