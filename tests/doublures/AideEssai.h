// A compiled help of the tests' own, in the toolkit's binary form, with the right seal: what a
// stranger could put in the place of the program's.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <QCryptographicHash>
#include <QString>

#include "doublures/ImagesEnormes.h"

namespace gastrelle::essai {

/// Names and contents of its files.
using PagesEssai = std::map<std::string, std::string>;

/// The number by which the toolkit finds a name.
inline std::uint32_t NombreDuNom(const std::string& nom) {
  std::uint32_t nombre = 0;
  for (const char c : nom) {
    nombre = (nombre << 4U) + static_cast<std::uint8_t>(c);
    nombre ^= (nombre & 0xF0000000U) >> 23U;
    nombre &= 0x0FFFFFFFU;
  }
  return nombre;
}

inline std::string Scelle(const std::string& octets) {
  return octets +
         QCryptographicHash::hash(QByteArray::fromStdString(octets), QCryptographicHash::Sha256)
             .toHex()
             .toStdString();
}

/// Without its seal. `marques`: of every file, 1 for what zlib has compressed.
inline std::string ArbreEssai(const PagesEssai& pages, int marques = 0) {
  using detail::GrandBoutien;
  std::vector<std::pair<std::uint32_t, std::string>> ordre;
  for (const auto& [nom, octets] : pages) {
    ordre.emplace_back(NombreDuNom(nom), nom);
  }
  std::sort(ordre.begin(), ordre.end());
  constexpr std::size_t longueurTete = 20;
  constexpr std::size_t longueurNoeud = 14;
  std::string arbre =
      GrandBoutien(0, 4) + GrandBoutien(2, 2) + GrandBoutien(pages.size(), 4) + GrandBoutien(1, 4);
  std::string noms;
  std::string donnees;
  for (const auto& [nombre, nom] : ordre) {
    arbre += GrandBoutien(noms.size(), 4) + GrandBoutien(static_cast<std::uint64_t>(marques), 2) +
             GrandBoutien(0, 2) + GrandBoutien(1, 2) + GrandBoutien(donnees.size(), 4);
    noms += GrandBoutien(nom.size(), 2) + GrandBoutien(nombre, 4);
    for (const char c : nom) {
      noms += std::string(1, '\0') + c;
    }
    donnees += GrandBoutien(pages.at(nom).size(), 4) + pages.at(nom);
  }
  const std::size_t apres = longueurTete + longueurNoeud * (pages.size() + 1);
  return "qres" + GrandBoutien(1, 4) + GrandBoutien(longueurTete, 4) +
         GrandBoutien(apres + noms.size(), 4) + GrandBoutien(apres, 4) + arbre + noms + donnees;
}

/// A help of one page, "accueil".
inline PagesEssai UnePage(const std::string& html) {
  return {{"accueil.html", html},
          {"sommaire.json", R"([{"titre": "T", "pages": [{"sujet": "accueil", "titre": "A"}]}])"}};
}

}  // namespace gastrelle::essai
