// The catalogues agree: each disagreement is told, and the compiled files have none.

#include <algorithm>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "usine/Accord.h"
#include "usine/FabriqueEssai.h"
#include "usine/Orthographe.h"
#include "usine/Usages.h"

namespace gastrelle::usine {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// A small library in which everything agrees.
Ouvrages Accordes() {
  Ouvrages o;
  o.vins = {{"Crozes-Hermitage", "Un rouge, à 15 °C, un blanc, à 11-12 °C."},
            {"Vouvray", "Se sert à 10 °C."},
            {"L'Étoile", "Un blanc du Jura, à 13 °C."}};
  o.recettes = {
      {"Noix de Saint-Jacques poêlées, fondue de poireaux",
       "Pour 4 personnes\n\nÉtapes\n1. Poêler.\n2. Servir."},
      {"Rôti de porc",
       "Pour 6 personnes\n\nÉtapes\n1. Préchauffer le four à 180 °C (th. 6).\n2. Enfourner 1 h : "
       "la sonde marque 63 °C.\n3. Servir.\n\nConseil : Un crozes-hermitage.",
       "Porc"},
      {"Tarte fine", "Pour 8 personnes\n\nÉtapes\n1. Allumer le gril.\n2. Passer sous le gril."}};
  for (const char* famille : {"Bœuf", "Veau", "Agneau", "Volailles et lapin"}) {
    o.recettes.push_back({std::string("Rôti : ") + famille, "Pour 4 personnes", famille});
  }
  o.recettes.push_back({"Gigue de chevreuil", "Pour 4 personnes", "Gibier"});
  o.recettes.push_back({"Râble de lièvre", "Pour 4 personnes", "Gibier"});
  o.fromages = {{"Comté", "Un vouvray lui va, ou un vin de L'Étoile."}};
  o.menus = {{"Dimanche",
              "Pour 8 personnes : un dimanche.\n\n"
              "Entrée : radis, Noix de Saint-Jacques poêlées, fondue de poireaux (deux fois la "
              "recette). Vin : vouvray, à 10 °C, ou crozes-hermitage blanc, à 12 °C.\n"
              "Plat : Rôti de porc (une fois et demie la recette). Boisson : cidre, à 9 °C.\n"
              "Dessert : Tarte fine, et un café.\n\nOrganisation\nLe matin : Les radis, à 4 °C."}};
  o.trucs = {
      {"Viandes : les températures à cœur",
       "Bœuf saignant 50 à 55 °C. Agneau rosé 57 à 60 °C, porc 63 à 70 °C, chevreuil et lièvre "
       "52 à 55 °C. Autre chose, 90 °C."}};
  return o;
}

Desaccords TousLesDesaccords(const Ouvrages& o, const std::vector<std::string>& connues) {
  const Appellations appellations(connues, o.vins);
  Desaccords tous;
  for (const Desaccords& ceux :
       {VinsSansFiche(o, appellations), ChaleursDeService(o, appellations), PlatsSansRecette(o),
        PartsInegales(o), FoursFroids(o), CoeursContraires(o)}) {
    tous.insert(tous.end(), ceux.begin(), ceux.end());
  }
  return tous;
}

void Remplace(std::string& texte, std::string_view ancien, std::string_view nouveau) {
  const std::size_t place = texte.find(ancien);
  ASSERT_NE(place, std::string::npos) << ancien;
  texte.replace(place, ancien.size(), nouveau);
}

class Accord : public testing::Test {
 protected:
  [[nodiscard]] Desaccords Trouves() const {
    return TousLesDesaccords(o, {"sancerre", "pineau", "vouvray brut = Vouvray"});
  }

  Ouvrages o = Accordes();
  std::string& menu = o.menus.front().texte;
  std::string& roti = o.recettes[1].texte;
};

TEST_F(Accord, NeTrouveRienOuToutSAccorde) {
  EXPECT_THAT(Trouves(), IsEmpty());
}

TEST_F(Accord, DitUnVinDeMenuSansFiche) {
  Remplace(menu, "vouvray, à", "Sancerre et vouvray, à");
  EXPECT_THAT(Trouves(), ElementsAre("Dimanche : SANCERRE n'a pas de fiche",
                                     "Dimanche : SANCERRE à 10 °C, sa fiche dit autrement"));
}

TEST_F(Accord, DitUnVinDeFromageSansFiche) {
  o.fromages.front().texte += " Le pineau aussi.";
  EXPECT_THAT(Trouves(), ElementsAre("Comté : PINEAU n'a pas de fiche"));
}

TEST_F(Accord, DitUnVinDeRecetteSansFiche) {
  roti += " Ou un sancerre.";
  EXPECT_THAT(Trouves(), ElementsAre("Rôti de porc : SANCERRE n'a pas de fiche"));
}

TEST_F(Accord, NeCherchePasUnVinDansUnMot) {
  o.fromages.front().texte += " Les sancerrois et les vouvrays.";
  EXPECT_THAT(Trouves(), IsEmpty());
}

TEST_F(Accord, ReconnaitUnVinSousSonAutreNom) {
  Remplace(menu, "vouvray, à 10", "vouvray brut, à 8");
  EXPECT_THAT(Trouves(), ElementsAre("Dimanche : VOUVRAY BRUT à 8 °C, sa fiche dit autrement"));
}

TEST_F(Accord, DitUneFicheEcarteeQueLesTextesNommentEncore) {
  o.vins.erase(o.vins.begin() + 1);
  EXPECT_THAT(TousLesDesaccords(o, {"vouvray"}),
              ElementsAre("Dimanche : VOUVRAY n'a pas de fiche", "Comté : VOUVRAY n'a pas de fiche",
                          "Dimanche : VOUVRAY à 10 °C, sa fiche dit autrement"));
}

TEST_F(Accord, DitUneChaleurHorsDeCellesDeLaFiche) {
  Remplace(menu, "blanc, à 12 °C", "blanc, à 13 °C");
  EXPECT_THAT(Trouves(),
              ElementsAre("Dimanche : CROZES HERMITAGE à 13 °C, sa fiche dit autrement"));
}

TEST_F(Accord, DitUneEtendueQuiDebordeCelleDeLaFiche) {
  Remplace(menu, "blanc, à 12 °C", "blanc, à 11-13 °C");
  EXPECT_THAT(Trouves(), SizeIs(1));
  Remplace(menu, "11-13", "11-12");
  EXPECT_THAT(Trouves(), IsEmpty());
}

TEST_F(Accord, DitUneChaleurDeFromage) {
  o.fromages.front().texte = "Un vouvray à 12 °C.";
  EXPECT_THAT(Trouves(), ElementsAre("Comté : VOUVRAY à 12 °C, sa fiche dit autrement"));
}

TEST_F(Accord, DitUneChaleurDeRecette) {
  roti += "\nServir un vouvray entre 8 et 10 °C. Le vouvray cuit à 180 °C (th. 6).";
  EXPECT_THAT(Trouves(), ElementsAre("Rôti de porc : VOUVRAY à 8-10 °C, sa fiche dit autrement"));
}

TEST_F(Accord, DitLesNomsDeVinsQuiNeSontPasEncoreConnus) {
  EXPECT_THAT(VinsAConnaitre(o, Appellations({"vouvray", "l'étoile"}, o.vins)),
              ElementsAre("CROZES HERMITAGE"));
  EXPECT_THAT(VinsAConnaitre(o, Appellations({"vouvray", "l'étoile", "crozes-hermitage"}, o.vins)),
              IsEmpty());
}

TEST_F(Accord, DitUneChaleurSansBoissonConnue) {
  Remplace(menu, "cidre", "tisane");
  EXPECT_THAT(Trouves(), ElementsAre(HasSubstr("rien de connu à 9 °C dans [Boisson : tisane")));
}

TEST_F(Accord, DitUnPlatSansRecette) {
  Remplace(menu, "Rôti de porc (une fois et demie la recette)", "Rôti de bœuf");
  EXPECT_THAT(Trouves(), ElementsAre("Dimanche : pas de recette [Rôti de bœuf]"));
}

TEST_F(Accord, DitUnPlatQuiNePorteQueLeDebutDUnTitre) {
  Remplace(menu, "Tarte fine, et", "Tarte finement coupée, et");
  EXPECT_THAT(Trouves(), ElementsAre(HasSubstr("pas de recette [Tarte finement")));
}

TEST_F(Accord, DitDesPartsQueRienNAccorde) {
  Remplace(menu, " (une fois et demie la recette)", "");
  EXPECT_THAT(Trouves(),
              ElementsAre("Dimanche : Rôti de porc (6 pour 8) : rien ne dit comment l'accorder"));
}

TEST_F(Accord, DitUnCompteDePartsFaux) {
  Remplace(menu, "deux fois la recette", "trois fois la recette");
  EXPECT_THAT(Trouves(), ElementsAre(HasSubstr("(4 pour 8) : le compte n'y est pas [trois fois")));
}

TEST_F(Accord, DitUnNombreDePartsQueLaRecetteNeDitPas) {
  Remplace(menu, "une fois et demie la recette", "la recette sert six");
  EXPECT_THAT(Trouves(), IsEmpty());
  Remplace(menu, "sert six", "sert huit");
  EXPECT_THAT(Trouves(), ElementsAre("Dimanche : Rôti de porc (6 pour 8) : la recette dit "
                                     "autrement [la recette sert huit]"));
}

TEST_F(Accord, DitUneParentheseQuiNAccordeRien) {
  Remplace(menu, "une fois et demie la recette", "cinq fois la recette");
  EXPECT_THAT(Trouves(), ElementsAre(HasSubstr("rien ne dit comment l'accorder")));
}

TEST_F(Accord, AccepteDesPartsPlusPetitesSiLeMenuLeDit) {
  Remplace(menu, "deux fois la recette", "une fois et demie la recette suffit");
  EXPECT_THAT(Trouves(), IsEmpty());
}

TEST_F(Accord, DitUnMenuQuiNeDitPasPourCombien) {
  Remplace(menu, "Pour 8 personnes : un", "Un");
  EXPECT_THAT(Trouves(), ElementsAre("Dimanche : ne dit pas pour combien de personnes"));
}

TEST_F(Accord, DitUnFourAllumeDansLEtapeQuiCuit) {
  Remplace(roti, "(th. 6).\n2. Enfourner", "(th. 6), puis enfourner");
  EXPECT_THAT(Trouves(), ElementsAre(HasSubstr("Rôti de porc : four froid à l'étape 1. ")));
}

TEST_F(Accord, DitUneCuissonAuThermostatDansUnFourFroid) {
  Remplace(o.recettes[2].texte, "Allumer le gril.\n2. Passer sous le gril",
           "Beurrer.\n2. Cuire 30 min à 180 °C (th. 6)");
  EXPECT_THAT(Trouves(), ElementsAre(HasSubstr("Tarte fine : four froid à l'étape 2. ")));
}

TEST_F(Accord, DitUnFourJamaisAllume) {
  Remplace(o.recettes[2].texte, "Allumer le gril", "Beurrer");
  EXPECT_THAT(Trouves(), ElementsAre(HasSubstr("Tarte fine : four froid à l'étape 2. ")));
}

TEST_F(Accord, DitUnCoeurQueLeTrucNeConnaitPas) {
  Remplace(roti, "63 °C", "72 °C");
  EXPECT_THAT(Trouves(), ElementsAre("Rôti de porc : 72 °C à cœur, le truc dit autrement"));
}

TEST_F(Accord, DitUnCoeurQueLeTrucDonneAUneAutreViande) {
  Remplace(roti, "63 °C", "57 °C");
  EXPECT_THAT(Trouves(), ElementsAre("Rôti de porc : 57 °C à cœur, le truc dit autrement"));
  o.recettes[1].groupe = "Agneau";
  EXPECT_THAT(Trouves(), ElementsAre("aucune recette de porc"));
}

TEST_F(Accord, TientLeCoeurDeDeuxViandesNommeesEnsemble) {
  for (const char* nom : {"Gigue de chevreuil", "Râble de lièvre"}) {
    o = Accordes();
    const auto recette = std::find_if(o.recettes.begin(), o.recettes.end(),
                                      [&](const Notice& r) { return r.nom == nom; });
    recette->texte += "\n1. La sonde marque 54 °C.";
    EXPECT_THAT(Trouves(), IsEmpty());
    recette->texte += "\n2. La sonde marque 56 °C.";
    EXPECT_THAT(Trouves(), ElementsAre(HasSubstr("56 °C à cœur")));
  }
}

TEST_F(Accord, DitUneViandeSansRecette) {
  o.recettes.pop_back();
  EXPECT_THAT(Trouves(), ElementsAre("aucune recette de lièvre"));
}

TEST_F(Accord, DitUnTrucDesCoeursDisparu) {
  o.trucs.clear();
  EXPECT_THAT(Trouves(), ElementsAre("le truc des températures à cœur manque"));
}

/// A compiled text (Windows-1252) as its source reads: plain blanks, line feeds, UTF-8.
std::string Decompose(std::string texte) {
  std::erase(texte, '\r');
  std::replace(texte.begin(), texte.end(), '\xA0', ' ');
  return VersUtf8(texte);
}

/// The catalogues as the program reads them from the files that the build laid.
class AccordDeLaFabrique : public Fabrique {
 protected:
  void SetUp() override {
    Fabrique::SetUp();
    o = {Lues(m->bufRecette, m->textesRecettes), Lues(m->bufMenu, m->textesMenus),
         Lues(m->bufFromage, m->textesFromages), Lues(m->bufVin, m->textesVins),
         Lues(m->bufTruc, m->textesTrucs)};
    const std::vector<std::string> familles = Noms(m->bufFamille);
    const std::vector<RecRecette> fiches = Fiches(m->bufRecette);
    for (std::size_t i = 0; i < fiches.size(); ++i) {
      o.recettes[i].groupe = VersUtf8(familles[static_cast<std::size_t>(fiches[i].idFamille - 2)]);
    }
  }

  template <class T>
  static std::vector<Notice> Lues(FichierEnregistrements<T>& fichier, Reserve& reserve) {
    const std::vector<std::string> noms = Noms(fichier);
    const std::vector<std::string> textes = Textes(fichier, reserve);
    std::vector<Notice> notices;
    for (std::size_t i = 0; i < noms.size(); ++i) {
      notices.push_back({VersUtf8(noms[i]), Decompose(textes[i])});
    }
    return notices;
  }

  [[nodiscard]] Appellations appellations() const {
    return Appellations(LitListe(APPELLATIONS), o.vins);
  }

  Ouvrages o;
};

TEST_F(AccordDeLaFabrique, ChaqueVinNommeAUneFiche) {
  EXPECT_THAT(VinsSansFiche(o, appellations()), IsEmpty());
}

TEST_F(AccordDeLaFabrique, ChaqueNomDeVinEstConnu) {
  EXPECT_THAT(VinsAConnaitre(o, appellations()), IsEmpty());
}

TEST_F(AccordDeLaFabrique, ChaqueVinSeSertALaChaleurDeSaFiche) {
  EXPECT_THAT(ChaleursDeService(o, appellations()), IsEmpty());
}

TEST_F(AccordDeLaFabrique, ChaquePlatDUnMenuEstUneRecette) {
  EXPECT_THAT(PlatsSansRecette(o), IsEmpty());
}

TEST_F(AccordDeLaFabrique, LesPartsDesMenusTombentJuste) {
  EXPECT_THAT(PartsInegales(o), IsEmpty());
}

TEST_F(AccordDeLaFabrique, ChaqueFourEstAllumeAvantLEtapeQuiCuit) {
  EXPECT_THAT(FoursFroids(o), IsEmpty());
}

TEST_F(AccordDeLaFabrique, LesCoeursSAccordentAuTruc) {
  EXPECT_THAT(CoeursContraires(o), IsEmpty());
}

TEST_F(AccordDeLaFabrique, UneFauteSYVoit) {
  o.menus.front().texte.insert(
      o.menus.front().texte.find("\n\nOrganisation"),
      "\nFin : Gratin inconnu. Vin : pommard, à 25 °C, ou pineau des Charentes.");
  o.fromages.front().texte += " Un klevener de Heiligenstein.";
  o.recettes.front().texte += "\n1. Enfourner.";
  o.recettes.front().groupe = "Porc";
  o.recettes.front().texte += "\n9. La sonde marque 80 °C.";
  EXPECT_THAT(VinsSansFiche(o, appellations()), SizeIs(1));
  EXPECT_THAT(ChaleursDeService(o, appellations()), SizeIs(1));
  EXPECT_THAT(PlatsSansRecette(o), SizeIs(1));
  EXPECT_THAT(CoeursContraires(o), SizeIs(1));
  Remplace(o.menus.front().texte, "Pour 8 personnes", "Pour 30 personnes");
  EXPECT_FALSE(PartsInegales(o).empty());
  Remplace(o.recettes.back().texte, "1. ", "1. Enfourner. ");
  EXPECT_THAT(FoursFroids(o), SizeIs(1));
}

TEST_F(AccordDeLaFabrique, LesTextesSuiventLesUsages) {
  for (const auto& [textes, portees] :
       {std::pair{&o.recettes,
                  usages::phrase | usages::recette | usages::cuisine | usages::fourneau},
        std::pair{&o.menus, usages::phrase | usages::portrait | usages::cuisine | usages::fourneau},
        std::pair{&o.fromages, usages::phrase | usages::portrait},
        std::pair{&o.vins, usages::phrase | usages::portrait | usages::vin},
        std::pair{&o.trucs, usages::phrase | usages::cuisine}}) {
    for (const Notice& notice : *textes) {
      const auto faute = FauteUsage(DepuisUtf8(notice.texte), portees);
      EXPECT_FALSE(faute) << notice.nom << " : " << faute->raison;
    }
  }
}

TEST_F(AccordDeLaFabrique, AuPlusLaMoitieDesTextesSExpliquentApresDeuxPoints) {
  for (Notice& recette : o.recettes) {
    recette.texte.erase(0, recette.texte.find("Conseil : ") + std::string("Conseil : ").size());
  }
  for (const auto* textes : {&o.recettes, &o.vins, &o.fromages, &o.trucs}) {
    EXPECT_LE(2 * std::count_if(textes->begin(), textes->end(),
                                [](const Notice& e) { return ExpliqueApresDeuxPoints(e.texte); }),
              static_cast<std::ptrdiff_t>(textes->size()));
  }
}

}  // namespace
}  // namespace gastrelle::usine
