#include "sortie/DocumentsEssai.h"

#include "data/Texte1252.h"

namespace gastrelle::essai {
namespace {

/// A text written here in UTF-8.
std::string Fr(std::string_view utf8) {
  return DepuisUtf8(utf8);
}

VueMillesimes TousLesDegres() {
  VueMillesimes vue{.cru = Fr(" Crus des Côtes du Rhône  "), .annees = {}};
  constexpr std::int16_t degreInconnu = 6;
  for (std::int16_t degre = 0; degre <= degreInconnu; ++degre) {
    vue.annees.push_back({1928 + degre, degre});
  }
  return vue;
}

VueCave CaveRemplie() {
  return {{Fr("CHÂTEAU-CHALON - Région d'origine : Jura"), Fr(".. Rosé ............ 3"),
           ".. Vin doux naturel  12", "... Total .......... 15", " ",
           "Nombre total de bouteilles dans ma cave", Fr(".. ROSÉ ............ 3"),
           ".. VIN DOUX NATUREL  12", "... Total .......... 15"}};
}

}  // namespace

const std::vector<DocumentEssai>& DocumentsEssai() {
  static const std::vector<DocumentEssai> documents{
      {"recette", "recette",
       VueRecette{Fr("Entrées chaudes"), Fr("Soufflé au comté, à l'œuf"),
                  Fr("« Pour 4 personnes »\r\n\r\n1. Râper 150 g de comté…\r\n"
                     "2. Battre les œufs – à 12 € la douzaine.\r\n   Servir aussitôt.\r\n"),
                  "/soufflé.png"}},
      {"recette-sans-rien", "recette", VueRecette{"Sauces", "", "", ""}},
      {"fromage", "fromage",
       VueFromage{Fr("  Époisses "), " Bourgogne ", "Vache", "Mai", Fr("Décembre"),
                  Fr("Se mange à la cuillère,\r\nlavé au marc.")}},
      {"fromage-sans-notes", "fromage", VueFromage{Fr("Sérac"), "", Fr("Chèvre"), "?", "?", ""}},
      {"fromtri", "fromtri",
       VueFromagesTries{Fr(" Chèvre  "),
                        {"Crottin de Chavignol", Fr("  Pélardon"), Fr("Valençay  ")}}},
      {"fromtri-vide", "fromtri", VueFromagesTries{"Brebis", {}}},
      {"menu", "menu", VueMenu{Fr("Réveillon à l'ancienne"), Fr("Huîtres\r\nBûche glacée")}},
      {"vin", "vin",
       VueVin{Fr(" Château-Chalon "), "Jura", Fr("À servir chambré,\r\navec un vieux comté.\r\n")}},
      {"vin-sans-note", "vin", VueVin{"Gevrey", Fr("Côte de Nuits"), ""}},
      {"vintri", "vintri",
       VueVinsTries{Fr("  Côtes du Rhône "), {Fr(" Châteauneuf-du-Pape"), Fr("Côte-Rôtie ")}}},
      {"vintri-vide", "vintri", VueVinsTries{"Moselle", {}}},
      {"vincave", "vincave", CaveRemplie()},
      {"vincave-vide", "vincave", VueCave{{"Votre cave est vide !"}}},
      {"millesim", "millesim", TousLesDegres()},
      {"truc", "truc", VueTruc{Fr("Blanchir à l'eau"), "Plonger quelques minutes."}},
      {"favori", "favori",
       VueFavori{Fr("Fromagerie de l'Étoile"), "Artisans", Fr("1 rue Haute\r\n39570 L'Étoile"),
                 "03 84 00 00 00", "03 84 00 00 01", "a@b.fr", "https://b.fr",
                 Fr("Fermé le lundi.")}},
      {"favori-vide", "favori", VueFavori{}},
      {"favtri", "favtri", VueFavorisTries{Fr(" Épiceries "), {" Affineur ", Fr("Crémerie")}}},
      {"favtri-vide", "favtri", VueFavorisTries{"Restaurants", {}}},
  };
  return documents;
}

}  // namespace gastrelle::essai
