// The tab "Ajouter" of the cheeses window: a new cheese.
#pragma once

#include "fromages/frmFromagesSaisie.h"

namespace gastrelle {

class frmFromagesAjouter final : public frmFromagesSaisie {
 public:
  explicit frmFromagesAjouter(frmFromages& hote);

  /// The entry rule of the tab: nothing is entered yet.
  void Entre() override;

 private:
  void Valide();
  void Efface();
};

}  // namespace gastrelle
