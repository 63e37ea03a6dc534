// The cleaning of the recipe files: what it does to the disk, in which order, and the bytes after.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/EspaceMort.h"
#include "maintenance/MaintenanceEssai.h"
#include "maintenance/Nettoyage.h"
#include "recettes/LectureRecettes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class UnNettoyage : public testing::Test {
 protected:
  void Garnit() {
    GarnitDePertes(b);
    b.Demarre();
  }

  Bibliotheque b;
};

TEST_F(UnNettoyage, FaitSesPasDansLOrdre) {
  Garnit();
  EXPECT_EQ(NettoieRecettes(*b.module), 3);
  EXPECT_THAT(
      b.disque.changements(),
      ElementsAre("crée TEMP", "copie GLR1.DAT TEMP/GLR1.DAT", "copie GLR2.DAT TEMP/GLR2.DAT",
                  "copie GLR3.DAT TEMP/GLR3.DAT", "copie GLR4.DAT TEMP/GLR4.DAT",
                  // the families, header first
                  "supprime GLR1.tmp", "crée GLR1.tmp", "écrit GLR1.tmp 0+130",
                  "écrit GLR1.tmp 130+130", "écrit GLR1.tmp 260+130",
                  // header and signatures, then each recipe behind what it points to
                  "supprime GLR2.tmp", "crée GLR2.tmp", "supprime GLR3.tmp", "crée GLR3.tmp",
                  "supprime GLR4.tmp", "crée GLR4.tmp", "écrit GLR2.tmp 0+150",
                  "écrit GLR3.tmp 0+8", "écrit GLR4.tmp 0+8", "écrit GLR3.tmp 8+11",
                  "écrit GLR2.tmp 150+150", "écrit GLR3.tmp 19+10", "écrit GLR4.tmp 8+10",
                  "écrit GLR2.tmp 300+150", "écrit GLR2.tmp 450+150", "supprime GLR1.DAT",
                  "supprime GLR2.DAT", "supprime GLR3.DAT", "supprime GLR4.DAT",
                  "renomme GLR1.tmp GLR1.DAT", "renomme GLR2.tmp GLR2.DAT",
                  "renomme GLR3.tmp GLR3.DAT", "renomme GLR4.tmp GLR4.DAT",
                  "supprime TEMP/GLR1.DAT", "supprime TEMP/GLR2.DAT", "supprime TEMP/GLR3.DAT",
                  "supprime TEMP/GLR4.DAT", "enlève TEMP"));
}

TEST_F(UnNettoyage, VerifieLesCopiesOuvertesAvantDeRebatirEtLesNeuvesAvantDOterLesCopies) {
  Garnit();
  NettoieRecettes(*b.module);
  std::vector<std::string> marques;
  for (const std::string& ligne : b.disque.journal()) {
    const bool compte = ligne.starts_with("ouvre") || ligne.starts_with("synchronise") ||
                        ligne.starts_with("crée") || ligne.starts_with("supprime GLR1.DAT") ||
                        ligne.starts_with("renomme GLR4") || ligne.starts_with("énumère") ||
                        (ligne.starts_with("lit GLR") && ligne.ends_with(".DAT 0+8")) ||
                        ligne == "lit GLR1.DAT 0+130" || ligne == "lit GLR2.DAT 0+150";
    if (compte) {
      marques.push_back(ligne);
    }
  }
  const std::vector<std::string> ouverture{
      "ouvre GLR1.DAT", "lit GLR1.DAT 0+130", "ouvre GLR2.DAT", "lit GLR2.DAT 0+150",
      "ouvre GLR3.DAT", "lit GLR3.DAT 0+8",   "ouvre GLR4.DAT", "lit GLR4.DAT 0+8"};
  std::vector<std::string> attendu{"crée TEMP", "synchronise TEMP/"};
  attendu.insert(attendu.end(), ouverture.begin(), ouverture.end());
  attendu.insert(
      attendu.end(),
      {"crée GLR1.tmp", "lit GLR1.DAT 0+130", "synchronise GLR1.tmp", "crée GLR2.tmp",
       "crée GLR3.tmp", "crée GLR4.tmp", "lit GLR2.DAT 0+150", "lit GLR3.DAT 0+8",
       "lit GLR4.DAT 0+8", "synchronise GLR3.tmp", "synchronise GLR4.tmp", "synchronise GLR2.tmp",
       "synchronise /", "supprime GLR1.DAT", "renomme GLR4.tmp GLR4.DAT", "synchronise /"});
  attendu.insert(attendu.end(), ouverture.begin(), ouverture.end());
  attendu.emplace_back("énumère TEMP");
  EXPECT_THAT(marques, ElementsAreArray(attendu));
}

TEST_F(UnNettoyage, FermeLesFichiersAvantDeLesCopierEtAvantDeLesEffacer) {
  Garnit();
  const auto fermes = [&] {
    return std::all_of(fichiersRecettes.begin(), fichiersRecettes.end(),
                       [&](Donnees f) { return b.module->Place(f) == nullptr; });
  };
  int vus = 0;
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne.starts_with("copie") ||
        (ligne.starts_with("supprime GLR") && ligne.ends_with(".DAT")) ||
        ligne.starts_with("renomme")) {
      EXPECT_TRUE(fermes()) << ligne;
      ++vus;
    }
  };
  NettoieRecettes(*b.module);
  EXPECT_EQ(vus, 12);
  EXPECT_FALSE(fermes());
}

TEST_F(UnNettoyage, LaisseDansLesQuatreFichiersCeQuiVitEtRienDAutre) {
  Garnit();
  const std::string entetes1 = Entete<RecFamille>(b, "GLR1.DAT");
  const std::string entetes2 = Entete<RecRecette>(b, "GLR2.DAT");
  NettoieRecettes(*b.module);
  RecFamille famille;
  famille.actif = vivant;
  famille.nomFamille = "Potages";
  std::string familles = entetes1 + Octets(famille);
  famille.nomFamille = "Desserts";
  familles += Octets(famille);
  EXPECT_EQ(b.dossier.Lit("GLR1.DAT"), familles);
  RecRecette recette;
  recette.actif = vivant;
  recette.idFamille = 2;
  recette.nomRecette = "Velouté"_1252;
  recette.posTexte = 9;
  recette.lgTexte = 11;
  std::string recettes = entetes2 + Octets(recette);
  recette.idFamille = 3;
  recette.nomRecette = "Tarte";
  recette.posTexte = 20;
  recette.lgTexte = 10;
  recette.posImage = 9;
  recette.lgImage = 10;
  recettes += Octets(recette);
  recette = RecRecette{};
  recette.actif = vivant;
  recette.idFamille = 2;
  recette.nomRecette = "Eau";
  recettes += Octets(recette);
  EXPECT_EQ(b.dossier.Lit("GLR2.DAT"), recettes);
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), std::string("GLR3.DATUn velouté.Une tarte."_1252));
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT/tarte.png");
}

TEST_F(UnNettoyage, NeLaisseNiCopieNiFichierProvisoireNiRienDeChangeAutour) {
  Garnit();
  b.dossier.Ecrit("MesNotes.txt", "Des notes.");
  const auto autour = [&] {
    auto contenu = Contenu(b.dossier.chemin());
    std::erase_if(contenu, [](const auto& entree) {
      return std::find(nomsRecettes.begin(), nomsRecettes.end(), entree.first) !=
             nomsRecettes.end();
    });
    return contenu;
  };
  const auto avant = autour();
  NettoieRecettes(*b.module);
  EXPECT_EQ(autour(), avant);
}

TEST_F(UnNettoyage, GagneCeQuIlAnnonceEtRienLaSecondeFois) {
  Garnit();
  const Encombrement avant = MesureRecettes(*b.module);
  EXPECT_EQ(avant.gain(), pertesGarnies);
  EXPECT_EQ(avant.taille, TailleDesQuatre(b.dossier));
  NettoieRecettes(*b.module);
  EXPECT_EQ(TailleDesQuatre(b.dossier), avant.necessaire);
  EXPECT_EQ(MesureRecettes(*b.module).gain(), 0);
  const auto apres = LesQuatre(b.dossier);
  EXPECT_EQ(NettoieRecettes(*b.module), 3);
  EXPECT_EQ(LesQuatre(b.dossier), apres);
}

TEST_F(UnNettoyage, LaisseLesFichiersOuvertsEtLeursEntetesEnMemoire) {
  Garnit();
  b.module->bufFamille.nbActifs() = 99;
  b.module->bufRecette.nbActifs() = 99;
  NettoieRecettes(*b.module);
  EXPECT_EQ(b.module->bufFamille.nbActifs(), 2);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 3);
  EXPECT_EQ(LitRecette(*b.module, 3).texte, "Une tarte.");
}

TEST_F(UnNettoyage, GardeLaDateEtLeResteDesDeuxEntetes) {
  GarnitDePertes(b);
  GarnitEnteteRecettes(b, "GLR2.stp");
  b.Demarre();
  const std::string avant = Entete<RecRecette>(b, "GLR2.DAT");
  const std::string familles = Entete<RecFamille>(b, "GLR1.DAT");
  b.horloge.date = std::chrono::year{2030} / 1 / 1;
  NettoieRecettes(*b.module);
  EXPECT_EQ(Entete<RecRecette>(b, "GLR2.DAT"), avant);
  EXPECT_EQ(Entete<RecFamille>(b, "GLR1.DAT"), familles);
}

TEST_F(UnNettoyage, BaisseDUnLesFamillesDerriereCelleQuiAEteSupprimee) {
  for (int numero = 3; numero <= 9; ++numero) {
    b.AjouteFamille("Famille " + std::to_string(numero));
  }
  for (int numero = 2; numero <= 9; ++numero) {
    b.AjouteRecette(numero, "De " + std::to_string(numero));
  }
  EffaceFamille(b, 5);
  PoseCompte(b, "GLR1.stp", 7);
  b.Demarre();
  NettoieRecettes(*b.module);
  std::vector<std::int32_t> familles;
  for (const RecRecette& recette : FichesDe<RecRecette>(b.dossier, "GLR2.DAT")) {
    familles.push_back(recette.idFamille);
  }
  // The library's own recipe, then one of each family; that of the deleted one is in the first.
  EXPECT_THAT(familles, ElementsAre(2, 2, 3, 4, 2, 5, 6, 7, 8));
  std::vector<std::string> noms;
  for (const RecFamille& famille : FichesDe<RecFamille>(b.dossier, "GLR1.DAT")) {
    noms.emplace_back(RogneDroite(famille.nomFamille.brut()));
  }
  EXPECT_THAT(noms, ElementsAre("Potages", "Famille 3", "Famille 4", "Famille 6", "Famille 7",
                                "Famille 8", "Famille 9"));
}

TEST_F(UnNettoyage, UneFamilleQuiNExistePasDevientLaPremiere) {
  constexpr std::array<std::int32_t, 7> ailleurs{-1,
                                                 0,
                                                 1,
                                                 4,
                                                 40000,
                                                 std::numeric_limits<std::int32_t>::max(),
                                                 std::numeric_limits<std::int32_t>::min()};
  b.AjouteFamille("Desserts");
  for (const std::int32_t famille : ailleurs) {
    b.AjouteRecette(famille, "Sans famille", "Un texte.");
  }
  b.AjouteRecette(3, "Tarte");
  b.Demarre();
  EXPECT_EQ(NettoieRecettes(*b.module), 9);
  const auto vivantes = RecettesVivantes(b.dossier);
  ASSERT_EQ(vivantes.size(), 9U);
  for (std::size_t i = 1; i <= ailleurs.size(); ++i) {
    EXPECT_EQ(vivantes[i], (RecetteEntiere{"Sans famille", "Potages", "Un texte.", ""}));
  }
  EXPECT_EQ(vivantes.back().famille, "Desserts");
}

TEST_F(UnNettoyage, NeMontreNiMessageNiPointeur) {
  Garnit();
  b.pointeur.Sablier();
  NettoieRecettes(*b.module);
  EXPECT_TRUE(b.pointeur.sablier);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
