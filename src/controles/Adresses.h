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

/// The address of a link: the setting "SiteWeb", "PageRecettes" or "Courrier" of the section
/// "Adresses", or the build's own. Empty if there is none.
QString Adresse(Lien lien);
/// What is shown for a link: its address, or the words for the page of presentation.
QString TexteDuLien(Lien lien);

/// Asks the system to open an address as it opens that link; tells the user when no application is
/// associated with it. All other failures are ignored.
void OuvreLien(Module1& module, Lien lien, const QString& adresse);
/// The same, of the link's own address; without one, of what the page of presentation in the
/// program's folder says on that subject.
void OuvreLien(Module1& module, Lien lien);

}  // namespace gastrelle
