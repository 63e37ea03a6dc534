#include "sortie/LignesImprimees.h"

#include <array>
#include <cstddef>
#include <variant>

#include "data/Messages.h"

namespace gastrelle {
namespace {

/// A label and its value under an empty line.
std::string Dessous(std::string_view legende, std::string_view valeur = {}) {
  return Joint(CRLF, Joint(legende, valeur));
}

/// A text under an empty line; an empty one takes no place.
void AjouteDessous(LignesTexte& lignes, std::string_view texte) {
  if (!texte.empty()) {
    lignes.push_back(Dessous(texte));
  }
}

LignesTexte Imprimees(const VueRecette& vue) {
  LignesTexte lignes{Dessous("Famille de recettes : ", vue.famille),
                     Dessous("Recette : ", vue.titre)};
  AjouteDessous(lignes, vue.texte);
  return lignes;
}

LignesTexte Imprimees(const VueFromage& vue) {
  LignesTexte lignes{
      Dessous("Fromage : ", vue.nom),      Dessous("Sa région d'origine : "_1252, vue.region),
      Dessous("Au lait de : ", vue.lait),  Dessous("Meilleure période de dégustation :"_1252),
      Dessous(". de : ", vue.premierMois), Dessous(". à : "_1252, vue.dernierMois)};
  AjouteDessous(lignes, vue.notes);
  return lignes;
}

LignesTexte Imprimees(const VueFromagesTries& vue) {
  LignesTexte lignes{Dessous("Fromages au lait de : ", vue.lait.value_or(""))};
  AjouteRognees(lignes, vue.fromages);
  return lignes;
}

LignesTexte Imprimees(const VueMenu& vue) {
  LignesTexte lignes{Dessous("Menu : ", vue.titre)};
  AjouteDessous(lignes, vue.texte);
  return lignes;
}

LignesTexte Imprimees(const VueVin& vue) {
  LignesTexte lignes{Dessous("Le vin : ", vue.nom),
                     Dessous("Sa région d'origine : "_1252, vue.region)};
  AjouteDessous(lignes, vue.notes);
  return lignes;
}

LignesTexte Imprimees(const VueVinsTries& vue) {
  LignesTexte lignes{Dessous("La région d'origine : "_1252, Rogne(vue.region.value_or(""))),
                     "Les vins :"};
  AjouteRognees(lignes, vue.vins);
  return lignes;
}

LignesTexte Imprimees(const VueCaveDuVin& vue) {
  static constexpr std::array<std::string_view, 9> couleurs{
      "Blanc : ", "Rouge : ",  "Rosé : "_1252, "Champagne : ", "Vin doux naturel : ",
      "Jaune : ", "Paille : ", "Mousseux : ",  "Gris : "};
  LignesTexte lignes{Dessous("Ma cave"), Joint("Le vin : ", vue.nom),
                     Joint("Sa région d'origine : "_1252, vue.region)};
  for (std::size_t i = 0; i < couleurs.size(); ++i) {
    lignes.push_back(Joint(couleurs[i], vue.bouteilles[i]));
  }
  lignes.push_back(Joint("Notes : ", vue.notes));
  return lignes;
}

LignesTexte Imprimees(const VueCave& vue) {
  LignesTexte lignes{Dessous("Toute ma cave").append(CRLF).append(CRLF)};
  lignes.insert(lignes.end(), vue.lignes.begin(), vue.lignes.end());
  return lignes;
}

LignesTexte Imprimees(const VueTruc& vue) {
  LignesTexte lignes{Dessous("Termes, trucs et astuces : ", vue.titre)};
  AjouteDessous(lignes, vue.texte);
  return lignes;
}

LignesTexte Imprimees(const VueFavori& vue) {
  LignesTexte lignes{Dessous("Favori : ", vue.nom)};
  AjouteDetails(lignes, vue);
  return lignes;
}

LignesTexte Imprimees(const VueFavorisTries& vue) {
  LignesTexte lignes{Dessous("La catégorie : "_1252, Rogne(vue.categorie.value_or(""))),
                     "Les favoris :"};
  AjouteRognees(lignes, vue.favoris);
  return lignes;
}

LignesTexte Imprimees(const VueNotes& vue) {
  return {Dessous("Mes notes"), Dessous(Rogne(vue.texte))};
}

LignesTexte Imprimees(const VueCourses& vue) {
  LignesTexte lignes{Dessous("Achats à effectuer"_1252)};
  for (const RayonRempli& rayon : vue.rayons) {
    lignes.push_back(Dessous(rayon.rayon));
    lignes.push_back(rayon.texte);
  }
  return lignes;
}

LignesTexte Imprimees(const VueMillesimes& /*vue*/) {
  return {};
}

LignesTexte Imprimees(std::monostate /*vue*/) {
  return {};
}

}  // namespace

LignesTexte LignesImprimees(const Vue& vue) {
  return std::visit([](const auto& v) { return Imprimees(v); }, vue);
}

}  // namespace gastrelle
