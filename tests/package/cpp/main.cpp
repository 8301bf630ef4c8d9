#include <pelmora/pelmora.h>

#include <iostream>

int main()
{
    const auto microgram = std::make_shared<Pelmora::Unit>(std::make_shared<Pelmora::UnitElement>(
        Pelmora::UnitTypeEnum::UNIT_G, Pelmora::UnitPrefix::MICRO, 1));
    std::cout << Pelmora::UnitValue(5, microgram).ToString(0).to_utf8() << '\n';
}
