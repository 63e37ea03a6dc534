// The aisle texts: read once at the start, rewritten whole at the end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Courses.h"
#include "doublures/Depart.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string Rayon(std::int32_t position, std::int32_t longueur) {
  return Octets(LigneRayon{position, longueur});
}

class Courses : public testing::Test {
 protected:
  /// The fifteen rows: those given, by aisle, and empty ones.
  static std::string Annuaire(const std::map<std::size_t, std::string>& lignes) {
    std::string octets;
    for (std::size_t i = 0; i < nombreRayons; ++i) {
      const auto ligne = lignes.find(i);
      octets += ligne == lignes.end() ? Rayon(0, 0) : ligne->second;
    }
    return octets;
  }

  /// Starts the program over these two files.
  void Demarre(const std::string& annuaire, const std::string& textes) {
    b.dossier.Ecrit("GLMC.DAT", annuaire);
    b.dossier.Ecrit("GLMCN.DAT", textes);
    b.Demarre();
  }

  Bibliotheque b;
};

TEST_F(Courses, SeLisentParPositionEtLongueur) {
  Demarre(Annuaire({{0, Rayon(13, 4)}, {14, Rayon(10, 3)}}), "GLMCN.DATselporc");
  EXPECT_EQ(b.module->texteRayon[0], "porc");
  EXPECT_EQ(b.module->texteRayon[14], "sel");
  EXPECT_EQ(b.module->indexRayon[0].posTexte, 13);
  EXPECT_EQ(b.module->indexRayon[0].lgTexte, 4);
  EXPECT_EQ(b.module->texteRayon[1], "");
}

TEST_F(Courses, SontVidesALaPositionZeroQuelleQueSoitLaLongueur) {
  Demarre(Annuaire({{3, Rayon(0, 5)}}), "GLMCN.DATtruite");
  EXPECT_EQ(b.module->texteRayon[3], "");
  EXPECT_EQ(b.module->indexRayon[3].lgTexte, 5);
}

TEST_F(Courses, RemplacentCeQuiEtaitEnMemoire) {
  b.module->texteRayon[2] = "ancien";
  b.Demarre();
  EXPECT_EQ(b.module->texteRayon[2], "");
}

TEST_F(Courses, LisentCeQuIlYADUnTexteTronque) {
  Demarre(Annuaire({{3, Rayon(10, 500)}, {4, Rayon(900, 3)}}), "GLMCN.DATtruite");
  EXPECT_EQ(b.module->texteRayon[3], "truite");
  EXPECT_EQ(b.module->texteRayon[4], "");
}

TEST_F(Courses, AcceptentUnAnnuaireVideOuQuelconque) {
  Demarre("", "GLMCN.DATtruite");
  EXPECT_THAT(b.module->texteRayon, testing::Each(""));
  b.module->Place(Donnees::GLMC).reset();
  b.dossier.Ecrit("GLMC.DAT", std::string(120, '\x7F'));
  b.Redemarre();
  EXPECT_THAT(b.module->texteRayon, testing::Each(""));
}

TEST_F(Courses, SeLisentJusquAPlusieursMegaoctets) {
  const std::string gros(6'000'000, 'x');
  Demarre(Annuaire({{0, Rayon(10, 6'000'000)}, {14, Rayon(6'000'010, 3)}}),
          "GLMCN.DAT" + gros + "sel");
  EXPECT_EQ(b.module->texteRayon[0], gros);
  EXPECT_EQ(b.module->texteRayon[14], "sel");
}

/// Each row alone can be read; together they would fill the memory.
TEST_F(Courses, RefusentDesLignesQuiSeRecouvrent) {
  std::map<std::size_t, std::string> lignes;
  for (std::size_t i = 0; i < nombreRayons; ++i) {
    lignes[i] = Rayon(1, Reserve::plafond);
  }
  b.dossier.Ecrit("GLMC.DAT", Annuaire(lignes));
  b.dossier.Ecrit("GLMCN.DAT", "GLMCN.DAT");
  std::filesystem::resize_file(b.dossier.chemin() / "GLMCN.DAT", std::int64_t{1} << 31);
  const Depart depart = Essaie(b);
  EXPECT_FALSE(depart.cadre);
  EXPECT_EQ(depart.fin, 1);
  EXPECT_EQ(b.messages.vus.at(0).texte,
            "Fichier\r\n" + b.module->chemins.De("GLMCN.DAT") + "\r\n" +
                std::string("non trouvé ou incompatible ou erreur disque."_1252));
}

TEST_F(Courses, RefusentUnePositionOuUneLongueurNegative) {
  for (const std::string& ligne : {Rayon(-1, 3), Rayon(10, -1)}) {
    Bibliotheque abimee;
    abimee.dossier.Ecrit("GLMC.DAT", Annuaire({{7, ligne}}));
    EXPECT_EQ(Essaie(abimee).fin, 1);
    EXPECT_THAT(abimee.messages.vus, ElementsAre(TroisLignes(abimee, "GLMCN.DAT")));
  }
}

TEST_F(Courses, FermentLesTextesEtGardentLAnnuaireOuvert) {
  b.Demarre();
  EXPECT_EQ(b.module->Place(Donnees::GLMCN), nullptr);
  EXPECT_NE(b.module->Place(Donnees::GLMC), nullptr);
}

TEST_F(Courses, SeReecriventBoutABoutDansLOrdreDesRayons) {
  b.Demarre();
  b.module->texteRayon[0] = "r\xF4ti\r\n";
  b.module->texteRayon[9] = "thon";
  SauveCourses(*b.module);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATr\xF4ti\r\nthon");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), Annuaire({{0, Rayon(10, 6)}, {9, Rayon(16, 4)}}));
}

TEST_F(Courses, SeReecriventVidesEnNeufOctets) {
  Demarre(Annuaire({{3, Rayon(10, 6)}}), "GLMCN.DATtruite");
  b.module->texteRayon[3].clear();
  SauveCourses(*b.module);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DAT");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), std::string(120, '\0'));
}

TEST_F(Courses, MettentLeDernierRayonSeulALaPosition10) {
  b.Demarre();
  b.module->texteRayon[14] = "sel";
  SauveCourses(*b.module);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATsel");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), Annuaire({{14, Rayon(10, 3)}}));
}

TEST_F(Courses, NeGardentJamaisDeTexteMort) {
  Demarre(Annuaire({{3, Rayon(10, 6)}}), "GLMCN.DATtruiteet bien d'autres octets");
  SauveCourses(*b.module);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATtruite");
}

TEST_F(Courses, EcriventLeTextePuisSaLigne) {
  b.Demarre();
  b.module->texteRayon[1] = "jambon";
  SauveCourses(*b.module);
  std::vector<std::string> attendu{
      "supprime GLMCN.DAT", "ouvre GLMCN.DAT",     "écrit GLMCN.DAT 0+9", "écrit GLMC.DAT 0+8",
      "longueur GLMCN.DAT", "écrit GLMCN.DAT 9+6", "écrit GLMC.DAT 8+8"};
  for (std::size_t i = 2; i < nombreRayons; ++i) {
    attendu.push_back("écrit GLMC.DAT " + std::to_string(8 * i) + "+8");
  }
  EXPECT_EQ(b.disque.journal(), attendu);
}

TEST_F(Courses, SeRetrouventAuDepartSuivant) {
  b.Demarre();
  b.module->texteRayon[1] = "jambon";
  b.module->texteRayon[14] = "allumettes";
  SauveCourses(*b.module);
  const auto textes = b.module->texteRayon;
  b.Redemarre();
  EXPECT_EQ(b.module->texteRayon, textes);
}

/// A failure at one of the calls of the rewriting.
class CoursesManquees : public Courses {
 protected:
  /// Rewrites "jambon" and "sel" over an older list, the n-th call failing; returns the journal.
  static std::vector<std::string> Sauve(Bibliotheque& b, std::size_t n, Maniere maniere) {
    b.dossier.Ecrit("GLMC.DAT", ancien);
    b.dossier.Ecrit("GLMCN.DAT", "GLMCN.DATtruite");
    b.Demarre();
    b.module->texteRayon[1] = "jambon";
    b.module->texteRayon[3] = "sel";
    if (n > 0) {
      b.disque.EchoueALAppel(n, Panne::disquePlein, maniere);
    }
    SauveCourses(*b.module);
    b.disque.Guerit();
    return b.disque.journal();
  }

  static inline const std::string ancien = Annuaire({{3, Rayon(10, 6)}});
};

TEST_F(CoursesManquees, AbandonnentLeResteSansUnMotAChaqueAppel) {
  const std::vector<std::string> complet = Sauve(b, 0, Maniere::rienFait);
  ASSERT_EQ(complet.size(), 22U);
  for (std::size_t n = 1; n <= complet.size(); ++n) {
    for (const Maniere maniere : {Maniere::rienFait, Maniere::moitieEcrite}) {
      Bibliotheque autre;
      const std::vector<std::string> journal = Sauve(autre, n, maniere);
      EXPECT_EQ(journal, std::vector(complet.begin(), complet.begin() + static_cast<int>(n)));
      EXPECT_THAT(autre.messages.vus, IsEmpty());
      EXPECT_EQ(autre.messages.bips, 0);
      EXPECT_FALSE(autre.module->erreurFatale);
    }
  }
}

TEST_F(CoursesManquees, GardentToutQuandLaSuppressionEchoue) {
  Sauve(b, 1, Maniere::rienFait);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATtruite");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), ancien);
}

TEST_F(CoursesManquees, GardentLAnnuaireQuandIlNYAPlusRienASupprimer) {
  b.dossier.Ecrit("GLMC.DAT", ancien);
  b.dossier.Ecrit("GLMCN.DAT", "GLMCN.DATtruite");
  b.Demarre();
  b.dossier.Supprime("GLMCN.DAT");
  SauveCourses(*b.module);
  EXPECT_THAT(b.disque.journal(), ElementsAre("supprime GLMCN.DAT"));
  EXPECT_FALSE(b.dossier.A("GLMCN.DAT"));
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), ancien);
}

TEST_F(CoursesManquees, PerdentLesTextesQuandLaSignatureEchoue) {
  Sauve(b, 3, Maniere::moitieEcrite);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMC");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), ancien);
}

TEST_F(CoursesManquees, UneLigneAMoitieEcriteLaisseLesSuivantes) {
  Sauve(b, 4, Maniere::moitieEcrite);  // the row of aisle 0, which is empty as before
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DAT");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), ancien);
}

TEST_F(CoursesManquees, PerdentLesTextesQuandLOuvertureEchoue) {
  Sauve(b, 2, Maniere::rienFait);
  EXPECT_FALSE(b.dossier.A("GLMCN.DAT"));
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), ancien);
  b.Redemarre();  // the texts come back from the factory, the old rows point behind them
  EXPECT_EQ(b.module->texteRayon[3], "");
}

TEST_F(CoursesManquees, LaissentLesLignesPasEncoreReecrites) {
  Sauve(b, 8, Maniere::rienFait);  // the row of aisle 2
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATjambon");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), Annuaire({{1, Rayon(10, 6)}, {3, Rayon(10, 6)}}));
}

TEST_F(CoursesManquees, NEcriventPasLaLigneDUnTexteManque) {
  Sauve(b, 6, Maniere::moitieEcrite);  // the text of aisle 1
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATjam");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), ancien);
}

}  // namespace
}  // namespace gastrelle::essai
