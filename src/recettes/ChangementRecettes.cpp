#include "recettes/ChangementRecettes.h"

#include "data/ChangementCatalogue.h"
#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"

namespace gastrelle {
namespace {

/// The picture's path goes to the end of its pool, also when it hasn't changed.
void EcritImage(Module1& module, std::string_view image) {
  RecRecette& recette = module.bufRecette.courant();
  AjouteTexte(module.cheminsImages, {recette.posImage, recette.lgImage}, image);
}

void PoseNoms(RecRecette& recette, const RecetteSaisie& saisie) {
  recette.actif = vivant;
  recette.idFamille = saisie.idFamille;
  recette.nomRecette = saisie.titre;
}

}  // namespace

std::int32_t AjouteFamille(Module1& module, std::string_view nom) {
  ExigeFichier(module, Donnees::GLR1);
  RecFamille& famille = module.bufFamille.courant();
  famille.actif = vivant;
  famille.nomFamille = nom;
  return AjouteCourant(module.bufFamille);
}

void ExigePourAjout(Module1& module, bool avecTexte, bool avecImage) {
  ExigeFichier(module, Donnees::GLR2);
  if (avecTexte) {
    ExigeFichier(module, Donnees::GLR3);
  }
  if (avecImage) {
    ExigeFichier(module, Donnees::GLR4);
  }
}

std::int32_t AjouteRecette(Module1& module, const RecetteSaisie& saisie) {
  RecRecette& recette = module.bufRecette.courant();
  PoseNoms(recette, saisie);
  AjouteTexte(module.textesRecettes, {recette.posTexte, recette.lgTexte}, saisie.texte);
  EcritImage(module, saisie.image);
  return AjouteCourant(module.bufRecette);
}

void RenommeFamille(Module1& module, std::int32_t numero, std::string_view nom) {
  RecFamille& famille = module.bufFamille.courant();
  famille.actif = vivant;
  famille.nomFamille = nom;
  module.bufFamille.EcritCourant(numero);
}

void ChangeRecette(Module1& module, std::int32_t numero, const RecetteSaisie& saisie) {
  RecRecette& recette = module.bufRecette.courant();
  PoseNoms(recette, saisie);
  module.textesRecettes.Remplace({recette.posTexte, recette.lgTexte}, saisie.texte);
  EcritImage(module, saisie.image);
  module.bufRecette.EcritCourant(numero);
}

bool TitreDansAutreFamille(Module1& module, std::int32_t familleActuelle, std::int32_t famille,
                           std::string_view titre) {
  const std::string cherche = Majuscules(titre);
  bool trouve = false;
  RecRecette lue;
  module.bufRecette.ParcourtTous(lue, [&](std::int32_t) {
    trouve = lue.actif == vivant && lue.idFamille != familleActuelle && lue.idFamille == famille &&
             Majuscules(Rogne(lue.nomRecette.brut())) == cherche;
    return !trouve;
  });
  return trouve;
}

void SupprimeFamille(Module1& module, std::int32_t numero, std::span<const EntreeListe> recettes) {
  ExigeFichier(module, Donnees::GLR1);
  ExigeFichier(module, Donnees::GLR2);
  for (const EntreeListe& recette : recettes) {
    Efface(module.bufRecette, recette.numero);
  }
  if (!recettes.empty()) {
    module.bufRecette.Compte(-static_cast<std::int64_t>(recettes.size()));
  }
  SupprimeEnregistrement(module.bufFamille, numero);
}

void SupprimeRecette(Module1& module, std::int32_t numero) {
  ExigeFichier(module, Donnees::GLR2);
  SupprimeEnregistrement(module.bufRecette, numero);
}

}  // namespace gastrelle
