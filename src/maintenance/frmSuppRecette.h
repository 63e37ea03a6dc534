// The dialog that deletes all recipes but the one that is protected.
#pragma once

#include "maintenance/frmRemplacement.h"

namespace gastrelle {

class frmSuppRecette final : public frmRemplacement {
 public:
  frmSuppRecette(Module1& module, Cadre& cadre, QWidget* parent);
};

}  // namespace gastrelle
