// Where the program works: in its own folder, or, where it is installed for everybody, in one that
// belongs to its user.
#pragma once

#include <filesystem>
#include <memory>

#include "plateforme/Instance.h"

namespace gastrelle {

struct Emplacement {
  std::filesystem::path dossier;
  std::unique_ptr<Instance> instance;  ///< the folder's lock
  /// Somebody else has the lock. False for a folder that isn't there, which nobody can lock.
  bool dejaEnCours = false;
};

/// Where an installed program's factory copies lie, seen from the program's folder.
std::filesystem::path DossierModeles(const std::filesystem::path& dossierProgramme);

/// Chooses the folder and locks it. Data or factory copies beside the program make it the
/// program's own; so does a program without a folder of factory copies elsewhere, or a system that
/// gives users no folder (`donneesUtilisateur` empty). Otherwise it is the folder "gastrelle" in
/// there, laid or renewed first. Never throws: what couldn't be laid isn't there, and the start
/// tells of it.
Emplacement OccupeEmplacement(const std::filesystem::path& dossierProgramme,
                              const std::filesystem::path& donneesUtilisateur);

}  // namespace gastrelle
