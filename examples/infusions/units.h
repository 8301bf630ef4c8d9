#pragma once

#include "pelmora/pelmora.h"

#include <initializer_list>
#include <memory>

namespace Infusions
{

std::shared_ptr<Pelmora::Unit> makeUnit(std::initializer_list<Pelmora::UnitElement> elements);

std::shared_ptr<Pelmora::Unit> millilitre();
std::shared_ptr<Pelmora::Unit> millilitrePerHour();
std::shared_ptr<Pelmora::Unit> kilogramOfPatient();

} // namespace Infusions
