#include "pelmora/api/labUnitLabels.h"

namespace Pelmora::Native
{

void look_up_lab_unit_labels(const Catalogue& catalogue)
{
    for (const char* label : labUnitLabels)
        static_cast<void>(catalogue.translate(label));
}

} // namespace Pelmora::Native
