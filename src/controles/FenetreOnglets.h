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

namespace gastrelle {

class FenetreOnglets;
class Onglet;
struct PlaceOnglet;

/// What a tab and the head of its page say, and how the page is made. The texts are the screen's
/// own.
struct DescriptionOnglet {
  const char16_t* titre;
  const char16_t* infobulle;
  const char16_t* entete;         ///< heading of the page
  const char16_t* infobulleLogo;  ///< tooltip of the logo
  const char* sujetAide;          ///< topic that the help key opens on this page
  Onglet& (*cree)(const PlaceOnglet& place);
};

/// Where a page stands: all that its window tells it when it is made.
struct PlaceOnglet {
  FenetreOnglets& hote;
  int numero;  ///< of the tab, from 1
  const DescriptionOnglet& description;
  const char* logo;
  bool ligneDuLogo;  ///< what the logo's tooltip says stands in the band as well
};

/// The page of a tab.
class Onglet : public QWidget {
 public:
  using QWidget::QWidget;

  /// The entry rules of the tab, once the frame has its pattern.
  virtual void Entre() = 0;
  /// Text of the box in the logo band, Windows-1252.
  virtual void PoseAnnonce(std::string_view texte) = 0;
  /// The place of the page is that large, in pixels: what it can do without gives way.
  virtual void TientDans(const QSize& place) = 0;
  /// What the tab shows, for those who read it from outside.
  [[nodiscard]] virtual Vue VueCourante() const { return {}; }
};

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
  /// sound, unless a window has another way, which may select some other tab before it refuses.
  [[nodiscard]] virtual bool PermetOnglet(int vers);

  /// The page of a tab (from 1), made at the first call.
  Onglet& Page(int onglet);

  /// Goes to the list and chooses there the entry that bears `numero`; raises error 53 if none
  /// does.
  void MontreDansListe(ComboListe& combo, std::int32_t numero);

  void RegleCadre() override { EtatOnglet(); }
  void changeEvent(QEvent* evenement) override;

 private:
  /// True if the table refuses the way from the tab on display to another.
  [[nodiscard]] bool EstRefuse(int vers) const;
  /// The next tab (`sens` 1) or the previous one (-1), round the strip, refused ones left out.
  void VaAuVoisin(int sens);
  /// A tab that the table refuses looks disabled; it can still be clicked.
  void ColoreRefus();
  void ClicOnglet(int onglet);
  void MontrePage(int onglet);

  const JeuOnglets& jeu_;
  QTabBar* TabStrip1_;
  QStackedWidget* pile_;
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
