// The window of the menus.
#pragma once

#include "fiches/frmFiches.h"

namespace gastrelle {

class frmMenus final : public frmFiches {
 public:
  frmMenus(Module1& module, Cadre& cadre);
};

}  // namespace gastrelle
