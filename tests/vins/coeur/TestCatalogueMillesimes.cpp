// The vintage chart on file: its areas and grades, what is read of it, the bytes after each
// operation, and what survives a failure.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "vins/MillesimesEssai.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr Classement unADix{1, 2, 3, 4, 5, 0, 1, 2, 3};

class CatalogueDesMillesimes : public testing::Test {
 protected:
  /// Starts on the bytes of a file.
  void Demarre(const std::string& octets) {
    b.dossier.Ecrit("GLMV.DAT", octets);
    b.Demarre();
  }
  void DemarreGarni(int annees = 95) {
    b.GarnitMillesimes(annees);
    b.Demarre();
  }

  Bibliotheque b;
};

TEST(TableDesMillesimes, LesCrusSuiventLesChampsDeLEnregistrement) {
  std::vector<std::string> noms;
  RecMillesime annee;
  std::int16_t valeur = 0;
  for (const Cru& cru : crus) {
    noms.push_back(VersUtf8(cru.nom));
    annee.*cru.degre = ++valeur;
  }
  EXPECT_THAT(noms, ElementsAre("Bordeaux rouges", "Bordeaux blancs", "Bourgognes rouges",
                                "Bourgognes blancs", "Crus des Côtes du Rhône", "Alsace",
                                "Pouilly sur Loire / Sancerre", "Anjou / Touraine / Muscadet",
                                "Crus du Beaujolais"));
  EXPECT_EQ(Octets(annee), std::string("\1\0\2\0\3\0\4\0\5\0\6\0\7\0\10\0\11\0", 18));
}

TEST(TableDesMillesimes, LeDegreCinqALibelleEtEnteteDifferents) {
  std::vector<std::string> choix;
  std::vector<std::string> entetes;
  for (const Degre& degre : degres) {
    choix.push_back(VersUtf8(degre.choix));
    entetes.push_back(VersUtf8(degre.entete));
  }
  EXPECT_THAT(choix, ElementsAre("Non classé", "Petite année", "Année moyenne", "Bonne année",
                                 "Grande année", "Exceptionnel"));
  EXPECT_THAT(entetes, ElementsAre("Non classé", "Petite année", "Année moyenne", "Bonne année",
                                   "Grande année", "Exceptionnelle"));
}

TEST(TableDesMillesimes, LeNumeroDitLAnnee) {
  EXPECT_EQ(Annee(1), 1928);
  EXPECT_EQ(Annee(96), 2023);
}

TEST(TableDesMillesimes, LesDegresVontDeZeroACinq) {
  EXPECT_FALSE(EstUnDegre(-1));
  EXPECT_TRUE(EstUnDegre(0));
  EXPECT_TRUE(EstUnDegre(5));
  EXPECT_FALSE(EstUnDegre(6));
}

TEST_F(CatalogueDesMillesimes, ListeLesDegresDUnCruDepuis1928) {
  DemarreGarni(8);
  EXPECT_THAT(DegresDuCru(*b.module, 0), ElementsAre(0, 1, 2, 3, 4, 5, 0, 1));
  EXPECT_THAT(DegresDuCru(*b.module, 8), ElementsAre(2, 3, 4, 5, 0, 1, 2, 3));
}

TEST_F(CatalogueDesMillesimes, LaListeNeChangeRienSurLeDisque) {
  DemarreGarni();
  static_cast<void>(DegresDuCru(*b.module, 3));
  EXPECT_EQ(b.disque.journal().front(), "existe GLMV.DAT");
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(CatalogueDesMillesimes, LaListeLaisseLaDerniereAnneeDansLEnregistrementDeTravail) {
  DemarreGarni(8);
  static_cast<void>(DegresDuCru(*b.module, 0));
  EXPECT_THAT(AnneeLue(*b.module), ElementsAre(1, 2, 3, 4, 5, 0, 1, 2, 3));
}

TEST_F(CatalogueDesMillesimes, UneValeurHorsDeLEchelleNEstPasClassee) {
  constexpr std::array<std::int16_t, 7> valeurs{-32768, -1, 0, 1, 5, 6, 32767};
  std::string octets;
  for (const std::int16_t valeur : valeurs) {
    octets += Octets(Fiche({valeur}));
  }
  Demarre(octets);
  EXPECT_THAT(DegresDuCru(*b.module, 0), ElementsAre(0, 0, 0, 1, 5, 0, 0));
}

TEST_F(CatalogueDesMillesimes, UneSeuleAnneeSuffit) {
  Demarre(AnneesVides(1));
  EXPECT_EQ(NombreAnnees(*b.module), 1);
  EXPECT_THAT(DegresDuCru(*b.module, 0), SizeIs(1));
}

TEST_F(CatalogueDesMillesimes, CompteLesAnneesEntieres) {
  Demarre(std::string(32'000, '\0'));
  EXPECT_EQ(NombreAnnees(*b.module), 1777);
  EXPECT_THAT(DegresDuCru(*b.module, 0), SizeIs(1777));
}

TEST_F(CatalogueDesMillesimes, MoinsDUneAnneeEstUnFichierIntrouvable) {
  for (const std::size_t octets : {0U, 1U, 17U}) {
    b.dossier.Ecrit("GLMV.DAT", std::string(octets, '\0'));
    b.Redemarre();
    EXPECT_EQ(NombreAnnees(*b.module), 0);
    EXPECT_EQ(PanneDe([&] { static_cast<void>(DegresDuCru(*b.module, 0)); }),
              Panne::fichierIntrouvable)
        << octets;
    EXPECT_THAT(b.messages.vus, IsEmpty());
  }
}

TEST_F(CatalogueDesMillesimes, PlusDAnneesQueNulleCarteEstUnePanneSansRienLire) {
  Demarre(AnneesVides(1));
  std::filesystem::resize_file(b.dossier.chemin() / "GLMV.DAT", 1'000'001 * longueurAnnee);
  EXPECT_EQ(PanneDe([&] { static_cast<void>(DegresDuCru(*b.module, 0)); }),
            Panne::memoireInsuffisante);
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLMV.DAT", "longueur GLMV.DAT"));
}

TEST_F(CatalogueDesMillesimes, LitUneAnneeParSonNumero) {
  DemarreGarni();
  EXPECT_THAT(LitAnnee(*b.module, 2), ElementsAre(1, 2, 3, 4, 5, 0, 1, 2, 3));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLMV.DAT", "lit GLMV.DAT 18+18"));
  EXPECT_EQ(AnneeLue(*b.module), unADix);
}

TEST_F(CatalogueDesMillesimes, LitAussiCeQuiNEstPasUnDegre) {
  Demarre(Octets(Fiche({-1, 6, 0, 0, 0, 0, 0, 0, 32767})));
  EXPECT_THAT(LitAnnee(*b.module, 1), ElementsAre(-1, 6, 0, 0, 0, 0, 0, 0, 32767));
}

TEST_F(CatalogueDesMillesimes, AjouteALaFinEtNEcritRienDAutre) {
  DemarreGarni();
  const std::string avant = b.dossier.Lit("GLMV.DAT");
  AjouteAnnee(*b.module, unADix);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLMV.DAT", "longueur GLMV.DAT", "écrit GLMV.DAT 1710+18"));
  EXPECT_EQ(b.dossier.Lit("GLMV.DAT"), avant + Octets(Fiche(unADix)));
  EXPECT_EQ(NombreAnnees(*b.module), 96);
}

TEST_F(CatalogueDesMillesimes, UnMorceauDAnneeALaFinEstRecouvertParLAjout) {
  Demarre(AnneesVides(2) + "reste");
  AjouteAnnee(*b.module, unADix);
  EXPECT_EQ(b.dossier.Lit("GLMV.DAT"), AnneesVides(2) + Octets(Fiche(unADix)));
}

TEST_F(CatalogueDesMillesimes, ChangeUneAnneeASaPlaceEtNEcritRienDAutre) {
  DemarreGarni();
  std::string attendu = b.dossier.Lit("GLMV.DAT");
  attendu.replace(longueurAnnee, longueurAnnee, AnneesVides(1));
  ChangeAnnee(*b.module, 2, {});
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLMV.DAT", "écrit GLMV.DAT 18+18"));
  EXPECT_EQ(b.dossier.Lit("GLMV.DAT"), attendu);
}

TEST_F(CatalogueDesMillesimes, LeFichierDisparuEstDitAvantTouteLectureOuEcriture) {
  const std::vector<std::function<void(Module1&)>> operations{
      [](Module1& module) { static_cast<void>(DegresDuCru(module, 0)); },
      [](Module1& module) { static_cast<void>(LitAnnee(module, 1)); },
      [](Module1& module) { AjouteAnnee(module, unADix); },
      [](Module1& module) { ChangeAnnee(module, 1, unADix); },
  };
  DemarreGarni();
  b.dossier.Supprime("GLMV.DAT");
  for (const auto& operation : operations) {
    b.messages.vus.clear();
    b.disque.OublieJournal();
    EXPECT_EQ(PanneDe([&] { operation(*b.module); }), Panne::fichierIntrouvable);
    EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLMV.DAT")));
    EXPECT_THAT(b.disque.journal(), Each(StartsWith("existe")));
  }
}

TEST_F(CatalogueDesMillesimes, UneLectureQuiEchoueEstUnePanneOuQuElleSoit) {
  DemarreGarni();
  for (const std::size_t appel : {1U, 2U, 3U, 4U, 5U}) {
    b.disque.EchoueALAppel(appel, Panne::entreeSortie);
    const bool existence = appel == 1;
    EXPECT_EQ(PanneDe([&] { static_cast<void>(DegresDuCru(*b.module, 0)); }),
              existence ? Panne::fichierIntrouvable : Panne::entreeSortie)
        << appel;
    b.disque.Guerit();
  }
}

TEST_F(CatalogueDesMillesimes, UnAjoutQuiEchoueLaisseLesAnneesDAvant) {
  EchoueAChaqueEcriture(
      1, [](Bibliotheque& avec) { avec.GarnitMillesimes(3); },
      [](Bibliotheque& avec) { AjouteAnnee(*avec.module, unADix); },
      [](Bibliotheque& avec, std::size_t, Maniere maniere) {
        const std::string apres = avec.dossier.Lit("GLMV.DAT");
        EXPECT_EQ(apres.substr(0, 3 * longueurAnnee), avec.dossier.Lit("GLMV.stp"));
        EXPECT_EQ(apres.size(), maniere == Maniere::rienFait ? 54U : 63U);
        EXPECT_EQ(NombreAnnees(*avec.module), 3);  // half a year is none
      });
}

TEST_F(CatalogueDesMillesimes, UnChangementQuiEchoueNeToucheQueSonAnnee) {
  EchoueAChaqueEcriture(
      1, [](Bibliotheque& avec) { avec.GarnitMillesimes(3); },
      [](Bibliotheque& avec) { ChangeAnnee(*avec.module, 2, {}); },
      [](Bibliotheque& avec, std::size_t, Maniere maniere) {
        const std::string avant = avec.dossier.Lit("GLMV.stp");
        std::string attendu = avant;
        if (maniere == Maniere::moitieEcrite) {
          attendu.replace(longueurAnnee, longueurAnnee / 2, longueurAnnee / 2, '\0');
        }
        EXPECT_EQ(avec.dossier.Lit("GLMV.DAT"), attendu);
      });
}

}  // namespace
}  // namespace gastrelle::essai
