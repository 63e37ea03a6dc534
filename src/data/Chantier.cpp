#include "data/Chantier.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "plateforme/ErreurExecution.h"
#include "plateforme/TexteChemin.h"

namespace gastrelle {
namespace {

namespace fs = std::filesystem;

constexpr int nomsEssayes = 100;
/// Folders that were made and couldn't be locked: so many aren't others at work, the system has no
/// locks to give.
constexpr int sansVerrouAuPlus = 8;
constexpr std::size_t tailleBloc = 1U << 18U;

std::string Dans(std::string_view dossier, std::string_view nom) {
  return std::string(dossier) + "/" + std::string(nom);
}

/// The folder and the one of its pictures, the inner one first.
std::array<std::string, 2> Dossiers(const std::string& nom) {
  return {Dans(nom, dossierDesImages), nom};
}

bool Contient(const std::vector<std::string>& noms, const std::string& nom) {
  return std::find(noms.begin(), noms.end(), nom) != noms.end();
}

/// A folder, and no link to one, that holds plain files of known names and the folder of pictures,
/// nothing else. What can't be looked at counts as somebody's. The system is asked itself, since
/// `AccesFichiers` tells of no folder that a folder holds.
bool EstReste(const AccesFichiers& place, const std::string& nom,
              const std::set<std::string>& connus) {
  const fs::path racine = CheminDe(place.CheminEntier(nom));
  std::error_code erreur;
  bool reste = fs::symlink_status(racine, erreur).type() == fs::file_type::directory;
  fs::recursive_directory_iterator entree;
  if (reste) {
    entree = fs::recursive_directory_iterator(racine, erreur);
  }
  for (; reste && !erreur && entree != fs::recursive_directory_iterator();
       entree.increment(erreur)) {
    const std::string feuille = EnUtf8(entree->path().filename());
    const std::string piece = entree.depth() == 0 ? feuille : Dans(dossierDesImages, feuille);
    const fs::file_type nature = entree->symlink_status(erreur).type();
    reste = nature == fs::file_type::directory
                ? piece == dossierDesImages
                : nature == fs::file_type::regular && connus.contains(piece);
  }
  return reste && !erreur;
}

std::unique_ptr<Instance> Verrou(const AccesFichiers& place, const std::string& nom) {
  return Instance::Prend(CheminDe(place.CheminEntier(nom)));
}

}  // namespace

Chantier::Chantier(AccesFichiers& place, const std::string& nom,
                   const std::set<std::string>& connus)
    : place_(place) {
  for (int n = 1; n <= nomsEssayes; ++n) {
    const std::string essaye = nom + "~" + (n == 1 ? "" : std::to_string(n));
    if (PrisPar(essaye) || (Libere(essaye, connus) && PrisPar(essaye))) {
      nom_ = essaye;
      break;
    }
  }
  if (nom_.empty()) {
    throw ErreurExecution(Panne::accesFichier);
  }
  try {
    place_.CreeDossier(De(dossierDesImages));
  } catch (const ErreurExecution&) {
    Efface(nom_);
    throw;
  }
}

Chantier::~Chantier() {
  if (!nom_.empty()) {
    Efface(nom_);
  }
}

std::string Chantier::De(std::string_view piece) const {
  return Dans(nom_, piece);
}

void Chantier::Copie(AccesFichiers& source, const std::string& piece) {
  const std::unique_ptr<Fichier> lecture = source.OuvrePourLire(piece);
  const std::unique_ptr<Fichier> ecriture = place_.Cree(De(piece));
  std::vector<char> bloc(tailleBloc);
  std::int64_t decalage = 0;
  while (const std::size_t lus = lecture->Lit(decalage, bloc)) {
    ecriture->Ecrit(decalage, {bloc.data(), lus});
    decalage += static_cast<std::int64_t>(lus);
  }
  ecriture->Synchronise();
}

void Chantier::SynchroniseNoms() {
  for (const std::string& dossier : Dossiers(nom_)) {
    place_.SynchroniseNoms(dossier);
  }
}

std::unique_ptr<Instance> Chantier::Devient(const std::string& nom) {
  place_.Renomme(nom_, nom);
  nom_.clear();
  return std::move(verrou_);
}

/// Makes the folder and locks it. False where the name is somebody else's, or was a moment ago. A
/// folder without its lock isn't deleted: whoever clears away remains may have been quicker, and
/// made it anew.
bool Chantier::PrisPar(const std::string& nom) {
  try {
    place_.CreeDossier(nom);
  } catch (const ErreurExecution& erreur) {
    if (erreur.panne() != Panne::accesFichier && !EstLa(nom)) {
      throw;
    }
    return false;
  }
  verrou_ = Verrou(place_, nom);
  if (verrou_ == nullptr && ++sansVerrou_ == sansVerrouAuPlus) {
    throw ErreurExecution(Panne::accesFichier);
  }
  return verrou_ != nullptr;
}

/// Clears remains of that name. False where they aren't remains, or somebody is at work there, or
/// they don't go. What was seen before the lock may have been another's work, since finished.
bool Chantier::Libere(const std::string& nom, const std::set<std::string>& connus) {
  bool libere = false;
  PasseOutre([&] {
    const std::unique_ptr<Instance> verrou =
        EstReste(place_, nom, connus) ? Verrou(place_, nom) : nullptr;
    if (verrou != nullptr && EstReste(place_, nom, connus)) {
      Efface(nom);
      libere = !EstLa(nom);
    }
  });
  return libere;
}

bool Chantier::EstLa(const std::string& nom) {
  return place_.DossierExiste(nom) || Contient(place_.FichiersDe({}), nom);
}

void Chantier::Efface(const std::string& nom) {
  for (const std::string& dossier : Dossiers(nom)) {
    std::vector<std::string> fichiers;
    PasseOutre([&] { fichiers = place_.FichiersDe(dossier); });
    for (const std::string& fichier : fichiers) {
      PasseOutre([&] { place_.Supprime(Dans(dossier, fichier)); });
    }
    PasseOutre([&] { place_.SupprimeDossier(dossier); });
  }
}

}  // namespace gastrelle
