// How much of the recipe files is dead.

#include <gtest/gtest.h>

#include "data/EspaceMort.h"
#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {
namespace {

/// The library's family and recipe: 2 x 130 + 2 x 150 + (8 + 11) + 8 bytes, all alive.
class EspaceMort : public testing::Test {
 protected:
  EspaceMort() { b.Demarre(); }

  /// Changes recipe `numero` on file.
  template <class F>
  void Change(std::size_t numero, F&& change) {
    RecRecette recette = Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", numero);
    change(recette);
    std::string octets = b.dossier.Lit("GLR2.DAT");
    octets.replace((numero - 1) * 150, 150, Octets(recette));
    b.dossier.Ecrit("GLR2.DAT", octets);
  }

  Encombrement Mesure() {
    b.module->bufFamille.LitEntete();
    b.module->bufRecette.LitEntete();
    return MesureRecettes(*b.module);
  }

  static constexpr std::int64_t depart = 260 + 300 + 19 + 8;
  Bibliotheque b;
};

TEST_F(EspaceMort, EstNulDansDesFichiersSansPerte) {
  const Encombrement mesure = Mesure();
  EXPECT_EQ(mesure.taille, depart);
  EXPECT_EQ(mesure.necessaire, depart);
  EXPECT_EQ(mesure.gain(), 0);
}

TEST_F(EspaceMort, CompteLesTextesEtLesImagesDesRecettesVivantes) {
  b.AjouteRecette(2, "Consomme", "Un bouillon.", "/consomme.jpg");
  const Encombrement mesure = Mesure();
  EXPECT_EQ(mesure.taille, depart + 150 + 12 + 13);
  EXPECT_EQ(mesure.gain(), 0);
}

TEST_F(EspaceMort, GagneToutCeQuUneRecetteSupprimeeOccupait) {
  b.AjouteRecette(2, "Consomme", "Un bouillon.", "/consomme.jpg");
  Change(3, [](RecRecette& r) { r.actif = supprime; });
  Change(1, [](RecRecette& entete) { --entete.actif; });
  EXPECT_EQ(Mesure().gain(), 150 + 12 + 13);
}

TEST_F(EspaceMort, GagneLaFicheDUneFamilleSupprimee) {
  b.AjouteFamille("Sauces");
  b.module->bufFamille.LitEntete();
  b.module->bufFamille.Compte(-1);
  EXPECT_EQ(Mesure().gain(), 130);
}

TEST_F(EspaceMort, GagneLaFinDUnTexteRaccourci) {
  Change(2, [](RecRecette& r) { r.lgTexte = 4; });
  EXPECT_EQ(Mesure().gain(), 7);
}

TEST_F(EspaceMort, NeCompteNiTexteNiImageSansPosition) {
  b.AjouteRecette(2, "Consomme", "Un bouillon.", "/consomme.jpg");
  Change(3, [](RecRecette& r) { r.posTexte = 0; });
  EXPECT_EQ(Mesure().gain(), 12);
  Change(3, [](RecRecette& r) { r.posImage = -1; });
  EXPECT_EQ(Mesure().gain(), 12 + 13);
}

TEST_F(EspaceMort, SArreteAuCompteDeLEnTete) {
  b.AjouteRecette(2, "Consomme", "Un bouillon.");
  Change(1, [](RecRecette& entete) { entete.actif = 1; });
  EXPECT_EQ(Mesure().gain(), 150 + 12);
}

TEST_F(EspaceMort, SArreteAuDernierQuandLEnTeteCompteTrop) {
  Change(1, [](RecRecette& entete) { entete.actif = 4; });
  EXPECT_EQ(Mesure().necessaire, depart + 3 * 150);
}

TEST_F(EspaceMort, LaisseLEnregistrementDeTravailEtLesFichiers) {
  b.module->bufRecette.courant().nomRecette = "en cours";
  const std::string avant = Octets(b.module->bufRecette.courant());
  (void)Mesure();
  EXPECT_EQ(Octets(b.module->bufRecette.courant()), avant);
  EXPECT_TRUE(b.disque.changements().empty());
}

TEST_F(EspaceMort, EchoueQuandUnFichierEstFermeOuIllisible) {
  b.disque.EchoueSur("lit GLR2.DAT 150", Panne::entreeSortie);
  EXPECT_THROW((void)MesureRecettes(*b.module), ErreurExecution);
  b.disque.Guerit();
  b.module->Place(Donnees::GLR4).reset();
  EXPECT_THROW((void)MesureRecettes(*b.module), ErreurExecution);
}

}  // namespace
}  // namespace gastrelle::essai
