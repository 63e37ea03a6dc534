// The base of every window with a tab strip: the strip and its pages, the tab changes that are
// asked for, refused or forced.
#pragma once

#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include <QStackedWidget>
#include <QTabBar>

#include "controles/ComboListe.h"
#include "controles/FenetreEnfant.h"
#include "controles/Onglet.h"

namespace gastrelle {

/// A tab change that can't be allowed: from one tab to another, both counted from 1.
struct ChangementRefuse {
  int de;
  int vers;
};

/// The tabs of a window, as data.
struct JeuOnglets {
  std::span<const DescriptionOnglet> onglets;
  std::span<const ChangementRefuse> refus;
  bool ligneDuLogo = false;  ///< what the logo's tooltip says stands in its band as well
};

/// A page is made when its tab is first entered: what isn't looked at costs nothing.
class FenetreOnglets : public FenetreEnfant {
 public:
  FenetreOnglets(Module1& module, Cadre& cadre, const DescriptionFenetre& description,
                 const JeuOnglets& jeu);

  [[nodiscard]] Vue VueCourante() const override;

  /// Selects a tab (from 1) as a click would: it can be refused.
  void ChoisitOnglet(int onglet);
  /// Shows a tab (from 1) without asking: the program goes where a click may not.
  void MontreOnglet(int onglet);
  [[nodiscard]] int ongletCourant() const { return ongletCourant_; }

  /// Brings the window and the frame into the state of the tab on display.
  void EtatOnglet();

 protected:
  /// What stands in the logo band of every tab, Windows-1252.
  [[nodiscard]] virtual std::string Annonce() = 0;

  /// True if a click may lead from the tab on display to another. A refusal is told here: with the
  /// sound, unless a window has another way. It may select another tab before it answers.
  [[nodiscard]] virtual bool PermetOnglet(int vers);

  /// The page of a tab (from 1), made at the first call.
  Onglet& Page(int onglet);

  /// Goes to the list and chooses there the entry that bears `numero`; raises error 53 if none
  /// does.
  void MontreDansListe(ComboListe& combo, std::int32_t numero);

  void EtatCadre() override { EtatOnglet(); }

 private:
  void ClicOnglet(int onglet);
  void PasseA(int onglet);

  const JeuOnglets& jeu_;
  QTabBar* TabStrip1_;
  QStackedWidget* cadres_;
  std::vector<Onglet*> pages_;  ///< by tab; null as long as nobody entered it
  int ongletCourant_ = ongletListe;
};

/// How a description names the page of a tab: `CreePage<frmRecettes, frmRecettesAlpha>`. A page
/// that works on the record of the whole window is handed the list page that shows it.
template <class Hote, class Page>
Onglet& CreePage(const PlaceOnglet& place) {
  if constexpr (std::is_constructible_v<Page, const PlaceOnglet&>) {
    return *new Page(place);
  } else {
    return *new Page(place, static_cast<Hote&>(place.hote).liste());
  }
}

}  // namespace gastrelle
