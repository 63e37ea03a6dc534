// A read-only box of one line whose text can be opened: an e-mail address, a web site.
#pragma once

#include <functional>

#include <QCursor>
#include <QObject>

#include "controles/LigneTexte.h"

namespace gastrelle {

/// Works on a box that stands on its page like any other, and lives as long as it does.
class LienTexte final : public QObject {
 public:
  /// The box becomes read-only. As long as it shows a text it is armed: its pointer, its tooltip
  /// (`infobulle`) and a line under the text say that it can be clicked.
  LienTexte(LigneTexte& boite, QString infobulle);

  /// Runs at a click that selects nothing, and at Return (once as long as it is held), while the
  /// box is armed.
  std::function<void()> surOuverture;

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Arme();
  /// Follows the mouse. True for the event that ends a click: a double one counts once, and who
  /// selects doesn't click.
  [[nodiscard]] bool AcheveUnClic(const QEvent& evenement);

  LigneTexte& boite_;
  QString infobulle_;
  QCursor ordinaire_;
  bool pressee_ = false;
};

}  // namespace gastrelle
