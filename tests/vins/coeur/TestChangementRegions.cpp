// Changing the regions: the bytes on file after each operation, the order of the writes, the wines
// that go with a region, and what survives a failure at each write.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "vins/coeur/CoeurVins.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ChangementDesRegions : public CoeurVins {
 protected:
  /// Region "Alpes" (29) with the wines 565 and 567, "Voisin" (566) of another between them.
  static void GarnitLesAlpes(Bibliotheque& avec) {
    GarnitAvecAbymes(avec);
    avec.AjouteVin(Vin("Voisin", 28));
    avec.AjouteVin(Vin("Crépy"_1252, 29), "Du lac");
  }

  void DemarreSurLesAlpes() {
    GarnitLesAlpes(b);
    b.Demarre();
  }

  [[nodiscard]] static std::vector<int> VinsVivants(const Bibliotheque& avec) {
    std::vector<int> vivants;
    for (std::size_t numero = 565; numero <= 567; ++numero) {
      vivants.push_back(FicheVin(avec, numero).actif);
    }
    return vivants;
  }
};

TEST_F(ChangementDesRegions, AjouteDerriereLaDernierePuisCompte) {
  b.Demarre();
  EXPECT_EQ(AjouteRegion(*b.module, "Alpes"), 29);
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV1.DAT", "longueur GLV1.DAT",
                                              "écrit GLV1.DAT 1848+66", "écrit GLV1.DAT 0+66"));
  EXPECT_EQ(b.dossier.Lit("GLV1.DAT").substr(1848),
            "\xFF\xFF"
            "Alpes" +
                std::string(59, ' '));
  EXPECT_EQ(FicheRegion(b, 1).actif, 28);
  EXPECT_EQ(b.module->bufRegion.nbActifs(), 28);
}

TEST_F(ChangementDesRegions, CoupeUnNomDeSoixanteDixCaracteresASoixanteQuatre) {
  b.Demarre();
  const std::string nom = std::string(64, 'a') + "bcdefg";
  AjouteRegion(*b.module, nom);
  AjouteRegion(*b.module, std::string(64, 'a') + "autre chose");
  EXPECT_EQ(FicheRegion(b, 29).nomRegion.brut(), std::string(64, 'a'));
  EXPECT_EQ(NomRegion(b, 30), NomRegion(b, 29));
  EXPECT_EQ(b.dossier.Lit("GLV1.DAT").size(), 30U * 66U);
  RenommeRegion(*b.module, 29, nom);
  EXPECT_EQ(FicheRegion(b, 29).nomRegion.brut(), std::string(64, 'a'));
  EXPECT_EQ(Rogne(FicheRegion(b, 30).nomRegion.brut()), std::string(64, 'a'));
}

TEST_F(ChangementDesRegions, VaALaFinMemeApresUneSuppression) {
  b.AjouteRegion("Alpes");
  b.Demarre();
  SupprimeRegion(*b.module, 29);
  EXPECT_EQ(AjouteRegion(*b.module, "Bugey"), 30);
  EXPECT_EQ(NomRegion(b, 29), "Alpes");
  EXPECT_EQ(FicheRegion(b, 29).actif, 0);
  EXPECT_EQ(FicheRegion(b, 1).actif, 28);
}

TEST_F(ChangementDesRegions, EchoueQuandLeCompteNeTientPlus) {
  b.Demarre();
  b.module->bufRegion.nbActifs() = 32767;
  EXPECT_EQ(PanneDe([&] { AjouteRegion(*b.module, "Trop"); }), Panne::depassement);
  EXPECT_EQ(FicheRegion(b, 1).actif, 27);
}

TEST_F(ChangementDesRegions, RenommeASaPlaceSansToucherLEnTete) {
  DemarreSurAbymes();
  RenommeRegion(*b.module, 2, "Savoie");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV1.DAT", "écrit GLV1.DAT 66+66"));
  RecRegion attendue;
  attendue.actif = -1;
  attendue.nomRegion = "Savoie";
  EXPECT_EQ(Octets(FicheRegion(b, 2)), Octets(attendue));
  EXPECT_EQ(FicheRegion(b, 1).actif, 28);
}

TEST_F(ChangementDesRegions, GardeLeResteDeLEnTete) {
  GarnitEntete<RecRegion>(b, "GLV1.stp");
  GarnitEntete<RecVin>(b, "GLV2.stp");
  AjouteAbymes(b);
  b.Demarre();
  const std::string regions = Entete<RecRegion>(b, "GLV1.DAT");
  const std::string vins = Entete<RecVin>(b, "GLV2.DAT");
  AjouteRegion(*b.module, "Bugey");
  EXPECT_EQ(Entete<RecRegion>(b, "GLV1.DAT"), AvecCompte(regions, 29));
  SupprimeRegion(*b.module, 29);
  EXPECT_EQ(Entete<RecRegion>(b, "GLV1.DAT"), AvecCompte(regions, 28));
  EXPECT_EQ(Entete<RecVin>(b, "GLV2.DAT"), AvecCompte(vins, 563));
}

TEST_F(ChangementDesRegions, SupprimeSesVinsUnAUnChacunDecompteAussitotEtLaRegionEnDernier) {
  DemarreSurLesAlpes();
  SupprimeRegion(*b.module, 29);
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLV1.DAT", "existe GLV2.DAT", "longueur GLV2.DAT",
                  "lit GLV2.DAT 104+58864", "écrit GLV2.DAT 58656+104", "écrit GLV2.DAT 0+104",
                  "écrit GLV2.DAT 58864+104", "écrit GLV2.DAT 0+104", "lit GLV1.DAT 1848+66",
                  "écrit GLV1.DAT 1848+66", "écrit GLV1.DAT 0+66"));
  EXPECT_THAT(VinsVivants(b), ElementsAre(0, -1, 0));
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
  EXPECT_EQ(FicheRegion(b, 1).actif, 27);
}

TEST_F(ChangementDesRegions, DecompteChaqueVinAuMomentOuIlPart) {
  DemarreSurLesAlpes();
  std::vector<int> comptes;
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne.starts_with("écrit GLV2.DAT")) {
      comptes.push_back(FicheVin(b, 1).actif);
    }
  };
  SupprimeRegion(*b.module, 29);
  b.disque.pendant = {};
  EXPECT_THAT(comptes, ElementsAre(566, 566, 565, 565));  // as it stands before each write
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
}

TEST_F(ChangementDesRegions, NEffaceQueLesDrapeaux) {
  DemarreSurLesAlpes();
  RecVin vin = FicheVin(b, 565);
  RecRegion region = FicheRegion(b, 29);
  const std::string reserve = b.dossier.Lit("GLV3.DAT");
  const std::string autres = b.dossier.Lit("GLV2.DAT").substr(104, 58552);
  SupprimeRegion(*b.module, 29);
  vin.actif = 0;
  region.actif = 0;
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(vin));
  EXPECT_EQ(Octets(FicheRegion(b, 29)), Octets(region));
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), reserve);
  EXPECT_EQ(b.dossier.Lit("GLV2.DAT").substr(104, 58552), autres);
}

TEST_F(ChangementDesRegions, NeToucheNiNeDecompteUnVinDejaSupprime) {
  DemarreSurLesAlpes();
  SupprimeVin(*b.module, 565);
  b.disque.OublieJournal();
  SupprimeRegion(*b.module, 29);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLV2.DAT 58864+104", "écrit GLV2.DAT 0+104",
                          "écrit GLV1.DAT 1848+66", "écrit GLV1.DAT 0+66"));
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
}

TEST_F(ChangementDesRegions, NePrendPasPourVivantUnAutreDrapeau) {
  DemarreAvec([](RecVin& vin) { vin.actif = 1; });
  SupprimeRegion(*b.module, 29);
  EXPECT_EQ(FicheVin(b, 565).actif, 1);
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
}

// The walk goes to the end of the file, whatever the header counts.
TEST_F(ChangementDesRegions, TrouveSesVinsDerriereUnCompteTropBas) {
  DemarreSurLesAlpes();
  b.module->bufVin.nbActifs() = 563;
  SupprimeRegion(*b.module, 29);
  EXPECT_THAT(VinsVivants(b), ElementsAre(0, -1, 0));
  EXPECT_EQ(FicheVin(b, 1).actif, 561);
}

// A walk fetches 630 records at a time, from record 2 on.
TEST_F(ChangementDesRegions, SupprimeSesVinsDUnePartieLueDuFichierALaSuivante) {
  b.AjouteRegion("Alpes");
  for (int i = 0; i < 100; ++i) {
    b.AjouteVin(Vin("Crépy"_1252, 29));
  }
  b.Demarre();
  SupprimeRegion(*b.module, 29);
  for (std::size_t numero = 565; numero <= 664; ++numero) {
    EXPECT_EQ(FicheVin(b, numero).actif, 0) << numero;
  }
  EXPECT_EQ(FicheVin(b, 564).actif, -1);
  EXPECT_EQ(FicheVin(b, 1).actif, 563);
  EXPECT_EQ(b.disque.changements().size(), 202U);
}

TEST_F(ChangementDesRegions, SupprimeUneRegionSansVin) {
  b.AjouteRegion("Alpes");
  b.Demarre();
  SupprimeRegion(*b.module, 29);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLV1.DAT 1848+66", "écrit GLV1.DAT 0+66"));
  EXPECT_EQ(FicheVin(b, 1).actif, 563);
}

TEST_F(ChangementDesRegions, LaisseDansLaFicheDeTravailLeDernierVinDuFichier) {
  GarnitLesAlpes(b);
  b.AjouteVin(Vin("Zéphyr"_1252, 3));
  b.Demarre();
  LitAbymes(b);
  SupprimeRegion(*b.module, 29);
  EXPECT_EQ(NomCourant(), "Zéphyr"_1252);
  EXPECT_EQ(RegionCourante(), "Alpes");
  EXPECT_EQ(b.module->bufRegion.courant().actif, 0);
}

TEST_F(ChangementDesRegions, PrendLesVinsDeFabriqueQuiYFurentMis) {
  DemarreSurAbymes();
  LitVin(*b.module, 2);
  ChangeVin(*b.module, 2, {"Vin 002", 29, {}});
  SupprimeRegion(*b.module, 29);
  EXPECT_EQ(FicheVin(b, 2).actif, 0);
  EXPECT_EQ(FicheVin(b, 1).actif, 562);
}

TEST_F(ChangementDesRegions, SansSonFichierNEcritRien) {
  DemarreSurAbymes();
  b.dossier.Supprime("GLV1.DAT");
  EXPECT_THROW(AjouteRegion(*b.module, "x"), ErreurExecution);
  EXPECT_THROW(RenommeRegion(*b.module, 29, "x"), ErreurExecution);
  EXPECT_THROW(SupprimeRegion(*b.module, 29), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.messages.vus,
              ElementsAre(Disparu("GLV1.DAT"), Disparu("GLV1.DAT"), Disparu("GLV1.DAT")));
}

TEST_F(ChangementDesRegions, NEnSupprimeAucuneSansLeFichierDesVins) {
  DemarreSurAbymes();
  b.dossier.Supprime("GLV2.DAT");
  EXPECT_THROW(SupprimeRegion(*b.module, 29), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.messages.vus, ElementsAre(Disparu("GLV2.DAT")));
}

// The region is read behind its wines: they are gone by then.
TEST_F(ChangementDesRegions, NePerdQueSesVinsQuandElleNeSeLitPas) {
  DemarreSurLesAlpes();
  b.disque.EchoueSur("lit GLV1.DAT", Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { SupprimeRegion(*b.module, 29); }), Panne::entreeSortie);
  EXPECT_THAT(VinsVivants(b), ElementsAre(0, -1, 0));
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
  EXPECT_EQ(FicheRegion(b, 29).actif, -1);
  EXPECT_EQ(FicheRegion(b, 1).actif, 28);
}

TEST_F(ChangementDesRegions, NePerdRienQuandLesVinsNeSeLisentPas) {
  DemarreSurLesAlpes();
  b.disque.EchoueSur("lit GLV2.DAT", Panne::entreeSortie);
  EXPECT_THROW(SupprimeRegion(*b.module, 29), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

// What stands on file when a write fails. The flag and the count are in the first half of what is
// written: half written reads as written.
std::size_t Faites(std::size_t n, Maniere maniere) {
  return maniere == Maniere::moitieEcrite ? n : n - 1;
}

TEST_F(ChangementDesRegions, UnAjoutQuiEchoueNeLaCompteJamaisAvantElle) {
  EchoueAChaqueEcriture(
      2, [](Bibliotheque& avec) { avec.GarnitVins(); },
      [](Bibliotheque& avec) { AjouteRegion(*avec.module, "Alpes"); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLV1.DAT").size(), n == 2   ? 29U * 66U
                                                       : moitie ? 28U * 66U + 33U
                                                                : 28U * 66U);
        EXPECT_EQ(FicheRegion(avec, 1).actif, Faites(n, maniere) == 2 ? 28 : 27);
        EXPECT_EQ(NomRegion(avec, 28), "Région 028"_1252);
      });
}

TEST_F(ChangementDesRegions, UnNouveauNomQuiEchoueLaisseLAncien) {
  EchoueAChaqueEcriture(
      1, GarnitAvecAbymes, [](Bibliotheque& avec) { RenommeRegion(*avec.module, 29, "Bugey"); },
      [](const Bibliotheque& avec, std::size_t /*n*/, Maniere maniere) {
        EXPECT_EQ(NomRegion(avec, 29), maniere == Maniere::rienFait ? "Alpes" : "Bugey");
        EXPECT_EQ(FicheRegion(avec, 29).actif, -1);
        EXPECT_EQ(avec.dossier.Lit("GLV1.DAT").size(), 29U * 66U);
        EXPECT_EQ(FicheRegion(avec, 1).actif, 28);
      });
}

TEST_F(ChangementDesRegions, UneSuppressionQuiEchoueGardeCeQuiEstDejaEcrit) {
  EchoueAChaqueEcriture(
      6, GarnitLesAlpes, [](Bibliotheque& avec) { SupprimeRegion(*avec.module, 29); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const std::size_t faites = Faites(n, maniere);
        EXPECT_THAT(VinsVivants(avec), ElementsAre(faites > 0 ? 0 : -1, -1, faites > 2 ? 0 : -1));
        EXPECT_EQ(FicheVin(avec, 1).actif, faites > 3 ? 564 : faites > 1 ? 565 : 566);
        EXPECT_EQ(FicheRegion(avec, 29).actif, faites > 4 ? 0 : -1);
        EXPECT_EQ(FicheRegion(avec, 1).actif, faites > 5 ? 27 : 28);
        EXPECT_EQ(NomRegion(avec, 29), "Alpes");
      });
}

}  // namespace
}  // namespace gastrelle::essai
