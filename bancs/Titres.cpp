#include "Titres.h"

#include <array>
#include <string_view>

#include "data/Texte1252.h"

namespace gastrelle::bancs {
namespace {

constexpr std::array plats{
    "Velouté"_1252,   "Crème"_1252,     "Gratin"_1252,   "Gâteau"_1252,     "Tarte"_1252,
    "Bœuf"_1252,      "Épaule"_1252,    "Côte"_1252,     "Soufflé"_1252,    "Pâté"_1252,
    "Terrine"_1252,   "Œufs"_1252,      "Sauté"_1252,    "Blanquette"_1252, "Poêlée"_1252,
    "Éclairs"_1252,   "Ragoût"_1252,    "Omelette"_1252, "Clafoutis"_1252,  "Rôti"_1252,
    "Filets"_1252,    "Quenelles"_1252, "Crêpes"_1252,   "Salade"_1252,     "Émincé"_1252,
    "Confiture"_1252, "Mousse"_1252,    "Compote"_1252,  "Soupe"_1252,      "Bûche"_1252,
    "Tourte"_1252,    "Aïoli"_1252,
};
constexpr std::array produits{
    "de potiron"_1252,
    "d'asperges"_1252,
    "de bœuf"_1252,
    "d'agneau"_1252,
    "de pêches"_1252,
    "aux épinards"_1252,
    "de sole"_1252,
    "de maïs"_1252,
    "aux cèpes"_1252,
    "de pâtes fraîches"_1252,
    "aux châtaignes"_1252,
    "de brochet"_1252,
    "d'été"_1252,
    "aux noisettes"_1252,
    "de chou-fleur"_1252,
    "aux pommes de terre"_1252,
    "de pâquerettes"_1252,
    "de cœurs d'artichaut"_1252,
    "aux mûres"_1252,
    "de crème brûlée"_1252,
    "d'aubergines"_1252,
    "de veau"_1252,
    "aux huîtres"_1252,
    "de thé vert"_1252,
    "au fromage de chèvre"_1252,
    "aux girolles"_1252,
};
constexpr std::array facons{
    ""_1252,
    ""_1252,
    ", à l'ancienne"_1252,
    " à la crème fraîche"_1252,
    " façon grand-mère"_1252,
    ", sauce béarnaise"_1252,
    " au four"_1252,
    " à l'échalote"_1252,
    " en croûte"_1252,
    " et ses légumes glacés"_1252,
    ", à la bière brune"_1252,
    " du dimanche"_1252,
    " à la provençale"_1252,
    " au gruyère râpé"_1252,
};
constexpr std::array gestes{
    "Éplucher et émincer les légumes."_1252,
    "Faire revenir à feu doux dans le beurre, sans laisser colorer."_1252,
    "Mouiller à hauteur, saler, poivrer, ajouter le bouquet garni."_1252,
    "Laisser mijoter trois quarts d'heure à couvert."_1252,
    "Battre les œufs avec la crème fraîche et râper un peu de muscade."_1252,
    "Préchauffer le four à 180 degrés."_1252,
    "Dresser sur un plat chaud et servir aussitôt."_1252,
    "Réserver au frais jusqu'au lendemain."_1252,
};

}  // namespace

std::string Titres::Titre() {
  std::string titre(plats[Tire(plats.size())]);
  titre += ' ';
  titre += produits[Tire(produits.size())];
  titre += facons[Tire(facons.size())];
  if (Tire(2) == 0) {
    titre += ' ';
    titre += produits[Tire(produits.size())];
  }
  return titre;
}

std::string Titres::Texte() {
  constexpr std::size_t lignesAuMoins = 3;
  constexpr std::size_t lignesEnPlus = 8;
  std::string texte;
  for (std::size_t i = lignesAuMoins + Tire(lignesEnPlus); i > 0; --i) {
    texte += gestes[Tire(gestes.size())];
    texte += i > 1 ? "\r\n" : "";
  }
  return texte;
}

}  // namespace gastrelle::bancs
