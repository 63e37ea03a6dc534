// What a window shows at this moment, as plain values: what the commands of the frame, the
// documents and the printed pages need of it. Texts are Windows-1252.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace gastrelle {

struct VueRecette {
  std::string famille;
  std::string titre;
  std::string texte;
  std::string image;  ///< complete path of the picture, empty when there is none
};

struct VueFromage {
  std::string nom;
  std::string region;
  std::string lait;
  std::string premierMois;
  std::string dernierMois;
  std::string notes;
};

struct VueFromagesTries {
  std::optional<std::string> lait;  ///< the one that is chosen, if any
  std::vector<std::string> fromages;
};

struct VueMenu {
  std::string titre;
  std::string texte;
};

struct VueVin {
  std::string nom;
  std::string region;
  std::string notes;
};

struct VueVinsTries {
  std::optional<std::string> region;  ///< the one that is chosen, if any
  std::vector<std::string> vins;
};

/// The bottles of one wine, as the boxes show them.
struct VueCaveDuVin {
  std::string nom;
  std::string region;
  std::array<std::string, 9> bouteilles;  ///< by colour
  std::string notes;
};

/// The report of the whole cellar.
struct VueCave {
  std::vector<std::string> lignes;
};

struct VueFavori {
  std::string nom;
  std::string categorie;
  std::string adresse;
  std::string telephone;
  std::string fax;
  std::string email;
  std::string siteWeb;
  std::string notes;
};

struct VueFavorisTries {
  std::optional<std::string> categorie;  ///< the one that is chosen, if any
  std::vector<std::string> favoris;
};

struct VueTruc {
  std::string titre;
  std::string texte;
};

/// A year of the vintage chart.
struct AnneeClassee {
  int annee;
  std::int16_t degre;  ///< 0 "Non classé" to 5 "Exceptionnelle"
};

/// The vintages of one area, the oldest first.
struct VueMillesimes {
  std::string cru;
  std::vector<AnneeClassee> annees;
};

struct VueNotes {
  std::string texte;
};

/// What is to be bought in an aisle.
struct RayonRempli {
  std::string rayon;
  std::string texte;
};

/// The aisles that hold something, in their order.
struct VueCourses {
  std::vector<RayonRempli> rayons;
};

/// Nothing, or what the tab on display shows.
using Vue = std::variant<std::monostate, VueRecette, VueFromage, VueFromagesTries, VueMenu, VueVin,
                         VueVinsTries, VueCaveDuVin, VueCave, VueMillesimes, VueTruc, VueFavori,
                         VueFavorisTries, VueNotes, VueCourses>;

}  // namespace gastrelle
