// The dialog that puts the recipes back that the program was delivered with.
#pragma once

#include "maintenance/frmRemplacement.h"

namespace gastrelle {

class frmReinitialisation final : public frmRemplacement {
 public:
  frmReinitialisation(Module1& module, Cadre& cadre, QWidget* parent);
};

}  // namespace gastrelle
