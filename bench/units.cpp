#include "bench/measure.h"

#include "pelmora/api/UnitFacade.h"
#include "pelmora/units/unitText.h"

#include <algorithm>
#include <array>
#include <memory>

// The units engine and the public objects over it; what each row measures stands in goals.txt.

namespace
{

using namespace Pelmora::Native;
using Pelmora::Bench::Measured;
using enum UnitTypeEnum;
using enum UnitPrefix;

Unit product(std::initializer_list<UnitElement> elements)
{
    Unit unit;
    unit.elements = elements;
    return unit;
}

const Unit dose = product({{UNIT_G, MILLI, 1}, {UNIT_G_PT, KILO, -1}, {UNIT_MIN, NONE, -1}});
const Unit target = product({{UNIT_G, NONE, 1}, {UNIT_G_PT, KILO, -1}, {UNIT_HR, NONE, -1}});
const Unit shuffled = product({{UNIT_HR, NONE, -1}, {UNIT_G, NONE, 1}, {UNIT_G_PT, KILO, -1}});
const UnitValue value(2.5, dose);
const UnitValue weight(70, UnitElement(UNIT_G_PT, KILO, 1));
const UnitValue small(0.0525, dose);

/// So many elements of different kinds.
Unit longUnit(std::size_t elements)
{
    constexpr std::array kinds = {UNIT_G,  UNIT_L, UNIT_HR,      UNIT_M,   UNIT_MOL,
                                  UNIT_IU, UNIT_U, UNIT_PROCENT, UNIT_G_PT};
    Unit unit;
    for (std::size_t i = 0; i < elements; ++i)
        unit.elements.push_back({kinds[i], MILLI, i % 2 == 0 ? 2 : -1});
    return unit;
}

Unit turned(Unit unit)
{
    std::reverse(unit.elements.begin(), unit.elements.end());
    return unit;
}

const Measured convert("convert, units given/ours",
                       [v = value, t = target] { return v.getConvertedValue(t); });

struct Parts {
    UnitElement milligram{UNIT_G, MILLI, 1};
    UnitElement gram{UNIT_G, NONE, 1};
    UnitElement perKilogram{UNIT_G_PT, KILO, -1};
    UnitElement perMinute{UNIT_MIN, NONE, -1};
    UnitElement perHour{UNIT_HR, NONE, -1};
};

const Measured build("build two units, convert/ours", [p = Parts()] {
    const Unit from = Unit(p.milligram).mul(p.perKilogram).mul(p.perMinute);
    const Unit to = Unit(p.gram).mul(p.perKilogram).mul(p.perHour);
    return UnitValue(2.5, from).getConvertedValue(to);
});

const Measured sameOrder("compatible, same order/ours",
                         [a = dose, b = target] { return a.compatibleWith(b); });
const Measured otherOrder("compatible, other order/ours",
                          [a = dose, b = shuffled] { return a.compatibleWith(b); });
const Measured nineElements("compatible, nine elements/ours",
                            [a = longUnit(9), b = turned(longUnit(9))] {
                                return a.compatibleWith(b);
                            });
const Measured eightElements("compatible, nine elements/eight",
                             [a = longUnit(8), b = turned(longUnit(8))] {
                                 return a.compatibleWith(b);
                             });

const Measured multiply("multiply and reduce/ours",
                        [v = value, w = weight] { return v.mul(w).getReduced(); });

const Measured text("toString(2)/ours", [v = value] { return v.toString(2); });
const Measured normalizedText("toNormalizedString(3)/ours",
                              [v = small] { return v.toNormalizedString(3); });

const Measured objectsConvert("objects: convertTo/ours",
                              [v = Pelmora::UnitValue(value), t = Pelmora::Unit(target)] {
                                  return v.convertTo(t);
                              });
const Measured nativeConvert("objects: convertTo/C++", [v = value, t = target] {
    UnitValue converted = v;
    converted.convertTo(t);
    return converted.getReduced();
});

/// What so many allocations of small shared objects cost, which the public objects are made of.
template <std::size_t count>
auto allocateShared()
{
    std::array<std::shared_ptr<Pelmora::UnitElement>, count> all;
    for (auto& one : all)
        one = std::make_shared<Pelmora::UnitElement>();
    return all;
}

const Measured fourAllocations("objects: convertTo/4 allocations",
                               [] { return allocateShared<4>(); });

const Measured objectsText("objects: toNormalizedString/ours",
                           [v = Pelmora::UnitValue(small)] { return v.toNormalizedString(3); });
const Measured nativeText("objects: toNormalizedString/C++",
                          [v = small] { return v.toNormalizedString(3); });

const Measured objectsBuild("objects: build a unit/ours", [p = Parts()] {
    Pelmora::Unit unit(std::make_shared<Pelmora::UnitElement>(p.milligram));
    unit.addElement(std::make_shared<Pelmora::UnitElement>(p.perKilogram));
    unit.addElement(std::make_shared<Pelmora::UnitElement>(p.perMinute));
    return unit;
});
const Measured nineAllocations("objects: build a unit/9 allocations",
                               [] { return allocateShared<9>(); });
const Measured nativeBuild("objects: build a unit/C++", [p = Parts()] {
    return Unit(p.milligram).mul(p.perKilogram).mul(p.perMinute);
});

} // namespace
