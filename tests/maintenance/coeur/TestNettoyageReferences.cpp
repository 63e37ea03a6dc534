// The cleaning of files that aren't as the program leaves them: references that overlap or lead
// nowhere, headers that miscount, recipes drawn by chance.

#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/EspaceMort.h"
#include "doublures/Pannes.h"
#include "maintenance/MaintenanceEssai.h"
#include "maintenance/Nettoyage.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class ReferencesNettoyees : public testing::Test {
 protected:
  /// A recipe more, whose references are as `change` leaves them.
  template <class Change>
  std::int32_t AjouteAvec(Change&& change, std::string_view texte = {}) {
    const std::int32_t numero = b.AjouteRecette(2, "Autre", texte);
    ChangeFiche<RecRecette>(b, "GLR2.stp", numero, change);
    return numero;
  }
  [[nodiscard]] RecRecette Recette(std::size_t numero) const {
    return Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", numero);
  }
  void Nettoie() {
    b.Demarre();
    NettoieRecettes(*b.module);
  }

  Bibliotheque b;
};

TEST_F(ReferencesNettoyees, UnTexteDeLongueurNulleGardeUnePositionEtNEcritRien) {
  AjouteAvec([](RecRecette& r) {
    r.posTexte = 9;
    r.posImage = 4;
  });
  Nettoie();
  EXPECT_EQ(Recette(3).posTexte, 20);
  EXPECT_EQ(Recette(3).lgTexte, 0);
  EXPECT_EQ(Recette(3).posImage, 9);
  EXPECT_EQ(Recette(3).lgImage, 0);
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), std::string("GLR3.DATUn velouté."_1252));
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT");
}

TEST_F(ReferencesNettoyees, UnePositionSousUnPerdAussiSaLongueur) {
  for (const std::int32_t position : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
    AjouteAvec([position](RecRecette& r) {
      r.posTexte = position;
      r.lgTexte = 7;
      r.posImage = position;
      r.lgImage = -7;
    });
  }
  Nettoie();
  for (const std::size_t numero : {3U, 4U, 5U}) {
    const RecRecette recette = Recette(numero);
    EXPECT_EQ(recette.posTexte, 0);
    EXPECT_EQ(recette.lgTexte, 0);
    EXPECT_EQ(recette.posImage, 0);
    EXPECT_EQ(recette.lgImage, 0);
  }
}

TEST_F(ReferencesNettoyees, UnTexteQuePlusieursSePartagentEstEcritPourChacune) {
  for (int i = 0; i < 2; ++i) {
    AjouteAvec([](RecRecette& r) {
      r.posTexte = 12;  // inside the text of the first recipe
      r.lgTexte = 4;
    });
  }
  Nettoie();
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), std::string("GLR3.DATUn velouté.velovelo"_1252));
  EXPECT_EQ(Recette(3).posTexte, 20);
  EXPECT_EQ(Recette(4).posTexte, 24);
}

TEST_F(ReferencesNettoyees, LaSignatureElleMemePeutEtreUnTexte) {
  AjouteAvec([](RecRecette& r) {
    r.posTexte = 1;
    r.lgTexte = 8;
  });
  Nettoie();
  EXPECT_EQ(RecettesVivantes(b.dossier).back().texte, "GLR3.DAT");
}

TEST_F(ReferencesNettoyees, UnTexteQuiDepasseLeFichierGardeCeQuIlEnReste) {
  AjouteAvec([](RecRecette& r) { r.lgTexte = 2'000'000'000; }, "Court");
  AjouteAvec([](RecRecette& r) {
    r.posTexte = 2'000'000'000;
    r.lgTexte = 5;
  });
  Nettoie();
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), std::string("GLR3.DATUn velouté.Court"_1252));
  EXPECT_EQ(Recette(3).lgTexte, 5);
  EXPECT_EQ(Recette(4).lgTexte, 0);
  EXPECT_EQ(Recette(4).posTexte, 25);
}

TEST_F(ReferencesNettoyees, UneLongueurNegativeArreteToutAvantQueRienNeSoitEfface) {
  AjouteAvec([](RecRecette& r) { r.lgTexte = -3; }, "Court");
  b.Demarre();
  const auto avant = LesQuatre(b.dossier);
  EXPECT_EQ(PanneDe([&] { NettoieRecettes(*b.module); }), Panne::appelIncorrect);
  EXPECT_EQ(LesQuatre(b.dossier), avant);
  EXPECT_EQ(LesQuatre(b.dossier, "TEMP/"), avant);
}

// The header of the recipes counts fewer of them than there are: the walk stops where it says so.
TEST_F(ReferencesNettoyees, UnCompteTropPetitArreteLeParcoursSansUnMot) {
  b.AjouteFamille("Desserts");
  b.AjouteFamille("Sauces");
  b.AjouteRecette(3, "Tarte", "Une tarte.");
  b.AjouteRecette(4, "Aioli", "De l'ail.");
  PoseCompte(b, "GLR1.stp", 2);
  PoseCompte(b, "GLR2.stp", 2);
  b.Demarre();
  EXPECT_EQ(NettoieRecettes(*b.module), 2);
  EXPECT_THAT(RecettesVivantes(b.dossier),
              ElementsAre(Veloute(), RecetteEntiere{"Tarte", "Desserts", "Une tarte.", ""}));
  EXPECT_EQ(b.dossier.Lit("GLR1.DAT").size(), 3U * 130);
  EXPECT_THAT(b.messages.vus, SizeIs(0));
}

TEST_F(ReferencesNettoyees, UneFamilleDerriereUnCompteTropPetitLaisseSesRecettesALaPremiere) {
  b.AjouteFamille("Desserts");
  b.AjouteRecette(3, "Tarte", "Une tarte.");
  PoseCompte(b, "GLR1.stp", 1);
  Nettoie();
  EXPECT_EQ(RecettesVivantes(b.dossier).back(),
            (RecetteEntiere{"Tarte", "Potages", "Une tarte.", ""}));
}

TEST_F(ReferencesNettoyees, UnCompteTropGrandEstCorrigeDansLesNouveauxFichiers) {
  b.AjouteFamille("Desserts");
  b.AjouteRecette(3, "Tarte", "Une tarte.");
  PoseCompte(b, "GLR1.stp", 7);
  PoseCompte(b, "GLR2.stp", 300);
  b.Demarre();
  EXPECT_EQ(NettoieRecettes(*b.module), 2);
  EXPECT_EQ(Enregistrement<RecFamille>(b.dossier, "GLR1.DAT", 1).actif, 2);
  EXPECT_EQ(Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", 1).actif, 2);
  EXPECT_EQ(b.module->bufFamille.nbActifs(), 2);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 2);
  const std::vector<std::string> ecrits = b.disque.changements();
  for (const char* entete : {"écrit GLR1.tmp 0+130", "écrit GLR2.tmp 0+150"}) {
    EXPECT_EQ(std::count(ecrits.begin(), ecrits.end(), entete), 2) << entete;
  }
}

TEST_F(ReferencesNettoyees, UneFicheTronqueeALaFinNEstPasUneFiche) {
  b.AjouteRecette(2, "Tarte", "Une tarte.");
  b.dossier.Ecrit("GLR2.stp", b.dossier.Lit("GLR2.stp") + "\xff\xff tronquee");
  PoseCompte(b, "GLR2.stp", 9);
  b.Demarre();
  EXPECT_EQ(NettoieRecettes(*b.module), 2);
  EXPECT_EQ(b.dossier.Lit("GLR2.DAT").size(), 3U * 150);
}

// No family lives any more: the new files can't be opened, and every recipe stands in the copies.
TEST_F(ReferencesNettoyees, SansUneSeuleFamilleLesCopiesRestent) {
  EffaceFamille(b, 2);
  b.Demarre();
  const auto avant = LesQuatre(b.dossier);
  EXPECT_EQ(PanneDe([&] { NettoieRecettes(*b.module); }), Panne::fichierIntrouvable);
  EXPECT_EQ(LesQuatre(b.dossier, "TEMP/"), avant);
}

/// Hundreds of recipes as years of use leave them, and worse.
class NettoyageAuHasard : public testing::TestWithParam<unsigned> {
 protected:
  int Tire(int moins, int plus) { return std::uniform_int_distribution(moins, plus)(hasard); }
  bool Une(int sur) { return Tire(1, sur) == 1; }

  std::string Octets(int plus) {
    std::string octets(static_cast<std::size_t>(Tire(1, plus)), ' ');
    std::generate(octets.begin(), octets.end(), [&] { return static_cast<char>(Tire(0, 255)); });
    return octets;
  }

  /// A text of the pool, or a piece of what is there: of the signature, of another one, of nothing.
  void Pose(std::string& reserve, std::int32_t& position, std::int32_t& longueur) {
    if (Une(4)) {
      return;
    }
    if (Une(6)) {
      position = Tire(1, static_cast<int>(reserve.size()));
      longueur = Tire(0, static_cast<int>(reserve.size()) - position + 1);
      return;
    }
    reserve += Une(3) ? Octets(40) : std::string();
    const std::string texte = Octets(Une(20) ? 5000 : 200);
    position = static_cast<std::int32_t>(reserve.size()) + 1;
    longueur = static_cast<std::int32_t>(texte.size());
    reserve += texte;
  }

  template <class T, class Compose>
  std::string Fichier(Donnees fichier, int nombre, int surDeletee, Compose&& compose) {
    std::string fiches;
    std::int16_t vivantes = 0;
    for (int i = 0; i < nombre; ++i) {
      T fiche;
      fiche.actif = i > 0 && Une(surDeletee) ? supprime : vivant;
      vivantes = static_cast<std::int16_t>(vivantes - fiche.actif);
      compose(fiche, i);
      fiches += essai::Octets(fiche);
    }
    T entete;
    entete.actif = vivantes;
    NomOuSignature(entete) = Signature(fichier);
    return essai::Octets(entete) + fiches;
  }

  void Garnit() {
    const int familles = Tire(1, 60);
    b.dossier.Ecrit("GLR1.stp",
                    Fichier<RecFamille>(Donnees::GLR1, familles, 4, [](RecFamille& famille, int i) {
                      famille.nomFamille = "F" + std::to_string(i);
                    }));
    std::string textes = "GLR3.DAT";
    std::string images = "GLR4.DAT";
    b.dossier.Ecrit(
        "GLR2.stp",
        Fichier<RecRecette>(Donnees::GLR2, Tire(1, 900), 3, [&](RecRecette& recette, int i) {
          recette.nomRecette = "R" + std::to_string(i);
          recette.idFamille = Tire(1, familles + 2);
          Pose(textes, recette.posTexte, recette.lgTexte);
          Pose(images, recette.posImage, recette.lgImage);
        }));
    b.dossier.Ecrit("GLR3.stp", textes);
    b.dossier.Ecrit("GLR4.stp", images);
  }

  std::mt19937 hasard{GetParam()};
  Bibliotheque b;
};

TEST_P(NettoyageAuHasard, RendChaqueRecetteEntiereALaMemePlace) {
  Garnit();
  b.Demarre();
  auto attendues = RecettesVivantes(b.dossier);
  for (RecetteEntiere& recette : attendues) {
    recette.famille = recette.famille.empty() ? "F0" : recette.famille;
  }
  const Encombrement avant = MesureRecettes(*b.module);
  EXPECT_EQ(NettoieRecettes(*b.module), static_cast<int>(attendues.size()));
  EXPECT_EQ(RecettesVivantes(b.dossier), attendues);
  EXPECT_EQ(TailleDesQuatre(b.dossier), avant.necessaire);
  EXPECT_EQ(MesureRecettes(*b.module).gain(), 0);
  EXPECT_EQ(FichesDe<RecRecette>(b.dossier, "GLR2.DAT").size(), attendues.size());
  b.Redemarre();
  EXPECT_EQ(b.module->bufRecette.nbActifs(), static_cast<int>(attendues.size()));
}

INSTANTIATE_TEST_SUITE_P(Tirages, NettoyageAuHasard, testing::Range(1U, 41U));

}  // namespace
}  // namespace gastrelle::essai
