#include "fiches/CatalogueFiches.h"

#include "data/ChangementCatalogue.h"
#include "data/Limites.h"
#include "data/ListeVivants.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

ReferenceTexte Texte(RecFiche& fiche) {
  return {fiche.posTexte, fiche.lgTexte};
}

void ExigePourEcrire(Module1& module, const FichiersFiches& fichiers, bool avecTexte) {
  ExigeFiches(module, fichiers);
  if (avecTexte) {
    ExigeFichier(module, fichiers.textes);
  }
}

}  // namespace

void ExigeFiches(Module1& module, const FichiersFiches& fichiers) {
  ExigeFichier(module, fichiers.fiches);
}

Liste ListeFiches(Module1& module, const FichiersFiches& fichiers) {
  ExigeFiches(module, fichiers);
  auto& tampon = module.*fichiers.tampon;
  return ListeReparee(tampon, tampon.courant());
}

std::string LitFiche(Module1& module, const FichiersFiches& fichiers, std::int32_t numero) {
  ExigeFiches(module, fichiers);
  ExigeFichier(module, fichiers.textes);
  auto& tampon = module.*fichiers.tampon;
  tampon.LitCourant(numero);
  const RecFiche& fiche = tampon.courant();
  return fiche.posTexte < 1
             ? std::string{}
             : (module.*fichiers.reserve).Lit(fiche.posTexte, fiche.lgTexte, limiteTexte);
}

std::int32_t AjouteFiche(Module1& module, const FichiersFiches& fichiers, std::string_view titre,
                         std::string_view texte) {
  ExigePourEcrire(module, fichiers, !texte.empty());
  auto& tampon = module.*fichiers.tampon;
  RecFiche& fiche = tampon.courant();
  fiche.actif = vivant;
  fiche.titre = titre;
  AjouteTexte(module.*fichiers.reserve, Texte(fiche), texte);
  return AjouteCourant(tampon);
}

void ChangeFiche(Module1& module, const FichiersFiches& fichiers, std::int32_t numero,
                 std::string_view titre, std::string_view texte) {
  ExigePourEcrire(module, fichiers, !texte.empty());
  auto& tampon = module.*fichiers.tampon;
  RecFiche& fiche = tampon.courant();
  (module.*fichiers.reserve).Remplace(Texte(fiche), texte);
  fiche.actif = vivant;
  fiche.titre = titre;
  tampon.EcritCourant(numero);
}

void SupprimeFiche(Module1& module, const FichiersFiches& fichiers, std::int32_t numero) {
  ExigeFiches(module, fichiers);
  SupprimeEnregistrement(module.*fichiers.tampon, numero);
}

}  // namespace gastrelle
