#include "accidents/Secours.h"

#include <algorithm>
#include <array>
#include <vector>

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 4> souches{"GLR1.", "GLR2.", "GLR3.", "GLR4."};

/// How many of the four files are there, between what stands before and behind their names.
std::ptrdiff_t Combien(const std::set<std::string>& noms, const std::string& dossier,
                       const std::string& extension) {
  return std::count_if(souches.begin(), souches.end(), [&](const char* souche) {
    return noms.contains(dossier + souche + extension);
  });
}

void Copie(const fs::path& de, const fs::path& vers) {
  for (const char* souche : souches) {
    const std::string nom = std::string(souche) + "DAT";
    fs::copy_file(de / nom, vers / nom, fs::copy_options::overwrite_existing);
  }
}

/// The .tmp files take their .DAT names: all of them, or those alone whose .DAT is missing.
void Renomme(const fs::path& dossier, bool tous) {
  for (const char* souche : souches) {
    const fs::path mis = dossier / (std::string(souche) + "tmp");
    const fs::path sien = dossier / (std::string(souche) + "DAT");
    if (fs::exists(mis) && (tous || !fs::exists(sien))) {
      fs::rename(mis, sien);
    }
  }
}

void Range(const fs::path& dossier) {
  fs::remove_all(dossier / "TEMP");
  std::vector<fs::path> restes;
  for (const auto& entree : fs::recursive_directory_iterator(dossier)) {
    const std::string nom = entree.path().filename().string();
    if (nom.starts_with("GLR") && (nom.ends_with(".tmp") || nom.ends_with("~"))) {
      restes.push_back(entree.path());
    }
  }
  for (const fs::path& reste : restes) {
    fs::remove(reste);
  }
}

}  // namespace

std::set<std::string> NomsPresents(const fs::path& dossier) {
  std::set<std::string> noms;
  for (const auto& entree : fs::recursive_directory_iterator(dossier)) {
    noms.insert(fs::relative(entree.path(), dossier).string() + (entree.is_directory() ? "/" : ""));
  }
  return noms;
}

Retour RetourPour(const std::set<std::string>& noms) {
  constexpr std::ptrdiff_t quatre = 4;
  const std::ptrdiff_t donnees = Combien(noms, "", "DAT");
  const std::ptrdiff_t deCote = Combien(noms, "", "tmp");
  if (Combien(noms, "TEMP/", "DAT") == quatre) {
    return deCote == 0 && donnees == quatre ? Retour::datTelsQuels : Retour::quatreDeTemp;
  }
  if (noms.contains("TEMP/") && donnees == quatre) {
    return Retour::datTelsQuels;
  }
  if (noms.contains("GLR1.tmp") && noms.contains("GLR1.DAT")) {
    return Retour::tousLesTmp;
  }
  if (donnees == quatre) {
    return Retour::datTelsQuels;
  }
  return deCote > 0 ? Retour::tmpDesManquants : Retour::quatreDeSauve;
}

void Revient(const fs::path& dossier, Retour retour) {
  if (retour == Retour::quatreDeTemp || retour == Retour::quatreDeSauve) {
    Copie(dossier / (retour == Retour::quatreDeTemp ? "TEMP" : "SAUVE"), dossier);
  } else if (retour != Retour::datTelsQuels) {
    Renomme(dossier, retour == Retour::tousLesTmp);
  }
  Range(dossier);
}

}  // namespace gastrelle::essai
