// The choice of a year's grades: nine areas under each other, six option buttons for each.
#pragma once

#include <array>

#include <QButtonGroup>
#include <QLabel>
#include <QWidget>

#include "vins/CatalogueMillesimes.h"

namespace gastrelle {

/// How a set of such controls is named: apart from the others of the window.
struct NomsClassement {
  const char* suffixe;    ///< ends the names of the option buttons, before their index
  int premierCru;         ///< index of the first caption of an area, `lblCru`
  int premierClassement;  ///< index of the first caption of a grade, `lblClassement`
};

/// The Tab key goes from area to area, as Up and Down do; Left and Right choose inside one.
class PanneauClassement final : public QWidget {
 public:
  PanneauClassement(const NomsClassement& noms, QWidget* parent);

  /// Tells assistive tools which year is graded.
  void NommeAnnee(int annee);
  /// Sets the button of each grade; an area whose value isn't on the scale has none set.
  void Pose(const Classement& classement);
  /// The grades of the buttons that are set; where none is, that of `sinon`.
  [[nodiscard]] Classement Choix(const Classement& sinon) const;
  /// Gives the focus to the first area.
  void PrendFocus();

 protected:
  void keyPressEvent(QKeyEvent* touche) override;
  void paintEvent(QPaintEvent* evenement) override;

 private:
  void FaitEntetes(const NomsClassement& noms);
  void FaitCru(std::size_t cru, const NomsClassement& noms);
  /// The button where the Tab key enters an area: the one that is set, or the first.
  [[nodiscard]] QAbstractButton* Entree(std::size_t cru) const;
  /// Makes it the only one of its area that the Tab key visits.
  void RegleEntree(std::size_t cru);

  QLabel* legende_;
  std::array<QButtonGroup*, crus.size()> groupes_{};
};

}  // namespace gastrelle
