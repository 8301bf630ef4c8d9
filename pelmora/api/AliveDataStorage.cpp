#include "pelmora/api/AliveDataStorage.h"

#include "pelmora/gettext/NeverDestroyed.h"

namespace Pelmora
{

const std::shared_ptr<AliveDataStorage>& AliveDataStorage::get()
{
    static const Native::NeverDestroyed<std::shared_ptr<AliveDataStorage>> instance(
        new AliveDataStorage());
    return instance.value;
}

} // namespace Pelmora
