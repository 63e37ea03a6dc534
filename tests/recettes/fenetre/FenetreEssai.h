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

  /// The gestures on a tab, once for each write of the operation that they bring, which fails: each
  /// time on a fresh library, as `prepare` leaves it with its answers to questions, and each time
  /// the program ends by the one fatal message. `verifie` looks at what is then on file.
  template <class Prepare, class Gestes, class Verifie>
  static void FinitAChaqueEcriture(std::size_t ecritures, int onglet, Prepare prepare,
                                   Gestes gestes, Verifie verifie) {
    for (std::size_t n = 1; n <= ecritures; ++n) {
      SCOPED_TRACE("écriture " + std::to_string(n));
      Bibliotheque autre;
      prepare(autre);
      autre.Demarre();
      OublieFin();
      EcouteMessages(&autre.messages);
      CadreEssai unCadre(*autre.module);
      frmRecettes uneFenetre(*autre.module, unCadre);
      uneFenetre.show();
      uneFenetre.Active();
      CliqueOnglet(uneFenetre, onglet);
      autre.disque.EchoueALaNiemeEcriture(n, Panne::disquePlein);
      gestes(uneFenetre);
      EXPECT_EQ(FinVue(), 1);
      EXPECT_THAT(autre.messages.vus, testing::SizeIs(1));
      EXPECT_FALSE(autre.pointeur.sablier);
      verifie(autre, n);
      EcouteMessages(nullptr);
    }
  }
  template <class Gestes, class Verifie>
  static void FinitAChaqueEcriture(std::size_t ecritures, int onglet, Gestes gestes,
                                   Verifie verifie) {
    FinitAChaqueEcriture(
        ecritures, onglet, [](Bibliotheque&) {}, gestes, verifie);
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
