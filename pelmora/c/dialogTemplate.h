#pragma once

#include "pelmora/c/border.h"
#include "pelmora/gui/DialogTemplate.h"

struct pelmora_dialog_template {
    Pelmora::Native::DialogTemplate native;
};
