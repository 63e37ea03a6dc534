// The nine boxes that take a number of bottles, one a colour. A box keeps the keyboard until what
// it holds is such a number.
#pragma once

#include <array>
#include <string>

#include <QWidget>

#include "controles/LigneTexte.h"
#include "data/Messages.h"
#include "vins/Cave.h"

namespace gastrelle {

class frmVinsBouteilles final : public QWidget {
 public:
  /// `fenetre`: a box is left for another control of that window; for anything else it is not.
  frmVinsBouteilles(Messages& messages, const QWidget& fenetre, QWidget* parent);

  /// In the order of the colours.
  [[nodiscard]] const std::array<LigneTexte*, couleursVin.size()>& boites() const {
    return boites_;
  }

  /// The captions of the first column take `largeur` pixels where there is room, as those above.
  void AligneSur(int largeur);

  /// Gives a box the keyboard, its whole text selected, also where it has the keyboard already.
  static void DonneClavier(LigneTexte& boite);

  /// Shows the bottles of record `numero`.
  void Montre(const Bouteilles& bouteilles, std::int32_t numero);
  /// What the boxes hold. Throws where a number doesn't fit its field.
  [[nodiscard]] Bouteilles BouteillesSaisies() const;

  /// The test that a box undergoes when it is left, on the one that has the keyboard, if any.
  /// False: the user has been told, and the keyboard stays there.
  [[nodiscard]] bool PermetDeQuitter();

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Dispose();
  /// The box becomes a number where it is empty; what isn't one is told. True if it may be left.
  [[nodiscard]] bool Accepte(LigneTexte& boite);
  /// The same, and the keyboard goes back to a box that may not be left.
  [[nodiscard]] bool Quitte(LigneTexte& boite);
  /// True if the keyboard has gone from a box to another control of the window.
  [[nodiscard]] bool EstQuittee(const LigneTexte& boite) const;

  Messages& messages_;
  const QWidget& fenetre_;
  std::array<LigneTexte*, couleursVin.size()> boites_{};
  bool retient_ = false;        ///< a box is being given the keyboard back
  bool choisiParClic_ = false;  ///< the mouse has just given a box the keyboard
};

}  // namespace gastrelle
