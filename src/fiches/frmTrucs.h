// The window of the terms, tips and tricks.
#pragma once

#include "fiches/frmFiches.h"

namespace gastrelle {

class frmTrucs final : public frmFiches {
 public:
  frmTrucs(Module1& module, Cadre& cadre);
};

}  // namespace gastrelle
