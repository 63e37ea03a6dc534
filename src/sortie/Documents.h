// The documents that go to another program: what a window shows, as a text file in the program's
// folder.
#pragma once

#include <string>
#include <string_view>

#include "data/Module1.h"
#include "data/Vues.h"
#include "sortie/LignesTexte.h"

namespace gastrelle {

// The body of each document, behind the heading.
[[nodiscard]] LignesTexte EcritRecette(const VueRecette& vue);
[[nodiscard]] LignesTexte EcritFromage(const VueFromage& vue);
[[nodiscard]] LignesTexte EcritMenu(const VueMenu& vue);
[[nodiscard]] LignesTexte EcritVin(const VueVin& vue);
[[nodiscard]] LignesTexte EcritFromagesTries(const VueFromagesTries& vue);
[[nodiscard]] LignesTexte EcritVinsTries(const VueVinsTries& vue);
[[nodiscard]] LignesTexte EcritCave(const VueCave& vue);
[[nodiscard]] LignesTexte EcritMillesimes(const VueMillesimes& vue);
[[nodiscard]] LignesTexte EcritTruc(const VueTruc& vue);
[[nodiscard]] LignesTexte EcritFavori(const VueFavori& vue);
[[nodiscard]] LignesTexte EcritFavorisTries(const VueFavorisTries& vue);

/// A document: the stem of its file's name, and its body. A view that has no document has no stem.
struct Document {
  std::string_view radical;
  LignesTexte corps;
};

[[nodiscard]] Document DocumentDe(const Vue& vue);

/// Writes the heading and the body into a file of the program's folder, which replaces one of the
/// same name. False on a failure: the file may then be there, partly written. Says nothing.
[[nodiscard]] bool EcritDocument(Module1& module, const std::string& nom, const LignesTexte& corps);

}  // namespace gastrelle
