// The tab "Supprimer" of the favourites' window, with verbs for its tests.
#pragma once

#include "favoris/fenetre/FenetreFavoris.h"

namespace gastrelle::essai {

class SuppressionFavoris : public FenetreFavoris {
 protected:
  QComboBox& categories() { return Le<QComboBox>("ComboCategorieSupprimer"); }
  void Supprime() {
    b.disque.OublieJournal();
    Clique(Le("cmdValideSupprimer"));
  }
  /// With the answer to its question.
  void Supprime(Reponse reponse) {
    b.messages.reponses = {reponse};
    Supprime();
  }
  /// "Affineur" (16) and "Zinc" (18) in "Artisans" (5), "Boucher" (17) in "Catégorie 002".
  static void AjouteDeuxArtisans(Bibliotheque& bibliotheque) {
    AjouteAffineur(bibliotheque);
    bibliotheque.AjouteFavori(Favori("Boucher", 2));
    bibliotheque.AjouteFavori(Favori("Zinc", 5));
  }
  /// Opens the tab on the category "Artisans". The wines' file is that of the factory: it lets the
  /// deletion see 81 records.
  void OuvreSurLesArtisans() {
    b.GarnitVins();
    AjouteDeuxArtisans(b);
    Ouvre(4);
    Clique(Le("Option3(0)"));
  }
};

}  // namespace gastrelle::essai
