// The start of the program: what it restores, in which order, what it leaves ready.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Depart.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t restaurables = static_cast<std::size_t>(Donnees::GLPREF);

class Demarrage : public testing::Test {
 protected:
  /// The factory's bytes as a start on `date` restores them.
  [[nodiscard]] std::string Restaure(Donnees fichier, std::chrono::year_month_day date) const {
    std::string octets = b.dossier.Lit(NomFabrique(fichier));
    if (fichier == Donnees::GLR2) {
      auto entete = Enregistrement<RecRecette>(b.dossier, "GLR2.stp", 1);
      entete.idFamille = NumeroJour(date);
      octets.replace(0, 150, Octets(entete));
    }
    return octets;
  }

  Bibliotheque b;
};

TEST_F(Demarrage, RestaureLesDixNeufFichiersEtNeDateQueLesRecettes) {
  b.Demarre();
  for (std::size_t i = 0; i < restaurables; ++i) {
    const auto fichier = static_cast<Donnees>(i);
    EXPECT_EQ(b.dossier.Lit(Nom(fichier)), Restaure(fichier, b.horloge.date)) << Nom(fichier);
  }
  EXPECT_EQ(Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", 1).idFamille, 46347);
}

TEST_F(Demarrage, NeChangeRienAuDepartSuivant) {
  b.Demarre();
  const auto hier = b.horloge.date;
  b.horloge.date = std::chrono::year{2027} / 1 / 1;
  b.module = nullptr;
  b.Redemarre();
  EXPECT_EQ(b.dossier.Lit("GLR2.DAT"), Restaure(Donnees::GLR2, hier));
}

TEST_F(Demarrage, NEcritRienQuandToutEstLa) {
  b.Demarre();
  b.module = nullptr;
  b.Redemarre();
  b.disque.OublieJournal();
  b.Redemarre();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Demarrage, NeRestaureQueLeFichierQuiManque) {
  b.Demarre();
  b.AjouteFamille("Sauces");
  b.dossier.Supprime("GLR2.DAT");
  b.dossier.Supprime("GLM2.DAT");
  const std::string familles = b.dossier.Lit("GLR1.DAT");
  b.horloge.date = std::chrono::year{2027} / 1 / 1;
  b.Redemarre();
  EXPECT_EQ(b.dossier.Lit("GLR1.DAT"), familles);
  EXPECT_EQ(b.dossier.Lit("GLR2.DAT"), Restaure(Donnees::GLR2, b.horloge.date));
  EXPECT_EQ(b.dossier.Lit("GLM2.DAT"), "GLM2.DAT");
}

TEST_F(Demarrage, SePasseDesCopiesDeFabriqueDesFichiersPresents) {
  b.Demarre();
  for (std::size_t i = 0; i < restaurables; ++i) {
    b.dossier.Supprime(NomFabrique(static_cast<Donnees>(i)));
  }
  b.Redemarre();
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Demarrage, OuvreLesVingtFichiersDansLOrdre) {
  ASSERT_TRUE(Essaie(b).cadre);
  std::vector<std::string> ouverts;
  for (const std::string& ligne : b.disque.journal()) {
    if (ligne.starts_with("ouvre ")) {
      ouverts.push_back(ligne.substr(6));
    }
  }
  EXPECT_THAT(ouverts,
              ElementsAre("GLR1.DAT", "GLR2.DAT", "GLR3.DAT", "GLR4.DAT", "GLF1.DAT", "GLF2.DAT",
                          "GLM1.DAT", "GLM2.DAT", "GLV1.DAT", "GLV2.DAT", "GLV3.DAT", "GLMV.DAT",
                          "GLT1.DAT", "GLT2.DAT", "GLFV1.DAT", "GLFV2.DAT", "GLFV3.DAT", "GLMC.DAT",
                          "GLMCN.DAT", "GLPREF.DAT"));
}

TEST_F(Demarrage, CopieOuvreDatePuisVerifieLesRecettes) {
  ASSERT_TRUE(Essaie(b).cadre);
  const auto& journal = b.disque.journal();
  const auto debut = std::find(journal.begin(), journal.end(), "existe GLR2.DAT");
  EXPECT_THAT(std::vector(debut, debut + 8),
              ElementsAre("existe GLR2.DAT", "existe GLR2.stp", "copie GLR2.stp GLR2.DAT",
                          "ouvre GLR2.DAT", "lit GLR2.DAT 0+150", "écrit GLR2.DAT 0+150",
                          "lit GLR2.DAT 0+150", "existe GLR3.DAT"));
}

TEST_F(Demarrage, LitLesCoursesPuisLesPreferencesPuisFaitLeDossierDesImages) {
  ASSERT_TRUE(Essaie(b).cadre);
  const auto& journal = b.disque.journal();
  const auto debut = std::find(journal.begin(), journal.end(), "lit GLMCN.DAT 0+9");
  ASSERT_EQ(journal.end() - debut, 1 + 15 + 3 + 2);
  EXPECT_EQ(debut[1], "lit GLMC.DAT 0+8");
  EXPECT_EQ(debut[15], "lit GLMC.DAT 112+8");
  EXPECT_THAT(std::vector(debut + 16, journal.end()),
              ElementsAre("existe GLPREF.DAT", "ouvre GLPREF.DAT", "écrit GLPREF.DAT 0+6",
                          "dossier? IMAGE", "crée IMAGE"));
}

TEST_F(Demarrage, NeLitRienDesMillesimes) {
  b.dossier.Ecrit("GLMV.DAT", "");
  ASSERT_TRUE(Essaie(b).cadre);
  EXPECT_THAT(b.disque.journal(), testing::Not(testing::Contains(testing::StartsWith("lit GLMV"))));
  EXPECT_EQ(b.dossier.Lit("GLMV.DAT"), "");
}

TEST_F(Demarrage, LaisseOuvertsTousLesFichiersSaufLesTextesDesCourses) {
  b.Demarre();
  for (std::size_t i = 0; i < nombreFichiers; ++i) {
    const auto fichier = static_cast<Donnees>(i);
    EXPECT_EQ(b.module->Place(fichier) != nullptr, fichier != Donnees::GLMCN) << Nom(fichier);
  }
}

TEST_F(Demarrage, LaisseLesEnTetesEnMemoire) {
  b.Demarre();
  EXPECT_EQ(b.module->bufFamille.nbActifs(), 1);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 1);
  EXPECT_EQ(b.module->bufFromage.nbActifs(), 122);
  EXPECT_EQ(b.module->bufMenu.nbActifs(), 15);
  EXPECT_EQ(b.module->bufRegion.nbActifs(), 27);
  EXPECT_EQ(b.module->bufVin.nbActifs(), 563);
  EXPECT_EQ(b.module->bufTruc.nbActifs(), 167);
  EXPECT_EQ(b.module->bufCategorie.nbActifs(), 3);
  EXPECT_EQ(b.module->bufFavori.nbActifs(), 14);
}

TEST_F(Demarrage, TientLeSablierJusquAuCadre) {
  bool sablier = false;
  Main(*b.module, false, [&] { sablier = b.pointeur.sablier; });
  EXPECT_TRUE(sablier);
  EXPECT_TRUE(b.pointeur.sablier);
}

TEST_F(Demarrage, AttendLaPremiereOuvertureEtNommeLAide) {
  b.module->premiereOuverture = false;
  b.Demarre();
  EXPECT_TRUE(b.module->premiereOuverture);
  EXPECT_FALSE(b.module->erreurFatale);
  EXPECT_EQ(b.module->fichierAide, b.module->chemins.De("gl32.hlp"));
}

TEST_F(Demarrage, FaitLeDossierDesImagesACoteDuProgramme) {
  b.Demarre();
  EXPECT_TRUE(std::filesystem::is_directory(b.dossier.chemin() / "IMAGE"));
}

TEST_F(Demarrage, LaisseLesImagesQuiSontLa) {
  b.Demarre();
  b.dossier.Ecrit("IMAGE/soupe.jpg", "octets");
  b.Redemarre();
  EXPECT_EQ(b.dossier.Lit("IMAGE/soupe.jpg"), "octets");
}

TEST_F(Demarrage, EchoueSansCadreNiMessageQuandLeDossierDesImagesNePeutPasNaitre) {
  b.disque.EchoueSur("crée IMAGE", Panne::permissionRefusee);
  const Depart depart = Essaie(b);
  EXPECT_FALSE(depart.cadre);
  EXPECT_EQ(depart.erreur, Panne::permissionRefusee);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Demarrage, CreeDesPreferencesDeSixZeros) {
  b.module->prefs[0] = {1, 1, 1};
  b.Demarre();
  EXPECT_EQ(b.dossier.Lit("GLPREF.DAT"), std::string(6, '\0'));
  EXPECT_EQ(Octets(b.module->prefs[0]), std::string(6, '\0'));
}

TEST_F(Demarrage, LitLesPreferencesTellesQuEllesSont) {
  b.dossier.Ecrit("GLPREF.DAT", std::string("\1\0\xFF\xFF\0\2", 6));
  b.Demarre();
  EXPECT_EQ(b.module->prefs[0].fenetreNormale, 1);
  EXPECT_EQ(b.module->prefs[0].policeGrande, -1);
  EXPECT_EQ(b.module->prefs[0].sansCopie, 512);
  EXPECT_EQ(b.dossier.Lit("GLPREF.DAT"), std::string("\1\0\xFF\xFF\0\2", 6));
}

TEST_F(Demarrage, CompleteParDesZerosDesPreferencesTropCourtes) {
  b.dossier.Ecrit("GLPREF.DAT", std::string("\1\0\1", 3));
  b.Demarre();
  EXPECT_EQ(Octets(b.module->prefs[0]), std::string("\1\0\1\0\0\0", 6));
}

TEST_F(Demarrage, SePasseDePreferencesQuiNePeuventNaitre) {
  b.disque.EchoueSur("ouvre GLPREF.DAT", Panne::permissionRefusee);
  b.module->prefs[0] = {1, 1, 1};
  EXPECT_TRUE(Essaie(b).cadre);
  EXPECT_EQ(Octets(b.module->prefs[0]), std::string(6, '\0'));
  EXPECT_EQ(b.module->Place(Donnees::GLPREF), nullptr);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Demarrage, SePasseDePreferencesIllisiblesEtLesLaisse) {
  b.dossier.Ecrit("GLPREF.DAT", std::string("\1\0\1\0\1\0", 6));
  b.disque.EchoueSur("lit GLPREF.DAT", Panne::entreeSortie);
  EXPECT_TRUE(Essaie(b).cadre);
  EXPECT_EQ(Octets(b.module->prefs[0]), std::string(6, '\0'));
  EXPECT_EQ(b.module->Place(Donnees::GLPREF), nullptr);
  EXPECT_EQ(b.dossier.Lit("GLPREF.DAT"), std::string("\1\0\1\0\1\0", 6));
}

TEST_F(Demarrage, PrendUnDossierALaPlaceDesPreferencesPourInutilisable) {
  std::filesystem::create_directory(b.dossier.chemin() / "GLPREF.DAT");
  EXPECT_TRUE(Essaie(b).cadre);
  EXPECT_EQ(b.module->Place(Donnees::GLPREF), nullptr);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
