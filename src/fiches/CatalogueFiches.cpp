#include "fiches/CatalogueFiches.h"

#include "data/ChangementCatalogue.h"
#include "data/ListeVivants.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

ReferenceTexte Texte(RecFiche& fiche) {
  return {fiche.posTexte, fiche.lgTexte};
}

}  // namespace

void CatalogueFiches::ExigeFichiers(bool avecTexte) {
  ExigeFichier(module_, fichiers_.fiches);
  if (avecTexte) {
    ExigeFichier(module_, fichiers_.textes);
  }
}

Liste CatalogueFiches::ListeTitres() {
  ExigeFichiers(false);
  return ListeReparee(tampon(), tampon().courant());
}

std::string CatalogueFiches::LitTexte(std::int32_t numero) {
  ExigeFichiers(true);
  tampon().LireCourant(numero);
  const RecFiche& fiche = tampon().courant();
  return fiche.posTexte < 1 ? std::string{}
                            : reserve().Lire(fiche.posTexte, fiche.lgTexte, limiteTexteFiche);
}

std::int32_t CatalogueFiches::Ajoute(std::string_view titre, std::string_view texte) {
  ExigeFichiers(!texte.empty());
  RecFiche& fiche = tampon().courant();
  fiche.actif = vivant;
  fiche.titre = titre;
  AjouteTexte(reserve(), Texte(fiche), texte);
  return AjouteCourant(tampon());
}

void CatalogueFiches::Change(std::int32_t numero, std::string_view titre, std::string_view texte) {
  ExigeFichiers(!texte.empty());
  RecFiche& fiche = tampon().courant();
  reserve().Remplace(Texte(fiche), texte);
  fiche.actif = vivant;
  fiche.titre = titre;
  tampon().EcrireCourant(numero);
}

void CatalogueFiches::Supprime(std::int32_t numero) {
  ExigeFichiers(false);
  SupprimeEnregistrement(tampon(), numero);
}

}  // namespace gastrelle
