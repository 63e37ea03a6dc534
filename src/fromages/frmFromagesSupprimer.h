// The tab "Supprimer" of the cheeses window: deletes the cheese on display. Those of the factory
// are protected.
#pragma once

#include "fromages/frmFromagesAffichage.h"

namespace gastrelle {

class frmFromagesSupprimer final : public frmFromagesAffichage {
 public:
  explicit frmFromagesSupprimer(frmFromages& hote);

  /// The entry rule of the tab: what would be deleted, and whether it may be.
  void Entre() override;

 private:
  frmFromagesSupprimer(frmFromages& hote, LigneTexte* fromage);
  void Protege(bool protege);
  void Supprime();

  LigneTexte* txtFromage_;
  QPushButton* cmdSupprimer_;
  QPushButton* cmdAideSupprimer_;
};

}  // namespace gastrelle
