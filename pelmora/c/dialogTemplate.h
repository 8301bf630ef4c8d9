#pragma once

#include "pelmora/c/border.h"
#include "pelmora/gui/DialogTemplateBytes.h"

struct pelmora_dialog_template {
    Pelmora::Native::DialogTemplateBytes native;
};
