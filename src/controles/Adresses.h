// The addresses that the program hands to the system's shell: settings, with a default, in one
// place.
#pragma once

#include <cstdint>

#include <QString>

#include "data/Module1.h"

namespace gastrelle {

enum class Lien : std::uint8_t {
  site,      ///< the product's web site
  recettes,  ///< its page of new recipes
  courrier,  ///< its mail address
};

/// The address of a link as it is shown: the setting "SiteWeb", "PageRecettes" or "Courrier" of the
/// section "Adresses", or its default.
QString Adresse(Lien lien);

/// Asks the system to open an address as it opens that link; tells the user when no application is
/// associated with it. All other failures are ignored.
void OuvreLien(Module1& module, Lien lien, const QString& adresse);
/// The same, of the link's own address.
inline void OuvreLien(Module1& module, Lien lien) {
  OuvreLien(module, lien, Adresse(lien));
}

}  // namespace gastrelle
