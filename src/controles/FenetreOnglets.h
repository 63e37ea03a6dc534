// The base of every window with a tab strip: the strip and its pages, the refused tab change, what
// the window tells the frame on activation, deactivation and closing, the size preference.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include <QIcon>
#include <QStackedWidget>
#include <QTabBar>

#include "controles/Cadre.h"
#include "controles/FenetreEnfant.h"
#include "controles/PageOnglet.h"
#include "data/Module1.h"

namespace gastrelle {

/// A tab change that can't be allowed: from one tab to another, both counted from 1.
struct ChangementRefuse {
  int de;
  int vers;
};

/// What is peculiar to a window, as data.
struct DescriptionFenetre {
  const char* nom;            ///< objectName
  const char16_t* titre;      ///< caption
  EntreeVue vue;              ///< its entry in the view menu
  std::int16_t contexteBase;  ///< the code of tab n is this plus n
  const char* logo;           ///< picture of the logo band
  std::span<const DescriptionOnglet> onglets;
  std::span<const ChangementRefuse> refus;
  bool razReduite = false;   ///< resets the frame when it is minimised
  bool ligneDuLogo = false;  ///< what the logo's tooltip says stands in its band as well
};

/// A page is made when its tab is first entered: what isn't looked at costs nothing.
class FenetreOnglets : public FenetreEnfant {
 public:
  static constexpr int ongletListe = 1;

  FenetreOnglets(Module1& module, Cadre& cadre, const DescriptionFenetre& description);

  void Active() override;
  void Desactive() override;
  void Reduit() override;
  [[nodiscard]] Vue VueCourante() const override;

  /// Room for the largest of all pages: the window's size never depends on those made so far.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

  /// Selects a tab (from 1) as a click would.
  void ChoisitOnglet(int onglet);
  [[nodiscard]] int ongletCourant() const { return ongletCourant_; }

  /// Brings the window and the frame into the state of the tab on display.
  void EtatOnglet();

  [[nodiscard]] Module1& module() { return module_; }
  [[nodiscard]] Cadre& cadre() { return cadre_; }

  /// A refusal: pointer to normal, the information message, the focus where the user has to act
  /// (null: the caller sees to it).
  void Refuse(std::string_view texte, QWidget* focus);
  /// A refusal with a beep before its message.
  void RefuseAvecBip(std::string_view texte, QWidget* focus);
  /// Asks before entries are wiped out, if any of the boxes holds text. True: go on.
  [[nodiscard]] bool ConfirmeEffacement(std::initializer_list<const QWidget*> boites);

  /// The page that is being made: its tab's number, from 1, and what describes it.
  [[nodiscard]] int ongletEnConstruction() const { return ongletEnConstruction_; }
  [[nodiscard]] const DescriptionOnglet& descriptionEnConstruction() const;
  [[nodiscard]] QIcon logo() const;
  [[nodiscard]] bool ligneDuLogo() const { return description_.ligneDuLogo; }

 protected:
  /// What stands in the logo band of every tab, Windows-1252.
  [[nodiscard]] virtual std::string Annonce() = 0;

  /// The page of a tab (from 1), made at the first call.
  PageOnglet& Page(int onglet);

  void closeEvent(QCloseEvent* evenement) override;

 private:
  void ClicOnglet(int onglet);
  void RazCadre();
  [[nodiscard]] QSize Place(int lettresDeLarge, int lignesDeHaut) const;

  Module1& module_;
  Cadre& cadre_;
  const DescriptionFenetre& description_;
  QTabBar* TabStrip1_;
  QStackedWidget* cadres_;
  std::vector<PageOnglet*> pages_;  ///< by tab; null as long as nobody entered it
  int ongletCourant_ = ongletListe;
  int ongletEnConstruction_ = ongletListe;
};

}  // namespace gastrelle
