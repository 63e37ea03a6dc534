// The replacement of all recipes: what it does to the disk, in which order, and the bytes after.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Depart.h"
#include "maintenance/MaintenanceEssai.h"
#include "maintenance/Remplacement.h"
#include "recettes/LectureRecettes.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// A factory with two families and three recipes, of which the user has changed and added some.
class UnRemplacement : public testing::Test {
 protected:
  void SetUp() override {
    b.AjouteFamille("Desserts");
    b.AjouteRecette(3, "Tarte", "Une tarte.", "/tarte.png");
    b.AjouteRecette(2, "Eau", {}, "/eau.png");
    GarnitEnteteRecettes(b, "GLR2.stp");
    b.Demarre();
    b.AjouteRecette(b.AjouteFamille("Sauces"), "Aioli", "De l'ail.", "/aioli.png");
    ChangeFiche<RecRecette>(b, "GLR2.DAT", 2, [](RecRecette& r) { r.nomRecette = "Ma soupe"; });
    fs::create_directory(b.dossier.chemin() / "SAUVE");
    for (const std::string& nom : nomsRecettes) {
      b.dossier.Ecrit("SAUVE/" + nom, "une copie");
    }
    b.Redemarre();
  }

  /// The first lines of what changes on the disk, whatever is made.
  static std::vector<std::string> MiseDeCote() {
    std::vector<std::string> lignes;
    for (const char* stem : {"GLR1", "GLR2", "GLR3", "GLR4"}) {
      const std::string nom(stem);
      lignes.push_back("supprime " + nom + ".tmp");
      lignes.push_back("renomme " + nom + ".DAT " + nom + ".tmp");
    }
    return lignes;
  }
  static std::vector<std::string> Avec(std::vector<std::string> milieu) {
    std::vector<std::string> lignes = MiseDeCote();
    lignes.insert(lignes.end(), milieu.begin(), milieu.end());
    for (const char* nom : {"GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp", "SAUVE/GLR1.DAT",
                            "SAUVE/GLR2.DAT", "SAUVE/GLR3.DAT", "SAUVE/GLR4.DAT"}) {
      lignes.push_back(std::string("supprime ") + nom);
    }
    return lignes;
  }

  Bibliotheque b;
};

TEST_F(UnRemplacement, ViderFaitSesPasDansLOrdre) {
  RemplaceRecettes(*b.module, FabriqueUneRecette);
  EXPECT_THAT(
      b.disque.changements(),
      ElementsAreArray(Avec({"écrit GLR1.DAT 0+130", "écrit GLR1.DAT 130+130",
                             "écrit GLR2.DAT 0+150", "écrit GLR2.DAT 150+150", "écrit GLR3.DAT 0+8",
                             "écrit GLR3.DAT 8+11", "écrit GLR4.DAT 0+26"})));
}

TEST_F(UnRemplacement, ReinitialiserFaitSesPasDansLOrdre) {
  RemplaceRecettes(*b.module, FabriqueOrigines);
  EXPECT_THAT(b.disque.changements(),
              ElementsAreArray(Avec({"copie GLR1.stp GLR1.DAT", "copie GLR2.stp GLR2.DAT",
                                     "écrit GLR2.DAT 0+150", "copie GLR3.stp GLR3.DAT",
                                     "copie GLR4.stp GLR4.DAT"})));
}

TEST_F(UnRemplacement, ViderOuvreLesQuatreAvantLesOriginesUneParUne) {
  RemplaceRecettes(*b.module, FabriqueUneRecette);
  std::vector<std::string> ouvertures;
  for (const std::string& ligne : b.disque.journal()) {
    if (ligne.starts_with("ouvre") || ligne.starts_with("consulte") ||
        ligne.starts_with("synchronise") || ligne == "supprime GLR1.tmp") {
      ouvertures.push_back(ligne);
    }
  }
  EXPECT_THAT(ouvertures,
              ElementsAre("supprime GLR1.tmp", "ouvre GLR1.DAT", "ouvre GLR2.DAT", "ouvre GLR3.DAT",
                          "ouvre GLR4.DAT", "consulte GLR1.stp", "consulte GLR2.stp",
                          "consulte GLR3.stp", "consulte GLR4.stp", "synchronise GLR1.DAT",
                          "synchronise GLR2.DAT", "synchronise GLR3.DAT", "synchronise GLR4.DAT",
                          "synchronise /", "supprime GLR1.tmp"));
}

TEST_F(UnRemplacement, LesFichiersSontFermesAvantDEtreMisDeCote) {
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne.starts_with("renomme")) {
      for (const Donnees fichier : fichiersRecettes) {
        EXPECT_EQ(b.module->Place(fichier), nullptr) << ligne;
      }
    }
  };
  RemplaceRecettes(*b.module, FabriqueUneRecette);
}

TEST_F(UnRemplacement, ViderLaisseLaPremiereFamilleEtLaPremiereRecetteDeLaFabrique) {
  const auto origine = LesQuatre(b.dossier);
  RemplaceRecettes(*b.module, FabriqueUneRecette);
  EXPECT_EQ(b.dossier.Lit("GLR1.DAT"), AvecCompte(b.dossier.Lit("GLR1.stp").substr(0, 260), 1));
  // Not dated: the header is the factory's but for its count.
  EXPECT_EQ(b.dossier.Lit("GLR2.DAT"), AvecCompte(b.dossier.Lit("GLR2.stp").substr(0, 300), 1));
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), std::string("GLR3.DATUn velouté."_1252));
  // Every picture path of the factory stays, those that nobody points to as well.
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT/tarte.png/eau.png");
  EXPECT_NE(origine, LesQuatre(b.dossier));
}

TEST_F(UnRemplacement, ReinitialiserRendLaFabriqueDateeDuJour) {
  b.horloge.date = std::chrono::year{2030} / 5 / 17;
  RemplaceRecettes(*b.module, FabriqueOrigines);
  for (const char* stem : {"GLR1", "GLR3", "GLR4"}) {
    const std::string nom(stem);
    EXPECT_EQ(b.dossier.Lit(nom + ".DAT"), b.dossier.Lit(nom + ".stp")) << stem;
  }
  std::string datee = b.dossier.Lit("GLR2.stp");
  RecRecette entete;
  Decode(entete, datee.data());
  entete.idFamille = NumeroJour(b.horloge.date);
  EXPECT_EQ(b.dossier.Lit("GLR2.DAT"), datee.replace(0, 150, Octets(entete)));
}

/// Both of them: what is left behind, and what goes on.
class ChaqueRemplacement : public UnRemplacement,
                           public testing::WithParamInterface<FabriqueRecettes> {
 protected:
  void Remplace() { RemplaceRecettes(*b.module, GetParam()); }
};

TEST_P(ChaqueRemplacement, NeLaisseRienDesAnciennesNiDeLeurCopie) {
  b.dossier.Ecrit("SAUVE/lettre", "à moi");
  b.dossier.Ecrit("MesNotes.txt", "Des notes.");
  const auto autour = [&] {
    auto contenu = Contenu(b.dossier.chemin());
    std::erase_if(contenu, [](const auto& entree) {
      return std::any_of(nomsRecettes.begin(), nomsRecettes.end(), [&](const std::string& nom) {
        return entree.first == nom || entree.first == "SAUVE/" + nom;
      });
    });
    return contenu;
  };
  const auto avant = autour();
  Remplace();
  EXPECT_EQ(autour(), avant);
  for (const std::string& nom : nomsRecettes) {
    EXPECT_FALSE(b.dossier.A("SAUVE/" + nom)) << nom;
  }
}

TEST_P(ChaqueRemplacement, SansDossierDeSauvegardeRienNeManque) {
  b.dossier.Supprime("SAUVE");
  Remplace();
  EXPECT_FALSE(b.dossier.A("SAUVE"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_P(ChaqueRemplacement, CeQuiNeSeSupprimePasResteSansUnMot) {
  for (const char* debut : {"supprime SAUVE", "supprime GLR"}) {
    b.disque.EchoueSur(debut, Panne::permissionRefusee);
    Remplace();
    EXPECT_THAT(b.messages.vus, IsEmpty()) << debut;
    EXPECT_TRUE(b.dossier.A("SAUVE/GLR1.DAT") || b.dossier.A("GLR4.tmp")) << debut;
    b.disque.Guerit();
  }
  EXPECT_EQ(RecettesVivantes(b.dossier).front().titre, "Velouté"_1252);
}

TEST_P(ChaqueRemplacement, LesAnciensProvisoiresCedentLaPlace) {
  for (const char* nom : {"GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"}) {
    b.dossier.Ecrit(nom, "d'un autre temps");
  }
  Remplace();
  EXPECT_FALSE(b.dossier.A("GLR1.tmp"));
  EXPECT_EQ(RecettesVivantes(b.dossier).front().titre, "Velouté"_1252);
}

TEST_P(ChaqueRemplacement, LaisseLesFichiersOuvertsEtPretsPourLesCatalogues) {
  Remplace();
  EXPECT_EQ(LitRecette(*b.module, 2).texte, "Un velouté."_1252);
  const auto vivantes = RecettesVivantes(b.dossier);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), static_cast<int>(vivantes.size()));
  EXPECT_EQ(b.module->bufFamille.nbActifs(),
            static_cast<int>(FichesDe<RecFamille>(b.dossier, "GLR1.DAT").size()));
  b.Redemarre();
  EXPECT_EQ(RecettesVivantes(b.dossier), vivantes);
}

TEST_P(ChaqueRemplacement, RefaitDeuxFoisDonneLaMemeChose) {
  Remplace();
  const auto une = LesQuatre(b.dossier);
  Remplace();
  EXPECT_EQ(LesQuatre(b.dossier), une);
}

INSTANTIATE_TEST_SUITE_P(LesDeux, ChaqueRemplacement,
                         testing::Values(FabriqueUneRecette, FabriqueOrigines),
                         [](const auto& cas) { return cas.index == 0 ? "Vide" : "Reinitialise"; });

TEST_F(UnRemplacement, ApresAvoirVideIlResteUneFamilleEtUneRecette) {
  RemplaceRecettes(*b.module, FabriqueUneRecette);
  EXPECT_EQ(b.module->bufFamille.nbActifs(), 1);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 1);
  EXPECT_THAT(RecettesVivantes(b.dossier), ElementsAre(Veloute()));
}

/// The factory copies that are asked for, the first missing one told.
class Origines : public UnRemplacement, public testing::WithParamInterface<std::size_t> {};

TEST_P(Origines, LaPremiereQuiManqueEstSeuleDite) {
  for (std::size_t i = GetParam(); i < fichiersRecettes.size(); ++i) {
    b.dossier.Supprime(NomFabrique(fichiersRecettes.at(i)));
  }
  EXPECT_FALSE(ExisteOrigines(*b.module));
  EXPECT_THAT(b.messages.vus,
              ElementsAre(NonTrouve(b, NomFabrique(fichiersRecettes.at(GetParam())))));
  EXPECT_EQ(b.disque.journal().size(), GetParam() + 1);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Chacune, Origines, testing::Values(0U, 1U, 2U, 3U));

TEST_F(UnRemplacement, LesQuatreOriginesSontDemandeesDansLOrdreSansUnMot) {
  EXPECT_TRUE(ExisteOrigines(*b.module));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLR1.stp", "existe GLR2.stp",
                                              "existe GLR3.stp", "existe GLR4.stp"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
