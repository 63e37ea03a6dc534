#include "fuzz/DossierReel.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <system_error>

#include "doublures/Entrees.h"
#include "listes/Notes.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

constexpr const char* temoin = "ne pas toucher";
constexpr std::string_view sauvegarde = "SAUVE";
constexpr std::string_view copies = "TEMP";  // of the cleaning
constexpr std::array recettes{Donnees::GLR1, Donnees::GLR2, Donnees::GLR3, Donnees::GLR4};

std::string NomSauve(Donnees fichier) {
  return std::string(sauvegarde) + "/" + Nom(fichier);
}

std::string NomCopie(Donnees fichier) {
  return std::string(copies) + "/" + Nom(fichier);
}

void Ecrit(const fs::path& fichier, std::string_view octets) {
  std::ofstream(fichier, std::ios::binary)
      .write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

std::string Octets(const fs::path& fichier) {
  std::ifstream entree(fichier, std::ios::binary);
  return {std::istreambuf_iterator<char>(entree), {}};
}

/// A kind, as a letter, and what tells two of its kind apart.
std::string Description(const fs::directory_entry& entree) {
  if (entree.is_symlink()) {
    return "l" + fs::read_symlink(entree.path()).string();
  }
  if (entree.is_regular_file()) {
    return "f" + Octets(entree.path());
  }
  return entree.is_directory() ? "d" : "s";
}

std::set<std::string> NomsDuProgramme() {
  std::set<std::string> noms{"IMAGE", std::string(sauvegarde), std::string(fichierNotes),
                             "export.doc"};
  for (const LigneCatalogue& ligne : catalogueFichiers) {
    noms.emplace(ligne.nom);
  }
  noms.emplace(copies);
  for (const Donnees fichier : recettes) {
    noms.insert({NomSauve(fichier), NomTemporaire(fichier), NomCopie(fichier)});
  }
  return noms;
}

/// A data file that its user keeps elsewhere, by a link: the program works on it there.
bool EstDonnees(std::string_view nom) {
  return std::any_of(catalogueFichiers.begin(), catalogueFichiers.end(),
                     [nom](const LigneCatalogue& ligne) { return ligne.nom == nom; });
}

/// A file of the backup; its folder as well may be kept elsewhere.
bool EstSauve(std::string_view nom) {
  return std::any_of(recettes.begin(), recettes.end(),
                     [nom](Donnees fichier) { return NomSauve(fichier) == nom; });
}

void Libere(const fs::path& place) {
  std::error_code refus;
  fs::remove_all(place, refus);
}

void PoseLien(const fs::path& cible, const fs::path& place) {
  std::error_code refus;
  Libere(place);
  fs::create_symlink(cible, place, refus);
}

void PoseLienFichier(const fs::path& place, const fs::path& cible) {
  std::error_code refus;
  if (fs::is_regular_file(fs::symlink_status(place, refus))) {
    fs::rename(place, cible, refus);
  } else {
    Ecrit(cible, temoin);
  }
  PoseLien(cible, place);
}

void PoseLienDossier(const fs::path& place, const fs::path& cible) {
  std::error_code refus;
  fs::create_directory(cible, refus);
  Ecrit(cible / "temoin", temoin);
  PoseLien(cible, place);
}

void PoseDossierVide(const fs::path& place, const fs::path& /*cible*/) {
  std::error_code refus;
  Libere(place);
  fs::create_directory(place, refus);
}

template <std::size_t rang>
void PoseSpeciale(const fs::path& place, const fs::path& /*cible*/) {
  Libere(place);
  EntreesSpeciales().at(rang).pose(place);
}

using Pose = void (*)(const fs::path& place, const fs::path& cible);
constexpr std::array<Pose, nombreIntrus> poses{{
    PoseLienFichier,
    [](const fs::path& place, const fs::path& cible) { PoseLien(cible, place); },
    [](const fs::path& place, const fs::path& /*cible*/) { PoseLien(place.filename(), place); },
    PoseLienDossier,
    PoseDossierVide,
    PoseSpeciale<0>,
    PoseSpeciale<1>,
    PoseSpeciale<2>,
}};

void Exige(bool tenue, const std::string& sinon) {
  if (!tenue) {
    throw std::logic_error(sinon);
  }
}

}  // namespace

const std::vector<std::string>& NomsDuDossier() {
  static const std::vector<std::string> noms = [] {
    std::vector<std::string> n{std::string(sauvegarde), "IMAGE", "IMAGE/soupe.png"};
    for (std::size_t i = 0; i < nombreFichiers; ++i) {
      const auto fichier = static_cast<Donnees>(i);
      n.insert(n.end(), {Nom(fichier), Nom(fichier) + "~", NomFabrique(fichier)});
    }
    for (const Donnees fichier : recettes) {
      n.insert(n.end(), {NomSauve(fichier), NomSauve(fichier) + "~"});
    }
    n.emplace_back(fichierNotes);
    n.emplace_back(copies);
    for (const Donnees fichier : recettes) {
      n.push_back(NomTemporaire(fichier));
    }
    return n;
  }();
  return noms;
}

std::string Glisse(std::string_view nom, Intrus intrus) {
  const auto& noms = NomsDuDossier();
  const auto place = std::find(noms.begin(), noms.end(), nom) - noms.begin();
  return {static_cast<char>(place), static_cast<char>(intrus)};
}

DossierReel::DossierReel() {
  fs::create_directory(dedans_);
  fs::create_directory(dehors_);
}

void DossierReel::Pose(std::string_view paires) {
  const auto& noms = NomsDuDossier();
  for (; paires.size() > 1; paires.remove_prefix(2)) {
    PoseUn(noms[static_cast<unsigned char>(paires[0]) % noms.size()],
           static_cast<Intrus>(static_cast<unsigned char>(paires[1]) % nombreIntrus));
  }
  dedansAvant_ = Releve(dedans_);
  dehorsAvant_ = Releve(dehors_);
}

void DossierReel::PoseUn(const std::string& nom, Intrus intrus) {
  const fs::path place = dedans_ / nom;
  std::string plat = nom;
  std::replace(plat.begin(), plat.end(), '/', '-');
  std::error_code refus;
  fs::create_directory(place.parent_path(), refus);
  try {
    poses.at(static_cast<std::size_t>(intrus))(place, dehors_ / plat);
  } catch (const std::runtime_error&) {
    return;  // another intruder is in the way
  }
}

DossierReel::Inventaire DossierReel::Releve(const fs::path& dossier) {
  Inventaire inventaire;
  for (const fs::directory_entry& entree : fs::recursive_directory_iterator(dossier)) {
    inventaire[entree.path().lexically_relative(dossier).string()] = Description(entree);
  }
  return inventaire;
}

void DossierReel::Verifie() const {
  static const std::set<std::string> siens = NomsDuProgramme();
  Inventaire dehors = Releve(dehors_);
  for (const auto& [nom, etat] : dehorsAvant_) {
    Exige(dehors[nom] == etat || EstDonnees(nom), "dehors, un fichier changé : " + nom);
  }
  for (const auto& [nom, etat] : dehors) {
    Exige(dehorsAvant_.contains(nom) || EstSauve(nom), "dehors, un nouveau nom : " + nom);
  }
  Inventaire dedans = Releve(dedans_);
  for (const auto& [nom, etat] : dedans) {
    Exige(dedansAvant_.contains(nom) || siens.contains(nom), "un nom de trop : " + nom);
  }
  for (const auto& [nom, etat] : dedansAvant_) {
    Exige(!nom.ends_with('~') || dedans[nom] == etat, "un nom provisoire pris : " + nom);
  }
}

}  // namespace gastrelle::essai
