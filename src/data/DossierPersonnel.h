// The folder of one's own that a user gets from an installed program: what the factory brings is
// copied there, whole or not at all, and renewed when the program is of another edition.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "plateforme/AccesFichiers.h"
#include "plateforme/Instance.h"

namespace gastrelle {

/// Which edition lies in a folder: a small file that the package brings with the factory copies and
/// that is laid last, so that it stands for all of them.
inline constexpr std::string_view fichierEdition = "EDITION";

/// Lays the folder `nom` of `place`: the factory copies, the help, the sound and the two pages, the
/// pictures, as `modeles` has them. The name is there once everything is on the device, and not
/// before; a failure leaves nothing of what was laid. The lock on the new folder. Throws
/// ErreurExecution on a failure, also if the name is taken.
[[nodiscard]] std::unique_ptr<Instance> PoseDossierPersonnel(AccesFichiers& modeles,
                                                             AccesFichiers& place,
                                                             const std::string& nom);

/// Where the folder bears another edition than `modeles`, or none, what the factory brings is
/// replaced, and pictures that aren't there are added. Everything else stays as it is. The old
/// edition goes once the new one is on the device. The folder's lock must be held. Throws
/// ErreurExecution on a failure; the next call then begins anew.
void RenouvelleDossierPersonnel(AccesFichiers& modeles, AccesFichiers& personnel);

}  // namespace gastrelle
