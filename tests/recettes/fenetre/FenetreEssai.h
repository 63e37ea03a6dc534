// The recipes window on a small library, with verbs for its tests.
#pragma once

#include <string>

#include "doublures/Depart.h"
#include "doublures/FenetreEssai.h"
#include "recettes/RecettesEssai.h"
#include "recettes/frmRecettes.h"

namespace gastrelle::essai {

class FenetreRecettes : public FenetreEssai<frmRecettes> {
 protected:
  /// Lays a file in the picture folder. Returns its whole path.
  std::string PoseImage(const std::string& nom) const {
    std::filesystem::create_directory(b.dossier.chemin() / "IMAGE");
    b.dossier.Ecrit("IMAGE/" + nom, "x");
    return b.module->chemins.De("IMAGE/" + nom);
  }

  QComboBox& familles() { return Le<QComboBox>("ComboFamilles"); }
  QComboBox& recettes() { return Le<QComboBox>("ComboRecettes"); }
  QString image() { return Le("lblLaRecette").property("Tag").toString(); }

  RecRecette Fiche(std::size_t numero) const {
    return Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", numero);
  }
  /// Gives a recipe another family on file, behind the window's back.
  void Deplace(std::int32_t recette, std::int32_t famille) {
    RecRecette deplacee = Fiche(static_cast<std::size_t>(recette));
    deplacee.idFamille = famille;
    b.module->bufRecette.Ecrit(recette, deplacee);
    b.disque.OublieJournal();
  }
  RecFamille FicheFamille(std::size_t numero) const {
    return Enregistrement<RecFamille>(b.dossier, "GLR1.DAT", numero);
  }
  std::string NomFamille(std::size_t numero) const {
    return std::string(Rogne(FicheFamille(numero).nomFamille.brut()));
  }
};

}  // namespace gastrelle::essai
