// A folder that is being filled under a name of its own, until it is whole.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "plateforme/AccesFichiers.h"
#include "plateforme/Instance.h"

namespace gastrelle {

/// The folder of the pictures, in the program's folder and in one that is being filled.
inline constexpr std::string_view dossierDesImages = "IMAGE";

/// Made anew, with a folder of pictures, and held by a lock; what it holds goes with the object
/// unless it has become something else. Names are those of `AccesFichiers`. Every call throws
/// ErreurExecution on a failure.
class Chantier {
 public:
  /// Takes the name `nom` with "~" behind it, then "~2", "~3"... where somebody has that one. A
  /// folder that holds nothing but files `connus` and a folder of pictures, and in which nobody is
  /// at work, is what an interrupted filling has left: it is cleared. Links are somebody's, and not
  /// followed.
  Chantier(AccesFichiers& place, const std::string& nom, const std::set<std::string>& connus);
  Chantier(const Chantier&) = delete;
  Chantier& operator=(const Chantier&) = delete;
  ~Chantier();

  /// The name of a piece in there, as `place` knows it.
  [[nodiscard]] std::string De(std::string_view piece) const;
  /// Copies a piece of another folder, under the same name, down to the device.
  void Copie(AccesFichiers& source, const std::string& piece);
  /// Brings the names of all pieces to the device.
  void SynchroniseNoms();
  /// Gives the whole folder another name in one step. Fails where that is taken by anything but an
  /// empty folder. The lock, which now is the one of that folder.
  [[nodiscard]] std::unique_ptr<Instance> Devient(const std::string& nom);

 private:
  [[nodiscard]] bool PrisPar(const std::string& nom);
  [[nodiscard]] bool Libere(const std::string& nom, const std::set<std::string>& connus);
  [[nodiscard]] bool EstLa(const std::string& nom);
  void Efface(const std::string& nom);

  AccesFichiers& place_;
  std::string nom_;  // empty once it has become something else
  std::unique_ptr<Instance> verrou_;
  int sansVerrou_ = 0;
};

}  // namespace gastrelle
