// Reading the regions and the wines: what the scans list and repair, what a wine shows, and what is
// left in the working records.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "vins/coeur/CoeurVins.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LectureDesRegions : public CoeurVins {};

TEST_F(LectureDesRegions, SontListeesVivantesDansLOrdreDesFiches) {
  b.AjouteRegion("  Alpes ");
  b.Demarre();
  const Liste regions = ListeRegions(*b.module);
  ASSERT_EQ(regions.size(), 28U);
  EXPECT_EQ(regions.front(), (EntreeListe{std::string("Région 002"_1252), 2}));
  EXPECT_EQ(regions.back(), (EntreeListe{"Alpes", 29}));
  EXPECT_THAT(b.disque.journal(), ElementsAre("longueur GLV1.DAT", "lit GLV1.DAT 66+1848"));
}

TEST_F(LectureDesRegions, SontSauteesSupprimees) {
  b.AjouteRegion("Alpes");
  b.AjouteRegion("Bugey");
  b.Demarre();
  SupprimeRegion(*b.module, 29);
  EXPECT_EQ(ListeRegions(*b.module).back(), (EntreeListe{"Bugey", 30}));
}

TEST_F(LectureDesRegions, NeViventQuAMoinsUn) {
  b.AjouteRegion("Alpes");
  b.Demarre();
  RecRegion region = FicheRegion(b, 29);
  region.actif = 1;
  b.module->bufRegion.Ecrit(29, region);
  EXPECT_EQ(ListeRegions(*b.module).size(), 27U);
}

TEST_F(LectureDesRegions, SArretentAuCompteDeLEnTete) {
  b.AjouteRegion("Alpes");
  PoseCompte(b, "GLV1.stp", 27);
  b.Demarre();
  EXPECT_EQ(ListeRegions(*b.module).size(), 27U);
  EXPECT_EQ(RegionCourante(), "Région 028"_1252);
  EXPECT_EQ(b.module->bufRegion.nbActifs(), 27);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

// Nothing repairs their count: the list ends with the file, and the header stays as it is.
TEST_F(LectureDesRegions, FinissentSansRienDireQuandLEnTeteCompteTrop) {
  PoseCompte(b, "GLV1.stp", 40);
  b.Demarre();
  EXPECT_EQ(ListeRegions(*b.module).size(), 27U);
  EXPECT_EQ(b.module->bufRegion.nbActifs(), 40);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(FicheRegion(b, 1).actif, 40);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(LectureDesRegions, LaissentLaDerniereLueDansLaFicheDeTravail) {
  b.AjouteRegion("Alpes");
  b.Demarre();
  b.module->bufRegion.LitCourant(2);
  ListeRegions(*b.module);
  EXPECT_EQ(RegionCourante(), "Alpes");
}

TEST_F(LectureDesRegions, NeSontAucunesDansUnFichierReduitASonEnTete) {
  b.Demarre();
  b.dossier.Ecrit("GLV1.DAT", b.dossier.Lit("GLV1.DAT").substr(0, 66));
  EXPECT_THAT(ListeRegions(*b.module), IsEmpty());
  EXPECT_EQ(b.module->bufRegion.nbActifs(), 27);
}

TEST_F(LectureDesRegions, EchouentSurUneLectureQuiEchoue) {
  b.Demarre();
  b.disque.EchoueSur("lit GLV1.DAT", Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { ListeRegions(*b.module); }), Panne::entreeSortie);
}

class LectureDesVins : public CoeurVins {};

TEST_F(LectureDesVins, SontListesVivantsDansLOrdreDesFiches) {
  b.AjouteVin(Vin("  Abymes "));
  b.Demarre();
  const Liste vins = ListeVins(*b.module);
  ASSERT_EQ(vins.size(), 564U);
  EXPECT_EQ(vins.front(), (EntreeListe{"Vin 002", 2}));
  EXPECT_EQ(vins.back(), (EntreeListe{"Abymes", 565}));
  EXPECT_THAT(b.disque.journal(), ElementsAre("longueur GLV2.DAT", "lit GLV2.DAT 104+58656"));
  EXPECT_EQ(NomCourant(), "Abymes");
}

TEST_F(LectureDesVins, SontSautesSupprimes) {
  b.AjouteVin(Vin("Abymes"));
  b.AjouteVin(Vin("Brouilly"));
  b.Demarre();
  SupprimeVin(*b.module, 565);
  EXPECT_EQ(ListeVins(*b.module).back(), (EntreeListe{"Brouilly", 566}));
}

TEST_F(LectureDesVins, ReparentUnCompteTropHautEnMemoireEtSurLeDisque) {
  GarnitEntete<RecVin>(b, "GLV2.stp");
  PoseCompte(b, "GLV2.stp", 600);
  b.Demarre();
  const std::string avant = Entete<RecVin>(b, "GLV2.DAT");
  EXPECT_EQ(ListeVins(*b.module).size(), 563U);
  EXPECT_EQ(b.module->bufVin.nbActifs(), 563);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLV2.DAT 0+104"));
  EXPECT_EQ(Entete<RecVin>(b, "GLV2.DAT"), AvecCompte(avant, 563));
}

TEST_F(LectureDesVins, SeListentBienQueLaReparationEchoue) {
  PoseCompte(b, "GLV2.stp", 600);
  b.Demarre();
  b.disque.EchoueSur("écrit GLV2.DAT", Panne::disquePlein);
  EXPECT_EQ(ListeVins(*b.module).size(), 563U);
  EXPECT_EQ(b.module->bufVin.nbActifs(), 563);
  EXPECT_EQ(FicheVin(b, 1).actif, 600);
}

TEST_F(LectureDesVins, NeReparentRienQuandLaLectureEchoue) {
  PoseCompte(b, "GLV2.stp", 600);
  b.Demarre();
  b.disque.EchoueSur("lit GLV2.DAT", Panne::entreeSortie);
  EXPECT_THROW(ListeVins(*b.module), ErreurExecution);
  EXPECT_EQ(b.module->bufVin.nbActifs(), 600);
  EXPECT_EQ(FicheVin(b, 1).actif, 600);
}

TEST_F(LectureDesVins, SeCachentDerriereUnCompteTropBasQueRienNeRepare) {
  b.AjouteVin(Vin("Abymes"));
  b.AjouteVin(Vin("Brouilly"));
  PoseCompte(b, "GLV2.stp", 563);
  b.Demarre();
  EXPECT_EQ(ListeVins(*b.module).back().texte, "Vin 564");
  EXPECT_EQ(NomCourant(), "Vin 564");
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(FicheVin(b, 1).actif, 563);
}

TEST_F(LectureDesVins, NeSontAucunsDansUnFichierReduitASonEnTete) {
  b.Demarre();
  b.dossier.Ecrit("GLV2.DAT", b.dossier.Lit("GLV2.DAT").substr(0, 104));
  EXPECT_THAT(ListeVins(*b.module), IsEmpty());
  EXPECT_EQ(FicheVin(b, 1).actif, 0);
}

class VinsDUneRegion : public CoeurVins {};

TEST_F(VinsDUneRegion, SontLesVivantsDeCetteRegion) {
  const std::int32_t alpes = b.AjouteRegion("Alpes");
  b.AjouteVin(Vin(" Crépy "_1252, alpes));
  b.AjouteVin(Vin("Parti", alpes));
  b.AjouteVin(Vin("Abymes", alpes));
  b.Demarre();
  SupprimeVin(*b.module, 566);
  b.disque.OublieJournal();
  EXPECT_THAT(VinsDeLaRegion(*b.module, alpes),
              ElementsAre(EntreeListe{std::string("Crépy"_1252), 565}, EntreeListe{"Abymes", 567}));
  EXPECT_EQ(VinsDeLaRegion(*b.module, 2).size(), 21U);
  EXPECT_THAT(VinsDeLaRegion(*b.module, 30), IsEmpty());
}

TEST_F(VinsDUneRegion, LaissentDansLaFicheDeTravailLeDernierVinLuDeQuelqueRegionQuIlSoit) {
  DemarreSurAbymes();
  b.module->bufVin.LitCourant(2);
  VinsDeLaRegion(*b.module, 2);
  EXPECT_EQ(Octets(b.module->bufVin.courant()), Octets(FicheVin(b, 565)));
  VinsDeLaRegion(*b.module, 30);
  EXPECT_EQ(NomCourant(), "Abymes");
}

TEST_F(VinsDUneRegion, NeSeCherchentQueJusquAuCompteEtLaissentLaLeVinQuiLAtteint) {
  AjouteAbymes(b);
  PoseCompte(b, "GLV2.stp", 563);
  b.Demarre();
  EXPECT_THAT(VinsDeLaRegion(*b.module, 29), IsEmpty());
  EXPECT_EQ(NomCourant(), "Vin 564");
}

TEST_F(VinsDUneRegion, NeReparentRienEtNeDemandentPasSiLeFichierEstLa) {
  PoseCompte(b, "GLV2.stp", 600);
  b.Demarre();
  EXPECT_EQ(VinsDeLaRegion(*b.module, 2).size(), 21U);
  EXPECT_EQ(b.module->bufVin.nbActifs(), 600);
  EXPECT_THAT(b.disque.journal(), ElementsAre("longueur GLV2.DAT", "lit GLV2.DAT 104+58552"));
}

class VinLuEnEntier : public CoeurVins {};

TEST_F(VinLuEnEntier, DonneSaRegionEtSesDeuxTextes) {
  AjouteAbymes(b);
  b.Demarre();
  const VinLu lu = LitVin(*b.module, 565);
  EXPECT_EQ(lu.region, "Alpes");
  EXPECT_EQ(lu.notes, "Dix octets");
  EXPECT_EQ(lu.notesCave, "En haut.");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV2.DAT", "existe GLV1.DAT", "lit GLV2.DAT 58656+104",
                          "lit GLV1.DAT 1848+66", "existe GLV3.DAT", "longueur GLV3.DAT",
                          "lit GLV3.DAT 8+10", "existe GLV3.DAT", "longueur GLV3.DAT",
                          "lit GLV3.DAT 18+8"));
  EXPECT_EQ(NomCourant(), "Abymes");
  EXPECT_EQ(RegionCourante(), "Alpes");
}

TEST_F(VinLuEnEntier, SansTexteNeDemandePasLaReserve) {
  b.Demarre();
  b.dossier.Supprime("GLV3.DAT");
  const VinLu lu = LitVin(*b.module, 2);
  EXPECT_EQ(lu.region, "Région 002"_1252);
  EXPECT_EQ(lu.notes + lu.notesCave, "");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", "existe GLV1.DAT",
                                              "lit GLV2.DAT 104+104", "lit GLV1.DAT 66+66"));
}

TEST_F(VinLuEnEntier, ASesTextesSansLimiteDeLongueur) {
  const std::string longues(40000, 'n');
  b.AjouteVin(Vin("Abymes"), longues, longues + "c");
  b.Demarre();
  const VinLu lu = LitVin(*b.module, 565);
  EXPECT_EQ(lu.notes, longues);
  EXPECT_EQ(lu.notesCave, longues + "c");
}

TEST_F(VinLuEnEntier, VautSansTexteQuandSesPositionsSontSousUn) {
  DemarreAvec([](RecVin& vin) {
    vin.posTexte = 0;
    vin.posNotesCave = -19;
  });
  const VinLu lu = LitVin(*b.module, 565);
  EXPECT_EQ(lu.notes, "");
  EXPECT_EQ(lu.notesCave, "");
}

TEST_F(VinLuEnEntier, EchoueSurUneLongueurNegative) {
  DemarreAvec([](RecVin& vin) { vin.lgNotesCave = -1; });
  EXPECT_THROW(LitVin(*b.module, 565), ErreurExecution);
}

TEST_F(VinLuEnEntier, EchoueSansRegionDeNumeroPossible) {
  b.Demarre();
  for (const std::int32_t region : {0, -2}) {
    b.module->bufVin.Ecrit(565, Vin("Abymes", region));
    EXPECT_EQ(PanneDe([&] { LitVin(*b.module, 565); }), Panne::numeroEnregistrement);
  }
}

TEST_F(VinLuEnEntier, SeLitDansUneRegionSupprimee) {
  AjouteAbymes(b);
  b.Demarre();
  SupprimeRegion(*b.module, 29);
  const VinLu lu = LitVin(*b.module, 565);
  EXPECT_EQ(lu.region, "Alpes");
  EXPECT_EQ(lu.notes, "Dix octets");
}

struct FichierQuiManque {
  const char* nom;
  std::int32_t vin;
};

class VinDontUnFichierManque : public CoeurVins,
                               public testing::WithParamInterface<FichierQuiManque> {};

TEST_P(VinDontUnFichierManque, EstDitPuisEchoue) {
  AjouteAbymes(b);
  b.Demarre();
  b.dossier.Supprime(GetParam().nom);
  EXPECT_EQ(PanneDe([&] { LitVin(*b.module, GetParam().vin); }), Panne::fichierIntrouvable);
  EXPECT_THAT(b.messages.vus, ElementsAre(Disparu(GetParam().nom)));
}

INSTANTIATE_TEST_SUITE_P(Tous, VinDontUnFichierManque,
                         testing::Values(FichierQuiManque{"GLV1.DAT", 2},
                                         FichierQuiManque{"GLV2.DAT", 2},
                                         FichierQuiManque{"GLV3.DAT", 565}),
                         [](const testing::TestParamInfo<FichierQuiManque>& cas) {
                           return std::string(cas.param.nom).substr(0, 4);
                         });

TEST_F(LectureDesVins, SeRelisentAvecLeurRegionSansLaLire) {
  AjouteAbymes(b);
  b.Demarre();
  EXPECT_EQ(LitRegionDuVin(*b.module, 565), 29);
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", "lit GLV2.DAT 58656+104"));
  EXPECT_EQ(Octets(b.module->bufVin.courant()), Octets(FicheVin(b, 565)));
  b.dossier.Supprime("GLV2.DAT");
  EXPECT_THROW(LitRegionDuVin(*b.module, 565), ErreurExecution);
}

TEST_F(LectureDesVins, SeRelisentSeulsSansQueLeFichierSoitDemande) {
  AjouteAbymes(b);
  b.Demarre();
  RelitVin(*b.module, 565);
  EXPECT_THAT(b.disque.journal(), ElementsAre("lit GLV2.DAT 58656+104"));
  EXPECT_EQ(NomCourant(), "Abymes");
}

}  // namespace
}  // namespace gastrelle::essai
