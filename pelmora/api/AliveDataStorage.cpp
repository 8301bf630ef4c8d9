#include "pelmora/api/AliveDataStorage.h"

#include "pelmora/base/detail/NeverDestroyed.h"

#include <memory>

namespace Pelmora
{

AliveDataStorage& AliveDataStorage::get()
{
    static const Native::NeverDestroyed<std::unique_ptr<AliveDataStorage>> instance(
        new AliveDataStorage());
    return *instance.value;
}

} // namespace Pelmora
