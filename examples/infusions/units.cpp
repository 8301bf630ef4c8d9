#include "units.h"

namespace Infusions
{

using enum Pelmora::UnitTypeEnum;
using enum Pelmora::UnitPrefix;

std::shared_ptr<Pelmora::Unit> makeUnit(std::initializer_list<Pelmora::UnitElement> elements)
{
    auto unit = std::make_shared<Pelmora::Unit>();
    unit->elements = std::make_shared<Pelmora::Unit::Elements>();
    for (const Pelmora::UnitElement& element : elements)
        unit->elements->push_back(std::make_shared<Pelmora::UnitElement>(element));
    return unit;
}

std::shared_ptr<Pelmora::Unit> millilitre()
{
    return makeUnit({{UNIT_L, MILLI, 1}});
}

std::shared_ptr<Pelmora::Unit> millilitrePerHour()
{
    return makeUnit({{UNIT_L, MILLI, 1}, {UNIT_HR, NONE, -1}});
}

std::shared_ptr<Pelmora::Unit> kilogramOfPatient()
{
    return makeUnit({{UNIT_G_PT, KILO, 1}});
}

} // namespace Infusions
