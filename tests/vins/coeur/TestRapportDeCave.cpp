// The report of the whole cellar: which wines it lists, its lines to the byte, its totals.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "vins/coeur/CoeurVins.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class RapportEntier : public CoeurVins {
 protected:
  /// The lines of the report on all wines in the cellar, in the order of a sorted list, in UTF-8.
  std::vector<std::string> Lignes() {
    Liste vins = VinsEnCave(*b.module);
    TrieFrancais(vins);
    std::vector<std::string> lignes;
    for (const std::string& ligne : LignesDuRapport(*b.module, vins)) {
      lignes.push_back(VersUtf8(ligne));
    }
    return lignes;
  }
};

class VinsDeLaCave : public CoeurVins {};

TEST_F(VinsDeLaCave, SontLesVivantsQuiOntUneBouteille) {
  for (std::size_t couleur = 0; couleur < couleursVin.size(); ++couleur) {
    Bouteilles une{};
    une[couleur] = 1;
    b.AjouteVin(VinEnCave(" C" + std::to_string(couleur) + " ", une));
  }
  b.AjouteVin(Vin("Aucune"));
  b.AjouteVin(VinEnCave("Moins une", {-1, -32768}));
  b.AjouteVin(VinEnCave("Parti", {5}));
  b.Demarre();
  SupprimeVin(*b.module, 576);
  b.disque.OublieJournal();
  const Liste vins = VinsEnCave(*b.module);
  ASSERT_EQ(vins.size(), 9U);
  EXPECT_EQ(vins.front(), (EntreeListe{"C0", 565}));
  EXPECT_EQ(vins.back(), (EntreeListe{"C8", 573}));
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV2.DAT", "longueur GLV2.DAT", "lit GLV2.DAT 104+59800"));
}

TEST_F(VinsDeLaCave, SeCherchentJusquAuCompteSansRienReparer) {
  b.AjouteVin(VinEnCave("Abymes", {1}));
  b.AjouteVin(VinEnCave("Brouilly", {1}));
  PoseCompte(b, "GLV2.stp", 564);
  b.Demarre();
  EXPECT_THAT(VinsEnCave(*b.module), ElementsAre(EntreeListe{"Abymes", 565}));
  EXPECT_EQ(NomCourant(), "Abymes");
  b.module->bufVin.nbActifs() = 600;
  EXPECT_EQ(VinsEnCave(*b.module).size(), 2U);
  EXPECT_EQ(NomCourant(), "Brouilly");
  EXPECT_EQ(b.module->bufVin.nbActifs(), 600);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(VinsDeLaCave, SansLeurFichierEchouent) {
  DemarreSurAbymes();
  b.dossier.Supprime("GLV2.DAT");
  EXPECT_EQ(PanneDe([&] { VinsEnCave(*b.module); }), Panne::fichierIntrouvable);
  EXPECT_THAT(b.messages.vus, ElementsAre(Disparu("GLV2.DAT")));
}

TEST_F(RapportEntier, DUneCaveVideTientEnUneLigne) {
  b.Demarre();
  EXPECT_THAT(Lignes(), ElementsAre("Votre cave est vide !"));
}

TEST_F(RapportEntier, DUnVinDeuxCouleurs) {
  b.AjouteVin(VinEnCave("Abymes", {6, 12}, b.AjouteRegion("Alpes")));
  b.Demarre();
  EXPECT_THAT(Lignes(),
              ElementsAre("ABYMES - Région d'origine : Alpes", ".. Blanc ........... 6",
                          ".. Rouge ........... 12", "... Total .......... 18", " ",
                          "Nombre total de bouteilles dans ma cave", ".. BLANC ........... 6",
                          ".. ROUGE ........... 12", "... Total .......... 18"));
}

TEST_F(RapportEntier, DUneSeuleCouleurASonTotalEgal) {
  b.AjouteVin(VinEnCave("Abymes", {0, 0, 0, 0, 0, 0, 0, 0, 3}));
  b.Demarre();
  EXPECT_THAT(Lignes(),
              ElementsAre("ABYMES - Région d'origine : Région 002", ".. Gris ............ 3",
                          "... Total .......... 3", " ", "Nombre total de bouteilles dans ma cave",
                          ".. GRIS ............ 3", "... Total .......... 3"));
}

TEST_F(RapportEntier, DesNeufCouleursDansLeurOrdre) {
  b.AjouteVin(VinEnCave("Abymes", {1, 2, 3, 4, 5, 6, 7, 8, 9}));
  b.Demarre();
  EXPECT_THAT(
      Lignes(),
      ElementsAre("ABYMES - Région d'origine : Région 002", ".. Blanc ........... 1",
                  ".. Rouge ........... 2", ".. Rosé ............ 3", ".. Champagne ....... 4",
                  ".. Vin doux naturel  5", ".. Jaune ........... 6", ".. Paille .......... 7",
                  ".. Mousseux ........ 8", ".. Gris ............ 9", "... Total .......... 45",
                  " ", "Nombre total de bouteilles dans ma cave", ".. BLANC ........... 1",
                  ".. ROUGE ........... 2", ".. ROSÉ ............ 3", ".. CHAMPAGNE ....... 4",
                  ".. VIN DOUX NATUREL  5", ".. JAUNE ........... 6", ".. PAILLE .......... 7",
                  ".. MOUSSEUX ........ 8", ".. GRIS ............ 9", "... Total .......... 45"));
}

TEST_F(RapportEntier, VaVinParVinDansLOrdreAlphabetiquePuisAdditionne) {
  b.AjouteVin(VinEnCave("Échézeaux"_1252, {0, 5}, 3));
  b.AjouteVin(VinEnCave("fleurie", {0, 7}, 4));
  b.AjouteVin(VinEnCave("Eguisheim", {2, 0, 1}, 5));
  b.Demarre();
  EXPECT_THAT(
      Lignes(),
      ElementsAre("ÉCHÉZEAUX - Région d'origine : Région 003", ".. Rouge ........... 5",
                  "... Total .......... 5", " ", "EGUISHEIM - Région d'origine : Région 005",
                  ".. Blanc ........... 2", ".. Rosé ............ 1", "... Total .......... 3", " ",
                  "FLEURIE - Région d'origine : Région 004", ".. Rouge ........... 7",
                  "... Total .......... 7", " ", "Nombre total de bouteilles dans ma cave",
                  ".. BLANC ........... 2", ".. ROUGE ........... 12", ".. ROSÉ ............ 1",
                  "... Total .......... 15"));
}

TEST_F(RapportEntier, DeuxVinsDuMemeNomOntChacunLeurPlaceDansLOrdreDesFiches) {
  b.AjouteVin(VinEnCave("Abymes", {1}, 3));
  b.AjouteVin(VinEnCave("Abymes", {2}, 4));
  b.Demarre();
  const std::vector<std::string> lignes = Lignes();
  ASSERT_EQ(lignes.size(), 11U);
  EXPECT_EQ(lignes[0], "ABYMES - Région d'origine : Région 003");
  EXPECT_EQ(lignes[4], "ABYMES - Région d'origine : Région 004");
}

TEST_F(RapportEntier, RogneLesNomsEtNeMetQueLeVinEnCapitales) {
  const std::int32_t region = b.AjouteRegion("  Pays de l'été "_1252);
  b.AjouteVin(VinEnCave("  Cœur d'çà œnologique ÿ "_1252, {1}, region));
  b.Demarre();
  EXPECT_EQ(Lignes().front(), "CŒUR D'ÇÀ ŒNOLOGIQUE Ÿ - Région d'origine : Pays de l'été");
}

TEST_F(RapportEntier, ALesOctetsExactsDeSaPremiereLigne) {
  b.AjouteVin(VinEnCave("Crépy"_1252, {0, 0, 1}));
  b.Demarre();
  const std::vector<std::string> lignes = LignesDuRapport(*b.module, VinsEnCave(*b.module));
  EXPECT_EQ(lignes[0], "CR\xC9PY - R\xE9gion d'origine : R\xE9gion 002");
  EXPECT_EQ(lignes[1], ".. Ros\xE9 ............ 1");
  EXPECT_EQ(lignes[5], ".. ROS\xC9 ............ 1");
}

TEST_F(RapportEntier, UnNomDeSoixanteQuatreCaracteresYEstEntier) {
  b.AjouteVin(VinEnCave(std::string(64, 'v'), {1}, b.AjouteRegion(std::string(64, 'r'))));
  b.Demarre();
  EXPECT_EQ(Lignes().front(),
            std::string(64, 'V') + " - Région d'origine : " + std::string(64, 'r'));
}

TEST_F(RapportEntier, UnTotalDepasseCeQuUnNombreTient) {
  b.AjouteVin(VinEnCave("Abymes", {32767, 32767, 32767, 32767, 32767, 32767, 32767, 32767, 32767}));
  b.AjouteVin(VinEnCave("Brouilly", {32767}));
  b.Demarre();
  const std::vector<std::string> lignes = Lignes();
  EXPECT_EQ(lignes[1], ".. Blanc ........... 32767");
  EXPECT_EQ(lignes[10], "... Total .......... 294903");
  EXPECT_EQ(lignes[17], ".. BLANC ........... 65534");
  EXPECT_EQ(lignes[18], ".. ROUGE ........... 32767");
  EXPECT_EQ(lignes.back(), "... Total .......... 327670");
}

// A count below 0 can only come from a damaged file; it has no line and takes nothing off.
TEST_F(RapportEntier, UnNombreNegatifNeCompteEnRien) {
  b.AjouteVin(VinEnCave("Abymes", {-32768, 4, -1}));
  b.Demarre();
  EXPECT_THAT(Lignes(),
              ElementsAre("ABYMES - Région d'origine : Région 002", ".. Rouge ........... 4",
                          "... Total .......... 4", " ", "Nombre total de bouteilles dans ma cave",
                          ".. ROUGE ........... 4", "... Total .......... 4"));
}

TEST_F(RapportEntier, UnVinDUneRegionSupprimeeLaNommeEncore) {
  DemarreSurAbymes();
  RecRegion region = FicheRegion(b, 29);
  region.actif = 0;
  b.module->bufRegion.Ecrit(29, region);
  EXPECT_EQ(Lignes().front(), "ABYMES - Région d'origine : Alpes");
}

TEST_F(RapportEntier, UneRegionAuDelaDuFichierSeLitEnZeros) {
  DemarreAvec([](RecVin& vin) { vin.idRegion = 2'000'000'000; });
  EXPECT_EQ(Lignes().front(), "ABYMES - Région d'origine : " + std::string(64, '\0'));
}

TEST_F(RapportEntier, UneRegionSansNumeroPossibleEstUnePanne) {
  AjouteAbymes(b);
  b.Demarre();
  for (const std::int32_t region : {0, -1}) {
    b.module->bufVin.Ecrit(565, VinEnCave("Abymes", {1}, region));
    EXPECT_EQ(PanneDe([&] {
                LignesDuRapport(*b.module, {{"Abymes", 565}});
              }),
              Panne::numeroEnregistrement);
  }
}

TEST_F(RapportEntier, UneLectureQuiEchoueEstUnePanne) {
  for (const char* fichier : {"GLV1.DAT", "GLV2.DAT"}) {
    Bibliotheque avec;
    GarnitAvecAbymes(avec);
    avec.Demarre();
    const Liste vins = VinsEnCave(*avec.module);
    avec.disque.EchoueSur(std::string("lit ") + fichier, Panne::entreeSortie);
    EXPECT_EQ(PanneDe([&] { LignesDuRapport(*avec.module, vins); }), Panne::entreeSortie);
  }
}

TEST_F(RapportEntier, LaisseLeDernierVinEtSaRegionDansLesFichesDeTravail) {
  AjouteAbymes(b);
  b.AjouteVin(VinEnCave("Brouilly", {1}, 28));
  b.Demarre();
  LignesDuRapport(*b.module, {{"Brouilly", 566}, {"Abymes", 565}});
  EXPECT_EQ(Octets(b.module->bufVin.courant()), Octets(FicheVin(b, 565)));
  EXPECT_EQ(RegionCourante(), "Alpes");
}

TEST_F(RapportEntier, NeDemandeNiNEcritAucunFichier) {
  DemarreSurAbymes();
  LignesDuRapport(*b.module, {{"Abymes", 565}});
  // Each file by its block: 630 wines, 992 regions.
  EXPECT_THAT(b.disque.journal(), ElementsAre("lit GLV2.DAT 0+65520", "lit GLV1.DAT 0+65472"));
}

/// So many wines with all that their records hold, and one more of `enPlus` white bottles.
class TotalGeneral : public CoeurVins {
 protected:
  std::vector<std::string> RapportAvec(std::int16_t enPlus) {
    constexpr std::size_t pleins = 7282;  // of 294,903 bottles each: one less than 32 bits hold
    b.Demarre();
    Bouteilles toutes;
    toutes.fill(32767);
    b.module->bufVin.Ecrit(2, VinEnCave("Plein", toutes));
    b.module->bufVin.Ecrit(3, VinEnCave("Reste", {enPlus}));
    Liste vins(pleins, EntreeListe{"Plein", 2});
    vins.push_back({"Reste", 3});
    return LignesDuRapport(*b.module, vins);
  }
};

TEST_F(TotalGeneral, VaJusquAuPlusGrandNombre) {
  EXPECT_EQ(RapportAvec(1).back(), "... Total .......... 2147483647");
}

TEST_F(TotalGeneral, AuDelaEstUnePanne) {
  EXPECT_EQ(PanneDe([&] { RapportAvec(2); }), Panne::depassement);
}

}  // namespace
}  // namespace gastrelle::essai
