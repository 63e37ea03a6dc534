// The folder of somebody who has cooked with the program for a while.
#pragma once

#include <functional>

#include "accidents/EtatRecettes.h"
#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

/// Two families and two recipes of the factory; of the user's three families and four recipes, with
/// a picture, without one, without a text; deleted ones of both kinds between them, and a text that
/// replaced another. The backup copy is older: it doesn't have the last recipe. The program has
/// been started on it.
class BibliothequeEnUsage : public Bibliotheque {
 public:
  BibliothequeEnUsage();

  /// The recipes of the .DAT files; files that aren't whole fail the test.
  [[nodiscard]] RecettesLues Recettes() const;
  /// One more recipe, as the program's next start finds it.
  void AjouteEncore(std::string_view titre);

  RecettesLues avant;

 private:
  template <class T>
  void Efface(const char* nom, std::int32_t numero);
  void RemplaceTexte(std::int32_t recette, std::string_view texte);
};

}  // namespace gastrelle::essai
