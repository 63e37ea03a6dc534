// A library with something to clean, and what its files hold, read without the program's own code.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Entetes.h"
#include "recettes/RecettesEssai.h"

namespace gastrelle::essai {

inline const std::array<std::string, 4> nomsRecettes{"GLR1.DAT", "GLR2.DAT", "GLR3.DAT",
                                                     "GLR4.DAT"};

/// A recipe as its user has it: nothing of it is a number.
struct RecetteEntiere {
  std::string titre;
  std::string famille;  ///< empty: its family isn't there
  std::string texte;
  std::string image;

  bool operator==(const RecetteEntiere&) const = default;
};

inline std::ostream& operator<<(std::ostream& sortie, const RecetteEntiere& recette) {
  return sortie << recette.titre << " (" << recette.famille << ") : " << recette.texte << " / "
                << recette.image;
}

/// The one that every small library has.
inline RecetteEntiere Veloute() {
  return {std::string("Velouté"_1252), "Potages", std::string("Un velouté."_1252), {}};
}

/// The bytes that a reference covers; none for one that leads nowhere.
inline std::string Morceau(const std::string& reserve, std::int32_t position,
                           std::int32_t longueur) {
  const auto debut = static_cast<std::size_t>(position) - 1;
  return position < 1 || debut >= reserve.size()
             ? std::string()
             : reserve.substr(debut, static_cast<std::size_t>(longueur));
}

/// The records of a catalogue file of a folder, its header left out.
template <class T>
std::vector<T> FichesDe(const DossierEssai& dossier, const std::string& nom) {
  std::vector<T> fiches;
  const std::string octets = dossier.Lit(nom);
  constexpr std::size_t pas = longueurEnregistrement<T>;
  for (std::size_t ou = pas; ou + pas <= octets.size(); ou += pas) {
    Decode(fiches.emplace_back(), octets.data() + ou);
  }
  return fiches;
}

/// The live recipes in the order of their records; `prefixe` stands before the names of the files.
inline std::vector<RecetteEntiere> RecettesVivantes(const DossierEssai& dossier,
                                                    const std::string& prefixe = {}) {
  const auto familles = FichesDe<RecFamille>(dossier, prefixe + nomsRecettes[0]);
  const std::string textes = dossier.Lit(prefixe + nomsRecettes[2]);
  const std::string images = dossier.Lit(prefixe + nomsRecettes[3]);
  std::vector<RecetteEntiere> vivantes;
  for (const RecRecette& recette : FichesDe<RecRecette>(dossier, prefixe + nomsRecettes[1])) {
    if (recette.actif != vivant) {
      continue;
    }
    const std::int64_t rang = std::int64_t{recette.idFamille} - 2;
    const bool presente = rang >= 0 && rang < std::ssize(familles) &&
                          familles[static_cast<std::size_t>(rang)].actif == vivant;
    vivantes.push_back({std::string(RogneDroite(recette.nomRecette.brut())),
                        presente ? std::string(RogneDroite(
                                       familles[static_cast<std::size_t>(rang)].nomFamille.brut()))
                                 : std::string(),
                        Morceau(textes, recette.posTexte, recette.lgTexte),
                        Morceau(images, recette.posImage, recette.lgImage)});
  }
  return vivantes;
}

inline std::int64_t TailleDesQuatre(const DossierEssai& dossier) {
  std::int64_t taille = 0;
  for (const std::string& nom : nomsRecettes) {
    taille += static_cast<std::int64_t>(dossier.Lit(nom).size());
  }
  return taille;
}

inline std::array<std::string, 4> LesQuatre(const DossierEssai& dossier,
                                            const std::string& prefixe = {}) {
  std::array<std::string, 4> octets;
  std::transform(nomsRecettes.begin(), nomsRecettes.end(), octets.begin(),
                 [&](const std::string& nom) { return dossier.Lit(prefixe + nom); });
  return octets;
}

/// Everything that lies in a folder, with its bytes; links aren't followed.
inline std::vector<std::pair<std::string, std::string>> Contenu(
    const std::filesystem::path& chemin) {
  std::vector<std::pair<std::string, std::string>> contenu;
  for (const auto& entree : std::filesystem::recursive_directory_iterator(chemin)) {
    std::ifstream lecture;
    if (std::filesystem::is_regular_file(entree.symlink_status())) {
      lecture.open(entree.path(), std::ios::binary);
    }
    contenu.emplace_back(entree.path().lexically_relative(chemin).generic_string(),
                         std::string{std::istreambuf_iterator<char>(lecture), {}});
  }
  std::sort(contenu.begin(), contenu.end());
  return contenu;
}

/// Changes a record of a recipe file, on file; `.DAT` or factory copy.
template <class T, class Change>
void ChangeFiche(const Bibliotheque& b, const std::string& nom, std::int32_t numero,
                 Change&& change) {
  std::string octets = b.dossier.Lit(nom);
  constexpr std::size_t pas = longueurEnregistrement<T>;
  const std::size_t ou = static_cast<std::size_t>(numero - 1) * pas;
  T fiche;
  Decode(fiche, octets.data() + ou);
  change(fiche);
  octets.replace(ou, pas, Octets(fiche));
  b.dossier.Ecrit(nom, octets);
}

/// Fills the fields of a header of the recipes that nobody reads.
inline void GarnitEnteteRecettes(const Bibliotheque& b, const std::string& nom) {
  ChangeFiche<RecRecette>(b, nom, 1, [](RecRecette& entete) {
    entete.posTexte = 11;
    entete.lgTexte = 12;
    entete.posImage = -13;
    entete.lgImage = 14;
  });
}

/// Before the start. Families: Potages (2), Perdue (3, deleted), Desserts (4). Recipes: Velouté
/// (2), Oubliée (3, deleted), Tarte (4) of the third family with text and picture, Eau (5) without
/// either. 130 + 150 + 11 + 6 bytes are dead.
inline void GarnitDePertes(Bibliotheque& b) {
  const std::int32_t perdue = b.AjouteFamille("Perdue");
  const std::int32_t desserts = b.AjouteFamille("Desserts");
  const std::int32_t oubliee = b.AjouteRecette(2, "Oubliee", "Plus jamais", "/o.png");
  b.AjouteRecette(desserts, "Tarte", "Une tarte.", "/tarte.png");
  b.AjouteRecette(2, "Eau");
  EffaceFamille(b, perdue);
  EffaceRecette(b, oubliee);
  PoseCompte(b, "GLR1.stp", 2);
  PoseCompte(b, "GLR2.stp", 3);
}
inline constexpr std::int64_t pertesGarnies = 130 + 150 + 11 + 6;

}  // namespace gastrelle::essai
