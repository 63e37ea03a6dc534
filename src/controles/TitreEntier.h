// The title of the entry that a drop-down list shows, written out whole where the list is too
// narrow for it.
#pragma once

#include <QLabel>

#include "controles/ComboListe.h"

namespace gastrelle {

class TitreEntier final : public QLabel {
 public:
  /// Stands wherever it is laid out, and is hidden as long as `combo` shows its title whole.
  TitreEntier(ComboListe& combo, QWidget* parent);

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Regle();

  const ComboListe& combo_;
};

}  // namespace gastrelle
