#include "pelmora/c/pelmora.h"
#include "pelmora/units/unitText.h"

#include <array>

#include <benchmark/benchmark.h>

// What a call of the C interface costs beside the same call of the C++ one. Pairs of benchmarks are
// named "work/native" and "work/C".

namespace
{

using namespace Pelmora::Native;
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

/// Runs `work` on operands that the compiler cannot see through.
template <class Work>
void measure(benchmark::State& state, const Work& work)
{
    Operands operands;
    for (auto _ : state) {
        benchmark::DoNotOptimize(operands);
        benchmark::DoNotOptimize(work(operands));
    }
}

/// The same for a C call that writes a text.
template <class Call>
void measureText(benchmark::State& state, const Call& call)
{
    measure(state, [&](const Operands& operands) {
        std::array<pelmora_char16, 64> buffer;
        size_t length = 0;
        call(operands, buffer.data(), buffer.size(), &length);
        benchmark::DoNotOptimize(buffer);
        return length;
    });
}

void convertNative(benchmark::State& state)
{
    measure(state, [](const Operands& o) { return o.value.getConvertedValue(o.nativeTarget); });
}
BENCHMARK(convertNative)->Name("convert/native");

void convertC(benchmark::State& state)
{
    measure(state, [](const Operands& o) {
        double result = 0;
        pelmora_value_convert(2.5, o.dose.data(), 3, o.target.data(), 3, &result);
        return result;
    });
}
BENCHMARK(convertC)->Name("convert/C");

void compatibleNative(benchmark::State& state)
{
    measure(state, [](const Operands& o) { return o.nativeDose.compatibleWith(o.nativeTarget); });
}
BENCHMARK(compatibleNative)->Name("compatible/native");

void compatibleC(benchmark::State& state)
{
    measure(state, [](const Operands& o) {
        int result = 0;
        pelmora_unit_compatible(o.dose.data(), 3, o.target.data(), 3, &result);
        return result;
    });
}
BENCHMARK(compatibleC)->Name("compatible/C");

void unitTextNative(benchmark::State& state)
{
    measure(state, [](const Operands& o) { return o.nativeDose.toString(); });
}
BENCHMARK(unitTextNative)->Name("unit text/native");

void unitTextC(benchmark::State& state)
{
    measureText(state, [](const Operands& o, auto... buffer) {
        pelmora_unit_text(o.dose.data(), 3, buffer...);
    });
}
BENCHMARK(unitTextC)->Name("unit text/C");

void valueTextNative(benchmark::State& state)
{
    measure(state, [](const Operands& o) { return o.value.toString(2); });
}
BENCHMARK(valueTextNative)->Name("value text/native");

void valueTextC(benchmark::State& state)
{
    measureText(state, [](const Operands& o, auto... buffer) {
        pelmora_value_text(2.5, o.dose.data(), 3, 2, buffer...);
    });
}
BENCHMARK(valueTextC)->Name("value text/C");

void normalizedTextNative(benchmark::State& state)
{
    measure(state, [](const Operands& o) { return o.value.toNormalizedString(3); });
}
BENCHMARK(normalizedTextNative)->Name("normalised text/native");

void normalizedTextC(benchmark::State& state)
{
    measureText(state, [](const Operands& o, auto... buffer) {
        pelmora_value_normalized_text(2.5, o.dose.data(), 3, 3, buffer...);
    });
}
BENCHMARK(normalizedTextC)->Name("normalised text/C");

} // namespace
