#include "vins/CatalogueVins.h"

#include "data/ChangementCatalogue.h"
#include "data/ListeVivants.h"
#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"
#include "vins/Cave.h"

namespace gastrelle {
namespace {

ReferenceTexte Notes(RecVin& vin) {
  return {vin.posTexte, vin.lgTexte};
}

/// A text of the pool; a wine that has none doesn't ask for the file.
std::string LitTexte(Module1& module, std::int32_t position, std::int32_t longueur) {
  if (position < 1) {
    return {};
  }
  ExigeFichier(module, Donnees::GLV3);
  return module.textesVins.Lit(position, longueur);
}

void PoseNom(RecRegion& region, std::string_view nom) {
  region.actif = vivant;
  region.nomRegion = nom;
}

void PoseSaisie(RecVin& vin, const VinSaisi& saisi) {
  vin.actif = vivant;
  vin.nomVin = saisi.nom;
  vin.idRegion = saisi.region;
}

/// Takes all bottles and the note on them off a wine, but for the length of the note.
void VideCave(RecVin& vin) {
  for (const CouleurVin& couleur : couleursVin) {
    vin.*couleur.nombre = 0;
  }
  vin.posNotesCave = 0;
}

}  // namespace

void ExigeVins(Module1& module) {
  ExigeFichier(module, Donnees::GLV2);
}

Liste ListeRegions(Module1& module) {
  Liste regions;
  AjouteVivants(module.bufRegion, module.bufRegion.courant(), regions);
  return regions;
}

Liste ListeVins(Module1& module) {
  return ListeReparee(module.bufVin, module.bufVin.courant());
}

Liste VinsDeLaRegion(Module1& module, std::int32_t region) {
  Liste vins;
  AjouteVivants(module.bufVin, module.bufVin.courant(), vins,
                [region](const RecVin& vin) { return vin.idRegion == region; });
  return vins;
}

VinLu LitVin(Module1& module, std::int32_t numero) {
  ExigeVins(module);
  ExigeFichier(module, Donnees::GLV1);
  module.bufVin.LitCourant(numero);
  const RecVin& vin = module.bufVin.courant();
  module.bufRegion.LitCourant(vin.idRegion);
  VinLu lu;
  lu.region = Rogne(module.bufRegion.courant().nomRegion.brut());
  lu.notes = LitTexte(module, vin.posTexte, vin.lgTexte);
  lu.notesCave = LitTexte(module, vin.posNotesCave, vin.lgNotesCave);
  return lu;
}

std::int32_t LitRegionDuVin(Module1& module, std::int32_t numero) {
  ExigeVins(module);
  RelitVin(module, numero);
  return module.bufVin.courant().idRegion;
}

void RelitVin(Module1& module, std::int32_t numero) {
  module.bufVin.LitCourant(numero);
}

std::int32_t AjouteRegion(Module1& module, std::string_view nom) {
  ExigeFichier(module, Donnees::GLV1);
  PoseNom(module.bufRegion.courant(), nom);
  return AjouteCourant(module.bufRegion);
}

void RenommeRegion(Module1& module, std::int32_t numero, std::string_view nom) {
  ExigeFichier(module, Donnees::GLV1);
  PoseNom(module.bufRegion.courant(), nom);
  module.bufRegion.EcritCourant(numero);
}

void SupprimeRegion(Module1& module, std::int32_t numero) {
  ExigeFichier(module, Donnees::GLV1);
  ExigeVins(module);
  RecVin& vin = module.bufVin.courant();
  module.bufVin.ParcourtTous(vin, [&](std::int32_t numeroVin) {
    if (vin.actif == vivant && vin.idRegion == numero) {
      vin.actif = supprime;
      module.bufVin.EcritCourant(numeroVin);
      module.bufVin.Compte(-1);
    }
    return true;
  });
  SupprimeEnregistrement(module.bufRegion, numero);
}

std::int32_t AjouteVin(Module1& module, const VinSaisi& saisi) {
  ExigeVins(module);
  if (!saisi.notes.empty()) {
    ExigeFichier(module, Donnees::GLV3);
  }
  RecVin& vin = module.bufVin.courant();
  PoseSaisie(vin, saisi);
  VideCave(vin);
  AjouteTexte(module.textesVins, Notes(vin), saisi.notes);
  return AjouteCourant(module.bufVin);
}

void ChangeVin(Module1& module, std::int32_t numero, const VinSaisi& saisi) {
  RecVin& vin = module.bufVin.courant();
  PoseSaisie(vin, saisi);
  if (!saisi.notes.empty()) {
    ExigeFichier(module, Donnees::GLV3);
  }
  module.textesVins.Remplace(Notes(vin), saisi.notes);
  ExigeVins(module);
  module.bufVin.EcritCourant(numero);
}

void SupprimeVin(Module1& module, std::int32_t numero) {
  ExigeVins(module);
  SupprimeEnregistrement(module.bufVin, numero);
}

}  // namespace gastrelle
