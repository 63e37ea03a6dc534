#include "accidents/EtatRecettes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <map>
#include <string_view>
#include <utility>

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t lgFamille = 130;
constexpr std::size_t lgRecette = 150;
constexpr std::size_t lgNom = 128;
constexpr std::array<std::string_view, 4> tetes{"GASTRELF.DAT", "GLR2.DAT", "GLR3.DAT", "GLR4.DAT"};

/// An integer of `largeur` bytes, the lowest first.
std::int32_t Nombre(std::string_view octets, std::size_t ou, std::size_t largeur) {
  std::uint32_t valeur = 0;
  for (std::size_t i = 0; i < largeur; ++i) {
    valeur |= std::uint32_t{static_cast<unsigned char>(octets[ou + i])} << (8 * i);
  }
  return largeur == 2 ? static_cast<std::int16_t>(valeur) : static_cast<std::int32_t>(valeur);
}

std::string NomLu(std::string_view octets, std::size_t ou) {
  const std::string_view champ = octets.substr(ou, lgNom);
  return std::string(champ.substr(0, champ.find_last_not_of(' ') + 1));
}

/// The records from the second on, by number, of which the header counts those that are live. None
/// if it counts others, or if the file isn't one of such records.
std::optional<std::map<std::int32_t, std::string_view>> Vivants(std::string_view octets,
                                                                std::size_t longueur,
                                                                std::size_t ouTete,
                                                                std::string_view tete) {
  if (octets.size() < longueur || octets.size() % longueur != 0 || NomLu(octets, ouTete) != tete) {
    return {};
  }
  std::map<std::int32_t, std::string_view> vivants;
  for (std::size_t n = 1; n < octets.size() / longueur; ++n) {
    const std::string_view enregistrement = octets.substr(n * longueur, longueur);
    if (Nombre(enregistrement, 0, 2) == -1) {
      vivants.emplace(static_cast<std::int32_t>(n + 1), enregistrement);
    }
  }
  if (static_cast<std::size_t>(Nombre(octets, 0, 2)) != vivants.size()) {
    return {};
  }
  return vivants;
}

/// The text to which a recipe's reference at byte `ou` points; none if it reaches beyond the pool.
std::optional<std::string> Texte(std::string_view recette, std::size_t ou,
                                 std::string_view reserve) {
  const std::int64_t position = Nombre(recette, ou, 4);
  const std::int64_t longueur = Nombre(recette, ou + 4, 4);
  if (position == 0 && longueur == 0) {
    return std::string();
  }
  if (position < 1 || longueur < 0 ||
      position - 1 + longueur > static_cast<std::int64_t>(reserve.size())) {
    return {};
  }
  return std::string(
      reserve.substr(static_cast<std::size_t>(position - 1), static_cast<std::size_t>(longueur)));
}

std::optional<RecettesLues> Decode(const std::array<std::string, 4>& octets) {
  constexpr std::size_t ouTitre = 6;
  constexpr std::size_t ouTexte = 134;
  constexpr std::size_t ouImage = 142;
  const auto familles = Vivants(octets[0], lgFamille, 2, tetes[0]);
  const auto recettes = Vivants(octets[1], lgRecette, ouTitre, tetes[1]);
  if (!familles || !recettes || !octets[2].starts_with(tetes[2]) ||
      !octets[3].starts_with(tetes[3])) {
    return {};
  }
  RecettesLues lues;
  for (const auto& [numero, famille] : *familles) {
    lues.familles.push_back(NomLu(famille, 2));
  }
  for (const auto& [numero, recette] : *recettes) {
    const auto famille = familles->find(Nombre(recette, 2, 4));
    auto texte = Texte(recette, ouTexte, octets[2]);
    auto image = Texte(recette, ouImage, octets[3]);
    if (famille == familles->end() || !texte || !image) {
      return {};
    }
    lues.recettes.push_back(
        {NomLu(famille->second, 2), NomLu(recette, ouTitre), std::move(*texte), std::move(*image)});
  }
  return lues;
}

/// The .DAT files and, in the place of those that are missing, the .tmp files.
QuatreFichiers Partages(const fs::path& dossier) {
  QuatreFichiers fichiers = QuatreDe(dossier, "DAT");
  const QuatreFichiers deCote = QuatreDe(dossier, "tmp");
  for (std::size_t i = 0; i < fichiers.size(); ++i) {
    if (!fs::exists(fichiers.at(i))) {
      fichiers.at(i) = deCote.at(i);
    }
  }
  return fichiers;
}

}  // namespace

QuatreFichiers QuatreDe(const fs::path& dossier, const std::string& extension) {
  QuatreFichiers fichiers;
  for (std::size_t i = 0; i < fichiers.size(); ++i) {
    fichiers.at(i) = dossier / ("GLR" + std::to_string(i + 1) + "." + extension);
  }
  return fichiers;
}

std::optional<RecettesLues> LitRecettes(const QuatreFichiers& fichiers) {
  std::array<std::string, 4> octets;
  for (std::size_t i = 0; i < fichiers.size(); ++i) {
    std::ifstream entree(fichiers.at(i), std::ios::binary);
    if (!entree) {
      return {};
    }
    octets.at(i).resize(fs::file_size(fichiers.at(i)));
    entree.read(octets.at(i).data(), static_cast<std::streamsize>(octets.at(i).size()));
  }
  return Decode(octets);
}

std::string PlacesTenant(const fs::path& dossier, const RecettesLues& recettes) {
  const std::array<std::pair<const char*, QuatreFichiers>, 5> places{{
      {".DAT", QuatreDe(dossier, "DAT")},
      {".tmp", QuatreDe(dossier, "tmp")},
      {".DAT/.tmp", Partages(dossier)},
      {"TEMP", QuatreDe(dossier / "TEMP", "DAT")},
      {"SAUVE", QuatreDe(dossier / "SAUVE", "DAT")},
  }};
  std::string tiennent;
  std::vector<QuatreFichiers> vus;
  for (const auto& [nom, fichiers] : places) {
    if (std::find(vus.begin(), vus.end(), fichiers) == vus.end() &&
        LitRecettes(fichiers) == recettes) {
      tiennent += (tiennent.empty() ? "" : " ") + std::string(nom);
    }
    vus.push_back(fichiers);
  }
  return tiennent;
}

}  // namespace gastrelle::essai
