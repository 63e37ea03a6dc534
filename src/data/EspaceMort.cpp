#include "data/EspaceMort.h"

namespace gastrelle {

Encombrement MesureRecettes(Module1& module) {
  Encombrement mesure;
  for (const Donnees fichier : fichiersRecettes) {
    mesure.taille += Ouvert(module.Place(fichier)).Longueur();
  }
  mesure.necessaire =
      (module.bufFamille.nbActifs() + 1) * decltype(module.bufFamille)::longueur +
      (module.bufRecette.nbActifs() + 1) * decltype(module.bufRecette)::longueur +
      static_cast<std::int64_t>(Signature(Donnees::GLR3).size() + Signature(Donnees::GLR4).size());
  RecRecette recette;
  module.bufRecette.ParcourtVivants(recette, [&](std::int32_t) {
    mesure.necessaire += recette.posTexte > 0 ? recette.lgTexte : 0;
    mesure.necessaire += recette.posImage > 0 ? recette.lgImage : 0;
  });
  return mesure;
}

}  // namespace gastrelle
