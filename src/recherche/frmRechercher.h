// The dialog that looks for a piece of text in the catalogue behind it: the text, then one hit
// after the other.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QDialog>
#include <QGroupBox>
#include <QPushButton>

#include "controles/FenetreEnfant.h"
#include "controles/LigneTexte.h"
#include "controles/ZoneTexte.h"
#include "recherche/Recherche.h"

namespace gastrelle {

/// What the dialog calls the catalogue that it searches.
struct DescriptionRecherche;

class frmRechercher final : public QDialog {
 public:
  /// `derriere`: the window of one of the catalogues that can be searched. A search that fails sets
  /// `erreurFatale` and closes the dialog; whoever opened it ends the program.
  frmRechercher(Module1& module, FenetreEnfant& derriere, QWidget* parent);

  /// Nothing leaves the dialog in the middle of a step.
  void reject() override;

 protected:
  /// The pointer is back to normal once the dialog is there.
  bool event(QEvent* evenement) override;

 private:
  QLayout* ComposeSaisie();
  void ComposeResultat();
  QPushButton* AjouteBouton(QLayout& rangee, const char* debut, const char16_t* titre,
                            const char16_t* infobulle, void (frmRechercher::*action)());
  void PermetResultat(bool permis);

  void Commence();
  void MontreResultat();
  void Avance();
  void Continue();
  void Active();
  void Montre(const Occurrence& occurrence);
  void Finit();
  /// Runs a piece of the search; a failure closes the dialog.
  template <class Etape>
  void Tente(Etape&& etape);

  Module1& module_;
  FenetreEnfant& derriere_;
  const DescriptionRecherche& description_;
  LigneTexte* txtSaisie_;
  QPushButton* cmdOk_;
  QGroupBox* resultat_;
  LigneTexte* titre_;
  ZoneTexte* texte_;
  std::vector<QWidget*> saisie_;     ///< what can be used until the search begins
  std::vector<QPushButton*> suite_;  ///< what can be done with a hit
  std::optional<Recherche> recherche_;
  std::int32_t numero_ = 0;  ///< of the record on display
  bool enCours_ = false;
};

}  // namespace gastrelle
