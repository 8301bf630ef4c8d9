#pragma once

#include "pelmora/gui/DialogTemplateBytes.h"

struct pelmora_dialog_template {
    Pelmora::Native::DialogTemplateBytes native;
};
