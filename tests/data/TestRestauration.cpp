// A factory copy that takes the place of a data file, and the header test on a file kept apart.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/ProceduresFichiers.h"
#include "doublures/Entetes.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Restauration : public testing::Test {
 protected:
  Restauration() {
    b.AjouteRecette(2, "Tarte", "Une tarte.");
    b.Demarre();
    FermeFichiersRecettes(module);
  }

  Bibliotheque b;
  Module1& module = *b.module;
};

TEST_F(Restauration, CopieOuvreEtVerifieUnFichierDeFiches) {
  b.dossier.Ecrit("GLR1.DAT", "perdu");
  RestaureDeFabrique(module, Donnees::GLR1);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("copie GLR1.stp GLR1.DAT", "ouvre GLR1.DAT", "lit GLR1.DAT 0+130"));
  EXPECT_EQ(b.dossier.Lit("GLR1.DAT"), b.dossier.Lit("GLR1.stp"));
}

TEST_F(Restauration, DateLesRecettesAvantDeLesVerifier) {
  b.horloge.date = std::chrono::year{2031} / 2 / 3;
  RestaureDeFabrique(module, Donnees::GLR2);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("copie GLR2.stp GLR2.DAT", "ouvre GLR2.DAT", "lit GLR2.DAT 0+150",
                          "écrit GLR2.DAT 0+150", "lit GLR2.DAT 0+150"));
  EXPECT_EQ(module.bufRecette.entete().idFamille, NumeroJour(b.horloge.date));
  EXPECT_EQ(module.bufRecette.nbActifs(), 2);
}

TEST_F(Restauration, VerifieLesPremiersOctetsDUneReserve) {
  RestaureDeFabrique(module, Donnees::GLR3);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("copie GLR3.stp GLR3.DAT", "ouvre GLR3.DAT", "lit GLR3.DAT 0+8"));
  b.dossier.Ecrit("GLR3.stp", "GLR4.DAT");
  FermeFichiersRecettes(module);
  EXPECT_EQ(PanneDe([&] { RestaureDeFabrique(module, Donnees::GLR3); }), Panne::fichierIntrouvable);
}

TEST_F(Restauration, UneCopieDeFabriqueAbsenteLaisseLeFichier) {
  const std::string avant = b.dossier.Lit("GLR2.DAT");
  b.dossier.Supprime("GLR2.stp");
  EXPECT_THROW(RestaureDeFabrique(module, Donnees::GLR2), ErreurExecution);
  EXPECT_EQ(b.dossier.Lit("GLR2.DAT"), avant);
}

TEST_F(Restauration, FermerLesRecettesNeFermeQuElles) {
  FermeFichiersRecettes(module);
  for (std::size_t i = 0; i < nombreFichiers; ++i) {
    const auto fichier = static_cast<Donnees>(i);
    const bool ferme = i < fichiersRecettes.size() || fichier == Donnees::GLMCN;
    EXPECT_EQ(module.Place(fichier) == nullptr, ferme) << Nom(fichier);
  }
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

template <class T>
T EnTete(std::int16_t compte, std::string_view signature) {
  T entete;
  entete.actif = compte;
  NomOuSignature(entete) = signature;
  return entete;
}

TEST(EnTeteExige, RefuseUnCompteSousCeluiDeLaFabrique) {
  auto bon = EnTete<RecFamille>(1, "GASTRELF.DAT");
  EXPECT_NO_THROW(ExigeEntete(Donnees::GLR1, bon));
  for (const std::int16_t compte : {std::int16_t{0}, std::int16_t{-1}}) {
    auto mauvais = EnTete<RecFamille>(compte, "GASTRELF.DAT");
    EXPECT_EQ(PanneDe([&] { ExigeEntete(Donnees::GLR1, mauvais); }), Panne::fichierIntrouvable);
  }
}

TEST(EnTeteExige, RogneLaSignatureDesFamillesDesDeuxBoutsCelleDesRecettesADroite) {
  auto familles = EnTete<RecFamille>(1, "  GASTRELF.DAT  ");
  ExigeEntete(Donnees::GLR1, familles);
  EXPECT_EQ(RogneDroite(familles.nomFamille.brut()), "GASTRELF.DAT");
  auto recettes = EnTete<RecRecette>(1, "GLR2.DAT   ");
  EXPECT_NO_THROW(ExigeEntete(Donnees::GLR2, recettes));
  auto decalee = EnTete<RecRecette>(1, " GLR2.DAT");
  EXPECT_EQ(PanneDe([&] { ExigeEntete(Donnees::GLR2, decalee); }), Panne::fichierIntrouvable);
}

TEST(EnTeteExige, RefuseLaSignatureDUnAutreFichier) {
  auto autre = EnTete<RecFamille>(1, "GLR1.DAT");
  EXPECT_EQ(PanneDe([&] { ExigeEntete(Donnees::GLR1, autre); }), Panne::fichierIntrouvable);
}

}  // namespace
}  // namespace gastrelle::essai
