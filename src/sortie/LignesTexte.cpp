#include "sortie/LignesTexte.h"

namespace gastrelle {

void AjouteDetails(LignesTexte& lignes, const VueFavori& vue) {
  lignes.push_back(Joint("Catégorie : "_1252, vue.categorie));
  lignes.push_back(Joint("Adresse : ", vue.adresse));
  lignes.push_back(Joint("Téléphone : "_1252, vue.telephone));
  lignes.push_back(Joint("Fax : ", vue.fax));
  lignes.push_back(Joint("E-mail : ", vue.email));
  lignes.push_back(Joint("Site Web : ", vue.siteWeb));
  lignes.push_back(Joint("Notes : ", vue.notes));
}

}  // namespace gastrelle
