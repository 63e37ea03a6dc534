#include "data/Chantier.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <span>
#include <vector>

#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr int nomsEssayes = 100;
constexpr std::size_t tailleBloc = 1U << 18U;

std::string Dans(const std::string& dossier, std::string_view nom) {
  return dossier + "/" + std::string(nom);
}

/// The folder and the one of its pictures, the inner one first.
std::array<std::string, 2> Dossiers(const std::string& nom) {
  return {Dans(nom, dossierDesImages), nom};
}

bool Contient(const std::vector<std::string>& noms, const std::string& nom) {
  return std::find(noms.begin(), noms.end(), nom) != noms.end();
}

std::unique_ptr<Instance> Verrou(const AccesFichiers& place, const std::string& nom) {
  const std::string chemin = place.CheminEntier(nom);
  return Instance::Prend(std::filesystem::path(std::u8string(chemin.begin(), chemin.end())));
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

/// Makes the folder and locks it. False where the name is somebody else's.
bool Chantier::PrisPar(const std::string& nom) {
  try {
    place_.CreeDossier(nom);
  } catch (const ErreurExecution&) {
    if (!EstLa(nom)) {
      throw;
    }
    return false;
  }
  verrou_ = Verrou(place_, nom);
  if (verrou_ == nullptr) {  // whoever clears away remains may have been quicker
    PasseOutre([&] { place_.SupprimeDossier(nom); });
  }
  return verrou_ != nullptr;
}

/// A folder, and no link to one, that holds nothing unknown.
bool Chantier::EstReste(const std::string& nom, const std::set<std::string>& connus) {
  if (!place_.DossierExiste(nom) || Contient(place_.FichiersDe({}), nom)) {
    return false;
  }
  for (const std::string& dossier : Dossiers(nom)) {
    if (!place_.DossierExiste(dossier)) {
      continue;
    }
    const std::vector<std::string> fichiers = place_.FichiersDe(dossier);
    const auto connu = [&](const std::string& fichier) {
      return connus.contains(Dans(dossier, fichier).substr(nom.size() + 1));
    };
    if (!std::all_of(fichiers.begin(), fichiers.end(), connu)) {
      return false;
    }
  }
  return true;
}

/// Clears remains of that name. False where they aren't remains, or somebody is at work there.
bool Chantier::Libere(const std::string& nom, const std::set<std::string>& connus) {
  bool libere = false;
  PasseOutre([&] {
    const std::unique_ptr<Instance> verrou = EstReste(nom, connus) ? Verrou(place_, nom) : nullptr;
    if (verrou != nullptr) {
      Efface(nom);
      libere = true;
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
