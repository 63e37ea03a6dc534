#include "fromages/CatalogueFromages.h"

#include "data/ChangementCatalogue.h"
#include "data/ListeVivants.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

std::string_view NomDuCode(std::span<const std::string_view> noms, std::int16_t code) {
  if (code < 0 || static_cast<std::size_t>(code) >= noms.size()) {
    throw ErreurExecution(Panne::appelIncorrect);
  }
  return noms[static_cast<std::size_t>(code)];
}

ReferenceTexte Notes(RecFromage& fromage) {
  return {fromage.posTexte, fromage.lgTexte};
}

/// The record's own file, and the pool when it is going to be used.
void ExigePourEcrire(Module1& module, bool avecNotes) {
  ExigeFromages(module);
  if (avecNotes) {
    ExigeFichier(module, Donnees::GLF2);
  }
}

void PoseChamps(RecFromage& fromage, const FromageSaisi& saisi) {
  fromage.actif = vivant;
  fromage.nomFromage = saisi.nom;
  fromage.regionFromage = saisi.region;
  fromage.lait = saisi.lait;
  fromage.premierMois = saisi.premierMois;
  fromage.dernierMois = saisi.dernierMois;
}

}  // namespace

Liste ListeCodes(std::span<const std::string_view> noms) {
  Liste codes;
  for (const std::string_view nom : noms) {
    codes.push_back({std::string(nom), static_cast<std::int32_t>(codes.size())});
  }
  return codes;
}

void ExigeFromages(Module1& module) {
  ExigeFichier(module, Donnees::GLF1);
}

Liste ListeFromages(Module1& module) {
  return ListeReparee(module.bufFromage, module.bufFromage.courant());
}

Liste FromagesAuLait(Module1& module, std::int16_t lait) {
  RecFromage lu;
  return ListeReparee(module.bufFromage, lu,
                      [lait](const RecFromage& fromage) { return fromage.lait == lait; });
}

VueFromage LitFromage(Module1& module, std::int32_t numero) {
  ExigeFromages(module);
  module.bufFromage.LitCourant(numero);
  const RecFromage& fromage = module.bufFromage.courant();
  VueFromage lu;
  if (fromage.posTexte > 0) {
    ExigeFichier(module, Donnees::GLF2);
    lu.notes = module.textesFromages.Lit(fromage.posTexte, fromage.lgTexte);
  }
  lu.nom = Rogne(fromage.nomFromage.brut());
  lu.region = Rogne(fromage.regionFromage.brut());
  lu.lait = NomDuCode(laitNoms, fromage.lait);
  lu.premierMois = NomDuCode(moisNoms, fromage.premierMois);
  lu.dernierMois = NomDuCode(moisNoms, fromage.dernierMois);
  return lu;
}

std::int32_t AjouteFromage(Module1& module, const FromageSaisi& saisi) {
  ExigePourEcrire(module, !saisi.notes.empty());
  RecFromage& fromage = module.bufFromage.courant();
  AjouteTexte(module.textesFromages, Notes(fromage), saisi.notes);
  PoseChamps(fromage, saisi);
  return AjouteCourant(module.bufFromage);
}

void ChangeFromage(Module1& module, std::int32_t numero, const FromageSaisi& saisi) {
  ExigePourEcrire(module, !saisi.notes.empty());
  RecFromage& fromage = module.bufFromage.courant();
  module.textesFromages.Remplace(Notes(fromage), saisi.notes);
  PoseChamps(fromage, saisi);
  module.bufFromage.EcritCourant(numero);
}

void SupprimeFromage(Module1& module, std::int32_t numero) {
  ExigeFromages(module);
  SupprimeEnregistrement(module.bufFromage, numero);
}

}  // namespace gastrelle
