#include "data/Emplacement.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "data/CatalogueFichiers.h"
#include "data/DossierPersonnel.h"
#include "plateforme/Disque.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

namespace fs = std::filesystem;

constexpr const char* nomDossier = "gastrelle";

bool EstDossier(const fs::path& chemin) {
  std::error_code sansMot;
  return fs::is_directory(chemin, sansMot);
}

/// A data file or a factory copy lies there, or at least its name.
bool TientDesDonnees(const fs::path& dossier) {
  const auto la = [&](const std::string& nom) {
    std::error_code sansMot;
    return fs::exists(fs::symlink_status(dossier / nom, sansMot));
  };
  return std::any_of(catalogueFichiers.begin(), catalogueFichiers.end(),
                     [&](const LigneCatalogue& ligne) {
                       fs::path fabrique(ligne.nom);
                       fabrique.replace_extension("stp");
                       return la(std::string(ligne.nom)) || la(fabrique.string());
                     });
}

/// Makes the folders that are missing on the way to a folder, for their user alone. What can't be
/// made is met by whoever uses it.
void OuvreChemin(const fs::path& chemin) {
  fs::path entier;
  for (const fs::path& etape : chemin) {
    entier /= etape;
    std::error_code sansMot;
    if (fs::create_directory(entier, sansMot)) {
      fs::permissions(entier, fs::perms::owner_all, sansMot);
    }
  }
}

}  // namespace

fs::path DossierModeles(const fs::path& dossierProgramme) {
  return dossierProgramme.parent_path().parent_path() / "share" / nomDossier;
}

Emplacement OccupeEmplacement(const fs::path& dossierProgramme,
                              const fs::path& donneesUtilisateur) {
  const fs::path chezModeles = DossierModeles(dossierProgramme);
  Emplacement choisi;
  if (donneesUtilisateur.empty() || TientDesDonnees(dossierProgramme) || !EstDossier(chezModeles)) {
    choisi.dossier = dossierProgramme;
    choisi.instance = Instance::Prend(choisi.dossier);
    choisi.dejaEnCours = choisi.instance == nullptr;
    return choisi;
  }
  choisi.dossier = donneesUtilisateur / nomDossier;
  Disque modeles(chezModeles);
  if (!EstDossier(choisi.dossier)) {
    OuvreChemin(donneesUtilisateur);
    Disque place(donneesUtilisateur);
    PasseOutre([&] { choisi.instance = PoseDossierPersonnel(modeles, place, nomDossier); });
  }
  if (choisi.instance == nullptr) {
    choisi.instance = Instance::Prend(choisi.dossier);
  }
  if (choisi.instance != nullptr) {
    Disque personnel(choisi.dossier);
    PasseOutre([&] { RenouvelleDossierPersonnel(modeles, personnel); });
  }
  choisi.dejaEnCours = choisi.instance == nullptr && EstDossier(choisi.dossier);
  return choisi;
}

}  // namespace gastrelle
