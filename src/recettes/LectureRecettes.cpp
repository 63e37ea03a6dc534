#include "recettes/LectureRecettes.h"

#include "data/Limites.h"
#include "data/ListeVivants.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

void LitImage(Module1& module, std::int32_t numero, RecetteLue& lue) {
  RecRecette& recette = module.bufRecette.courant();
  const std::string chemin =
      module.chemins.Developpe(module.cheminsImages.Lit(recette.posImage, recette.lgImage));
  if (ImageExiste(module, chemin)) {
    lue.image = chemin;
    return;
  }
  ReferenceTexte{recette.posImage, recette.lgImage}.Efface();
  module.bufRecette.EcritCourant(numero);
  lue.imagePerdue = chemin;
}

}  // namespace

void ExigeFamilles(Module1& module) {
  ExigeFichier(module, Donnees::GLR1);
}

Liste ListeFamilles(Module1& module) {
  Liste familles;
  AjouteVivants(module.bufFamille, module.bufFamille.courant(), familles);
  return familles;
}

Liste RecettesDeFamille(Module1& module, std::int32_t idFamille) {
  ExigeFichier(module, Donnees::GLR2);
  return ListeReparee(module.bufRecette, module.bufRecette.courant(),
                      [&](const RecRecette& r) { return r.idFamille == idFamille; });
}

Liste ToutesRecettes(Module1& module) {
  ExigeFichier(module, Donnees::GLR2);
  return ListeReparee(module.bufRecette, module.bufRecette.courant());
}

RecetteLue LitRecette(Module1& module, std::int32_t numero) {
  for (const Donnees fichier : {Donnees::GLR2, Donnees::GLR3, Donnees::GLR4}) {
    ExigeFichier(module, fichier);
  }
  module.bufRecette.LitCourant(numero);
  const RecRecette& recette = module.bufRecette.courant();
  RecetteLue lue;
  if (recette.posTexte >= 1) {
    lue.texte = module.textesRecettes.Lit(recette.posTexte, recette.lgTexte, limiteTexte);
  }
  lue.associee = recette.posImage != 0;
  if (lue.associee) {
    LitImage(module, numero, lue);
  }
  return lue;
}

RecRecette LitEnregistrementRecette(Module1& module, std::int32_t numero) {
  ExigeFichier(module, Donnees::GLR2);
  ExigeFichier(module, Donnees::GLR3);
  RecRecette recette;
  module.bufRecette.Lit(numero, recette);
  return recette;
}

}  // namespace gastrelle
