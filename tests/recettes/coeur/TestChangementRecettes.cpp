// Changing the recipes: the bytes on file after each operation, the order of the writes, and what
// survives a failure at each of them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Pannes.h"
#include "recettes/ChangementRecettes.h"
#include "recettes/LectureRecettes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

class Changement : public testing::Test {
 protected:
  RecRecette Fiche(std::size_t numero) const {
    return Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", numero);
  }
  RecFamille Famille(std::size_t numero) const {
    return Enregistrement<RecFamille>(b.dossier, "GLR1.DAT", numero);
  }
  std::string Titre(std::size_t numero) const {
    return std::string(Rogne(Fiche(numero).nomRecette.brut()));
  }

  Bibliotheque b;
};

TEST_F(Changement, AjouteUneFamilleDerriereLaDerniereEtLaCompte) {
  b.Demarre();
  EXPECT_EQ(AjouteFamille(*b.module, "Poissons"), 3);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR1.DAT 260+130", "écrit GLR1.DAT 0+130"));
  EXPECT_EQ(b.dossier.Lit("GLR1.DAT").size(), 390U);
  EXPECT_EQ(Famille(1).actif, 2);
  EXPECT_EQ(Famille(3).actif, -1);
  EXPECT_EQ(Famille(3).nomFamille.brut(), "Poissons" + std::string(120, ' '));
}

TEST_F(Changement, AjouteUneRecetteReserveDabordPuisFichePuisEntete) {
  b.Demarre();
  EXPECT_EQ(AjouteRecette(*b.module, {2, "Soupe", "Le texte.", "/s.png"}), 3);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR3.DAT 19+9", "écrit GLR4.DAT 8+6", "écrit GLR2.DAT 300+150",
                          "écrit GLR2.DAT 0+150"));
  const RecRecette fiche = Fiche(3);
  EXPECT_EQ(fiche.actif, -1);
  EXPECT_EQ(fiche.idFamille, 2);
  EXPECT_EQ(fiche.posTexte, 20);
  EXPECT_EQ(fiche.lgTexte, 9);
  EXPECT_EQ(fiche.posImage, 9);
  EXPECT_EQ(fiche.lgImage, 6);
  EXPECT_EQ(Fiche(1).actif, 2);
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT/s.png");
}

TEST_F(Changement, UneRecetteSansTexteNiImageNeToucheAucuneReserve) {
  b.Demarre();
  LitRecette(*b.module, 2);
  b.disque.OublieJournal();
  AjouteRecette(*b.module, {2, "Nue", {}, {}});
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR2.DAT 300+150", "écrit GLR2.DAT 0+150"));
  EXPECT_EQ(Fiche(3).posTexte, 0);
  EXPECT_EQ(Fiche(3).lgTexte, 0);
  EXPECT_EQ(Fiche(3).posImage, 0);
}

TEST_F(Changement, LeMemeTitreSAjouteDeuxFois) {
  b.Demarre();
  AjouteRecette(*b.module, {2, "Soupe", {}, {}});
  AjouteRecette(*b.module, {2, "Soupe", {}, {}});
  EXPECT_EQ(Titre(3), Titre(4));
  EXPECT_EQ(Fiche(1).actif, 3);
}

TEST_F(Changement, RenommeUneFamilleASaPlaceSansLaCompter) {
  b.Demarre();
  RenommeFamille(*b.module, 2, "Soupes");
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR1.DAT 130+130"));
  EXPECT_EQ(Rogne(Famille(2).nomFamille.brut()), "Soupes");
}

TEST_F(Changement, UnTextePlusCourtResteASaPlace) {
  b.Demarre();
  LitRecette(*b.module, 2);
  b.disque.OublieJournal();
  ChangeRecette(*b.module, 2, {2, "Soupe", "Bref", {}});
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR3.DAT 8+4", "écrit GLR2.DAT 150+150"));
  EXPECT_EQ(Fiche(2).posTexte, 9);
  EXPECT_EQ(Fiche(2).lgTexte, 4);
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), "GLR3.DATBref" + std::string("elouté."_1252));
}

TEST_F(Changement, UnTextePlusLongPasseALaFin) {
  b.Demarre();
  LitRecette(*b.module, 2);
  ChangeRecette(*b.module, 2, {2, "Soupe", "Douze lettre", {}});
  EXPECT_EQ(Fiche(2).posTexte, 20);
  EXPECT_EQ(Fiche(2).lgTexte, 12);
}

TEST_F(Changement, UnTextePlusLongEtUneImageSecriventAvantLaFiche) {
  b.Demarre();
  LitRecette(*b.module, 2);
  b.disque.OublieJournal();
  ChangeRecette(*b.module, 2, {2, "Soupe", "Douze lettre", "/s.png"});
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR3.DAT 19+12", "écrit GLR4.DAT 8+6", "écrit GLR2.DAT 150+150"));
  EXPECT_EQ(Fiche(2).posTexte, 20);
  EXPECT_EQ(Fiche(2).posImage, 9);
  EXPECT_EQ(Fiche(2).lgImage, 6);
}

TEST_F(Changement, UnTexteVidePerdSaReferenceEtLeSuivantPasseALaFin) {
  b.Demarre();
  LitRecette(*b.module, 2);
  ChangeRecette(*b.module, 2, {2, "Soupe", {}, {}});
  EXPECT_EQ(Fiche(2).posTexte, 0);
  EXPECT_EQ(Fiche(2).lgTexte, 0);
  ChangeRecette(*b.module, 2, {2, "Soupe", "x", {}});
  EXPECT_EQ(Fiche(2).posTexte, 20);
}

TEST_F(Changement, LeCheminDeLImageSAjouteAChaqueValidation) {
  b.Demarre();
  LitRecette(*b.module, 2);
  for (int i = 0; i < 4; ++i) {
    ChangeRecette(*b.module, 2, {2, "Soupe", "x", "/s.png"});
  }
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT/s.png/s.png/s.png/s.png");
  EXPECT_EQ(Fiche(2).posImage, 27);
}

TEST_F(Changement, ChangerDeFamilleGardeLeNumero) {
  const std::int32_t famille = b.AjouteFamille("Poissons");
  b.Demarre();
  LitRecette(*b.module, 2);
  ChangeRecette(*b.module, 2, {famille, "Soupe", "x", {}});
  EXPECT_EQ(Fiche(2).idFamille, famille);
  EXPECT_EQ(Fiche(1).actif, 1);
}

TEST_F(Changement, TrouveUnTitreDansUneAutreFamilleSansToucherLaFicheDeTravail) {
  const std::int32_t famille = b.AjouteFamille("Poissons");
  b.AjouteRecette(famille, "Sole");
  b.Demarre();
  LitRecette(*b.module, 2);
  EXPECT_TRUE(TitreDansAutreFamille(*b.module, 2, famille, "SOLE"));
  EXPECT_FALSE(TitreDansAutreFamille(*b.module, 2, famille, "Raie"));
  EXPECT_EQ(Rogne(b.module->bufRecette.courant().nomRecette.brut()), "Velouté"_1252);
}

TEST_F(Changement, UnTitreSupprimeDansLAutreFamilleNEnEstPlusUn) {
  const std::int32_t famille = b.AjouteFamille("Poissons");
  const std::int32_t sole = b.AjouteRecette(famille, "Sole");
  b.Demarre();
  ASSERT_TRUE(TitreDansAutreFamille(*b.module, 2, famille, "Sole"));
  SupprimeRecette(*b.module, sole);
  EXPECT_FALSE(TitreDansAutreFamille(*b.module, 2, famille, "Sole"));
}

TEST_F(Changement, UnTitreNeSeChercheQueDansLAutreFamille) {
  const std::int32_t poissons = b.AjouteFamille("Poissons");
  const std::int32_t entrees = b.AjouteFamille("Entrées"_1252);
  b.AjouteRecette(2, "Sole");
  b.AjouteRecette(entrees, "Sole");
  b.Demarre();
  EXPECT_FALSE(TitreDansAutreFamille(*b.module, 2, poissons, "Sole"));
  EXPECT_TRUE(TitreDansAutreFamille(*b.module, 2, entrees, "Sole"));
}

TEST_F(Changement, ChercheUnTitreJusquALaFinDuFichierMemeQuandLeCompteEstTropBas) {
  const std::int32_t famille = b.AjouteFamille("Poissons");
  b.AjouteRecette(famille, "Sole");
  b.Demarre();
  b.module->bufRecette.nbActifs() = 1;
  EXPECT_TRUE(TitreDansAutreFamille(*b.module, 2, famille, "Sole"));
}

TEST_F(Changement, SupprimeUneRecetteEnNEffacantQueSonDrapeau) {
  const std::int32_t numero = b.AjouteRecette(2, "Sole", "texte", "/s.png");
  b.Demarre();
  const RecRecette avant = Fiche(3);
  SupprimeRecette(*b.module, numero);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR2.DAT 300+150", "écrit GLR2.DAT 0+150"));
  RecRecette attendue = avant;
  attendue.actif = 0;
  EXPECT_EQ(Octets(Fiche(3)), Octets(attendue));
  EXPECT_EQ(Fiche(1).actif, 1);
}

TEST_F(Changement, SupprimeUneFamilleAvecSesRecettes) {
  const std::int32_t famille = b.AjouteFamille("Poissons");
  b.AjouteRecette(famille, "Sole");
  b.AjouteRecette(famille, "Raie");
  b.Demarre();
  const Liste recettes = RecettesDeFamille(*b.module, famille);
  b.disque.OublieJournal();
  SupprimeFamille(*b.module, famille, recettes);
  EXPECT_THAT(
      b.disque.changements(),
      ElementsAre("écrit GLR2.DAT 300+150", "écrit GLR2.DAT 450+150", "écrit GLR2.DAT 0+150",
                  "écrit GLR1.DAT 260+130", "écrit GLR1.DAT 0+130"));
  EXPECT_EQ(Fiche(1).actif, 1);
  EXPECT_EQ(Fiche(3).actif, 0);
  EXPECT_EQ(Fiche(4).actif, 0);
  EXPECT_EQ(Famille(1).actif, 1);
  EXPECT_EQ(Famille(3).actif, 0);
}

TEST_F(Changement, UneSuppressionNeToucheAucuneReserve) {
  const std::int32_t numero = b.AjouteRecette(2, "Sole", "texte", "/s.png");
  b.Demarre();
  SupprimeRecette(*b.module, numero);
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), b.dossier.Lit("GLR3.stp"));
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), b.dossier.Lit("GLR4.stp"));
}

TEST_F(Changement, UneFicheNouvelleVaALaFinMemeApresUneSuppression) {
  const std::int32_t numero = b.AjouteRecette(2, "Sole");
  b.Demarre();
  SupprimeRecette(*b.module, numero);
  EXPECT_EQ(AjouteRecette(*b.module, {2, "Raie", {}, {}}), 4);
  EXPECT_EQ(Titre(3), "Sole");
}

TEST_F(Changement, LeCompteQuiNeTientPlusEstUnePanne) {
  b.Demarre();
  b.module->bufRecette.nbActifs() = 32767;
  EXPECT_THROW(AjouteRecette(*b.module, {2, "Trop", {}, {}}), ErreurExecution);
}

// What stands on file when a write fails: a text without a reference, a record without its count,
// never a reference to a text that isn't there.
TEST_F(Changement, UnAjoutQuiEchoueNeLaisseJamaisDeReferenceSansTexte) {
  EchoueAChaqueEcriture(
      4, [](Bibliotheque&) {},
      [](Bibliotheque& avec) {
        AjouteRecette(*avec.module, {2, "Soupe", "Le texte.", "/s.png"});
      },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLR3.DAT").size(), n > 1 ? 28U : moitie ? 23U : 19U);
        EXPECT_EQ(avec.dossier.Lit("GLR4.DAT").size(), n > 2 ? 14U : n == 2 && moitie ? 11U : 8U);
        EXPECT_EQ(avec.dossier.Lit("GLR2.DAT").size(), n > 3              ? 450U
                                                       : n == 3 && moitie ? 375U
                                                                          : 300U);
        EXPECT_EQ(Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 2).lgTexte, 11);
        if (!(n == 4 && moitie)) {
          EXPECT_EQ(Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 1).actif, 1);
        }
      });
}

TEST_F(Changement, UnAjoutDeFamilleQuiEchoueNeLaCompteJamais) {
  EchoueAChaqueEcriture(
      2, [](Bibliotheque&) {}, [](Bibliotheque& avec) { AjouteFamille(*avec.module, "Poissons"); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLR1.DAT").size(), n == 2 ? 390U : moitie ? 325U : 260U);
        EXPECT_EQ(Rogne(Enregistrement<RecFamille>(avec.dossier, "GLR1.DAT", 2).nomFamille.brut()),
                  "Potages");
        if (!(n == 2 && moitie)) {
          EXPECT_EQ(Enregistrement<RecFamille>(avec.dossier, "GLR1.DAT", 1).actif, 1);
        }
      });
}

TEST_F(Changement, UnNouveauNomDeFamilleQuiEchoueLaisseLAncien) {
  EchoueAChaqueEcriture(
      1, [](Bibliotheque&) {},
      [](Bibliotheque& avec) { RenommeFamille(*avec.module, 2, "Soupes"); },
      [](const Bibliotheque& avec, std::size_t, Maniere maniere) {
        EXPECT_EQ(avec.dossier.Lit("GLR1.DAT").size(), 260U);
        const auto famille = Enregistrement<RecFamille>(avec.dossier, "GLR1.DAT", 2);
        EXPECT_EQ(famille.actif, -1);
        if (maniere == Maniere::rienFait) {
          EXPECT_EQ(Rogne(famille.nomFamille.brut()), "Potages");
        }
      });
}

TEST_F(Changement, UneModificationQuiEchoueLaisseLAncienneReference) {
  EchoueAChaqueEcriture(
      3, [](Bibliotheque&) {},
      [](Bibliotheque& avec) {
        LitRecette(*avec.module, 2);
        ChangeRecette(*avec.module, 2, {2, "Soupe", "Un texte bien plus long.", "/s.png"});
      },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLR3.DAT").size(), n > 1 ? 43U : moitie ? 31U : 19U);
        EXPECT_EQ(avec.dossier.Lit("GLR4.DAT").size(), n > 2 ? 14U : n == 2 && moitie ? 11U : 8U);
        EXPECT_EQ(avec.dossier.Lit("GLR3.DAT").substr(8, 11), std::string("Un velouté."_1252));
        const auto fiche = Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 2);
        EXPECT_EQ(fiche.posTexte, 9);
        EXPECT_EQ(fiche.lgTexte, 11);
        EXPECT_EQ(fiche.posImage, 0);
        EXPECT_EQ(fiche.lgImage, 0);
      });
}

// The one change that overwrites what a record on file refers to.
TEST_F(Changement, UnTextePlusCourtDontLaFicheNeSEcritPasGardeLAncienneLongueur) {
  EchoueAChaqueEcriture(
      2, [](Bibliotheque&) {},
      [](Bibliotheque& avec) {
        LitRecette(*avec.module, 2);
        ChangeRecette(*avec.module, 2, {2, "Soupe", "Bref", {}});
      },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const std::string reste(n > 1                              ? "elouté."_1252
                                : maniere == Maniere::moitieEcrite ? " velouté."_1252
                                                                   : "Un velouté."_1252);
        EXPECT_EQ(avec.dossier.Lit("GLR3.DAT"),
                  "GLR3.DAT" + std::string("Bref").substr(0, 11 - reste.size()) + reste);
        const auto fiche = Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 2);
        EXPECT_EQ(fiche.posTexte, 9);
        EXPECT_EQ(fiche.lgTexte, 11);
      });
}

TEST_F(Changement, UneSuppressionDeRecetteQuiEchoueGardeCeQuiEstDejaEcrit) {
  EchoueAChaqueEcriture(
      2, [](Bibliotheque& avec) { avec.AjouteRecette(2, "Sole", "texte"); },
      [](Bibliotheque& avec) { SupprimeRecette(*avec.module, 3); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        // The flag and the count are in the first half: what is half written reads as written.
        const std::size_t ecrites = maniere == Maniere::moitieEcrite ? n : n - 1;
        auto fiche = Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 3);
        EXPECT_EQ(fiche.actif, ecrites > 0 ? 0 : -1);
        EXPECT_EQ(Rogne(fiche.nomRecette.brut()), "Sole");
        EXPECT_EQ(fiche.lgTexte, 5);
        EXPECT_EQ(Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 1).actif,
                  ecrites > 1 ? 1 : 2);
      });
}

TEST_F(Changement, UneSuppressionDeFamilleQuiEchoueGardeCeQuiEstDejaEcrit) {
  EchoueAChaqueEcriture(
      5,
      [](Bibliotheque& avec) {
        avec.AjouteFamille("Poissons");
        avec.AjouteRecette(3, "Sole");
        avec.AjouteRecette(3, "Raie");
      },
      [](Bibliotheque& avec) {
        const Liste recettes = RecettesDeFamille(*avec.module, 3);
        SupprimeFamille(*avec.module, 3, recettes);
      },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        if (maniere == Maniere::moitieEcrite) {
          return;  // the flag is in the first half: what is half written reads as written
        }
        EXPECT_EQ(Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 3).actif, n > 1 ? 0 : -1);
        EXPECT_EQ(Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 4).actif, n > 2 ? 0 : -1);
        EXPECT_EQ(Enregistrement<RecRecette>(avec.dossier, "GLR2.DAT", 1).actif, n > 3 ? 1 : 3);
        EXPECT_EQ(Enregistrement<RecFamille>(avec.dossier, "GLR1.DAT", 3).actif, n > 4 ? 0 : -1);
        EXPECT_EQ(Enregistrement<RecFamille>(avec.dossier, "GLR1.DAT", 1).actif, 2);
      });
}

}  // namespace
}  // namespace gastrelle::essai
