// The windows of menus and tips on a small library, with verbs for their tests: one set of tests
// over both.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "doublures/Depart.h"
#include "doublures/FenetreEssai.h"
#include "fiches/FichesEssai.h"
#include "fiches/frmMenus.h"
#include "fiches/frmTrucs.h"

namespace gastrelle::essai {

struct CasFenetre {
  CatalogueEssai catalogue;
  std::unique_ptr<frmFiches> (*cree)(Module1&, gastrelle::Cadre&);
  EntreeVue vue;
  int contexteBase;
  const char* combo;
  const char* texte;
  const char* titreAjouter;
  const char* texteAjouter;
  const char* titreModifier;
  const char* texteModifier;
  const char* texteSupprimer;
  const char* annonce;  ///< behind the count, with the line end
  const char* sansTitreAjouter;
  const char* sansTitreModifier;
  const char* question;
  const char* protegee;
};

template <class Fenetre>
std::unique_ptr<frmFiches> CreeFenetre(Module1& module, gastrelle::Cadre& cadre) {
  return std::make_unique<Fenetre>(module, cadre);
}

inline const CasFenetre casMenus{lesMenus,
                                 CreeFenetre<frmMenus>,
                                 EntreeVue::menus,
                                 30,
                                 "ComboMenus",
                                 "txtMenu",
                                 "txtSaisieNomMenu",
                                 "txtSaisieMenuAjouter",
                                 "txtSaisieNomMenuModifier",
                                 "txtSaisieMenuModifier",
                                 "txtSaisieMenuSupprimer",
                                 "\nmenus",
                                 "Il faut donner un titre au nouveau menu.",
                                 "Il faut donner un titre au menu.",
                                 "Etes-vous sûr de vouloir supprimer ce menu ?",
                                 "Ce menu ne peut être supprimé"};

inline const CasFenetre casTrucs{lesTrucs,
                                 CreeFenetre<frmTrucs>,
                                 EntreeVue::termesTrucsAstuces,
                                 60,
                                 "ComboTrucs",
                                 "txtTruc",
                                 "txtSaisieNomTruc",
                                 "txtSaisieTrucAjouter",
                                 "txtSaisieNomTrucModifier",
                                 "txtSaisieTrucModifier",
                                 "txtSaisieTrucSupprimer",
                                 "\ntermes, trucs\net astuces",
                                 "Il faut donner un titre au nouveau terme, truc ou astuce.",
                                 "Il faut donner un titre au terme, truc ou astuce.",
                                 "Etes-vous sûr de vouloir supprimer ce terme, truc ou astuce ?",
                                 "Ce terme, truc ou astuce ne peut être supprimé"};

inline void PrintTo(const CasFenetre& cas, std::ostream* sortie) {
  *sortie << cas.catalogue.nom;
}

class FenetreFiches : public FenetreEssai<frmFiches>,
                      public testing::WithParamInterface<CasFenetre> {
 protected:
  FenetreFiches() { b.GarnitFiches(c.fiches); }

  std::unique_ptr<frmFiches> Cree() override { return cas.cree(*b.module, *cadre); }

  /// A record behind those of the factory, on file. Titles before "Fiche" stand first in the list.
  std::int32_t Ajoute(std::string_view titre, std::string_view texte = {}) {
    return b.AjouteFiche(c.fiches, titre, texte);
  }
  QComboBox& combo() { return Le<QComboBox>(cas.combo); }
  QWidget& texte() { return Le(cas.texte); }
  std::vector<std::string> Changements() const { return b.disque.changements(); }
  RecFiche Lue(std::int32_t numero) const { return Fiche(b, c, numero); }
  std::string Titre(std::int32_t numero) const { return TitreFiche(b, c, numero); }

  const CasFenetre& cas = GetParam();
  const CatalogueEssai& c = cas.catalogue;
  const std::int32_t premiere = c.dernierProtege + 1;
};

}  // namespace gastrelle::essai

/// Runs the tests of a suite over both windows.
#define SUR_LES_DEUX_FENETRES(Suite)                                           \
  INSTANTIATE_TEST_SUITE_P(Fiches, Suite, testing::Values(casMenus, casTrucs), \
                           testing::PrintToStringParamName())
