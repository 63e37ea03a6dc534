// A program folder on the disk of the machine, for what a folder in memory can't prove: names under
// which something else than a file lies, put there by a stranger. Around it lies what he would have
// the program harm.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "doublures/Bibliotheque.h"
#include "plateforme/Disque.h"

namespace gastrelle::essai {

/// What lies under a name.
enum class Intrus : unsigned {
  lienFichier,  ///< a link to a file outside: the very file of that name, or a witness
  lienPendant,  ///< a link to a file outside that isn't there
  lienSurSoi,   ///< a link to itself
  lienDossier,  ///< a link to a folder outside with a witness in it
  dossier,
  tube,
  prise,
  peripherique,  ///< a link to a device
};
inline constexpr std::size_t nombreIntrus = 8;
inline constexpr std::array<std::string_view, nombreIntrus> nomsIntrus{
    "lien-fichier", "lien-pendant", "lien-sur-soi", "lien-dossier",
    "dossier",      "tube",         "prise",        "peripherique"};

/// The names that matter to the program: its files, their factory copies, their copies under way,
/// its folders and what they hold.
const std::vector<std::string>& NomsDuDossier();

/// Two bytes of an input: a name of `NomsDuDossier` and what lies under it.
std::string Glisse(std::string_view nom, Intrus intrus);

/// Goes with the object. Its calls throw std::logic_error where a promise is broken.
class DossierReel {
 public:
  DossierReel();

  [[nodiscard]] AccesFichiers& disque() { return disque_; }
  [[nodiscard]] std::string chemin() const { return dedans_.string(); }

  /// Puts an intruder under one name after the other; pairs as `Glisse` makes them. What the system
  /// refuses isn't laid. Then looks at everything, inside and outside.
  void Pose(std::string_view paires);

  /// Nothing outside has changed but what the program was led to by links that its user may lay: a
  /// data file elsewhere, the backup elsewhere. Inside there is no new name but the program's own,
  /// and what lay under the names of copies under way lies there still.
  void Verifie() const;

 private:
  /// What a folder holds, links not followed: a name, and its kind with its bytes or its target.
  using Inventaire = std::map<std::string, std::string>;
  static Inventaire Releve(const std::filesystem::path& dossier);

  void PoseUn(const std::string& nom, Intrus intrus);

  DossierEssai racine_;
  std::filesystem::path dedans_ = racine_.chemin() / "dedans";
  std::filesystem::path dehors_ = racine_.chemin() / "dehors";
  Disque disque_{dedans_};
  Inventaire dedansAvant_;
  Inventaire dehorsAvant_;
};

}  // namespace gastrelle::essai
