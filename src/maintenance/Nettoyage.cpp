#include "maintenance/Nettoyage.h"

#include <memory>
#include <string>
#include <vector>

#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

/// Record 1 is the header, the first live record follows.
constexpr std::int32_t premierNumero = 2;

std::string NomDeCopie(const std::string& nom) {
  return std::string(dossierNettoyage) + "/" + nom;
}

void CopieFichiers(Module1& module) {
  AccesFichiers& disque = module.services.disque;
  const std::string dossier(dossierNettoyage);
  if (DossierExiste(module, dossier)) {
    PasseOutre([&] { disque.SupprimeDossier(dossier); });
  }
  disque.CreeDossier(dossier);
  for (const Donnees fichier : fichiersRecettes) {
    disque.Copie(Nom(fichier), NomDeCopie(Nom(fichier)));
  }
  disque.SynchroniseNoms(dossier);
}

void Rouvre(Module1& module) {
  if (!OuvreFichiersRecettes(module, true)) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
}

/// A file that is rebuilt, empty at first: whatever was left under its name goes.
std::unique_ptr<Fichier> CreeTemporaire(Module1& module, Donnees fichier) {
  AccesFichiers& disque = module.services.disque;
  const std::string nom = NomTemporaire(fichier);
  PasseOutre([&] { disque.Supprime(nom); });
  return disque.Cree(nom);
}

template <class T>
void CopieEntete(FichierEnregistrements<T>& de, FichierEnregistrements<T>& vers) {
  de.Lit(1, vers.entete());
  vers.EcritEntete();
}

/// Writes the live records one behind the other, as `change(record, number, new number)` leaves
/// them, then their count where the header has another one. Returns it.
template <class T, class Change>
std::int16_t EcritVivants(FichierEnregistrements<T>& de, FichierEnregistrements<T>& vers,
                          Change&& change) {
  std::int32_t prochain = premierNumero;
  T lu;
  const std::int16_t vus = de.ParcourtVivants(lu, [&](std::int32_t numero) {
    change(lu, numero, prochain);
    vers.Ecrit(prochain, lu);
    ++prochain;
  });
  if (vus != vers.nbActifs()) {
    vers.nbActifs() = vus;
    vers.EcritEntete();
  }
  return vus;
}

/// From the old number of a family to the new one.
class NumerosFamilles {
 public:
  explicit NumerosFamilles(std::int64_t dernier)
      : nouveaux_(static_cast<std::size_t>(dernier) + 1, premierNumero) {}

  void Note(std::int32_t ancien, std::int32_t nouveau) {
    nouveaux_[static_cast<std::size_t>(ancien)] = nouveau;
  }
  /// The first family takes in the recipes of those that aren't there any more.
  [[nodiscard]] std::int32_t De(std::int32_t ancien) const {
    const bool connu = ancien >= 0 && static_cast<std::size_t>(ancien) < nouveaux_.size();
    return connu ? nouveaux_[static_cast<std::size_t>(ancien)] : premierNumero;
  }

 private:
  std::vector<std::int32_t> nouveaux_;
};

NumerosFamilles RebatitFamilles(Module1& module) {
  std::unique_ptr<Fichier> place = CreeTemporaire(module, Donnees::GLR1);
  FichierEnregistrements<RecFamille> rebatie(place);
  CopieEntete(module.bufFamille, rebatie);
  NumerosFamilles numeros(module.bufFamille.Nombre());
  EcritVivants(module.bufFamille, rebatie,
               [&](RecFamille& /*famille*/, std::int32_t ancien, std::int32_t nouveau) {
                 numeros.Note(ancien, nouveau);
               });
  place->Synchronise();
  return numeros;
}

/// A pool that is rebuilt: its signature, then text after text.
class ReserveRebatie {
 public:
  ReserveRebatie(Module1& module, Donnees fichier, Reserve& ancienne)
      : place_(CreeTemporaire(module, fichier)),
        ancienne_(ancienne),
        lgSignature_(static_cast<std::int32_t>(Signature(fichier).size())) {}

  void CopieSignature() { place_->Ecrit(0, ancienne_.Lit(1, lgSignature_)); }

  void Reprend(ReferenceTexte reference) {
    if (reference.position < 1) {
      reference.Efface();
    } else {
      rebatie_.Ajoute(reference, ancienne_.Lit(reference.position, reference.longueur));
    }
  }

  void Synchronise() { place_->Synchronise(); }

 private:
  std::unique_ptr<Fichier> place_;
  Reserve rebatie_{place_};
  Reserve& ancienne_;
  std::int32_t lgSignature_;
};

std::int16_t RebatitRecettes(Module1& module, const NumerosFamilles& numeros) {
  std::unique_ptr<Fichier> place = CreeTemporaire(module, Donnees::GLR2);
  ReserveRebatie textes(module, Donnees::GLR3, module.textesRecettes);
  ReserveRebatie images(module, Donnees::GLR4, module.cheminsImages);
  FichierEnregistrements<RecRecette> rebatie(place);
  CopieEntete(module.bufRecette, rebatie);
  textes.CopieSignature();
  images.CopieSignature();
  const std::int16_t vus =
      EcritVivants(module.bufRecette, rebatie,
                   [&](RecRecette& recette, std::int32_t /*ancien*/, std::int32_t /*nouveau*/) {
                     recette.idFamille = numeros.De(recette.idFamille);
                     textes.Reprend({recette.posTexte, recette.lgTexte});
                     images.Reprend({recette.posImage, recette.lgImage});
                   });
  textes.Synchronise();
  images.Synchronise();
  place->Synchronise();
  return vus;
}

/// The device holds the new files and their names before the old ones go, and again before the
/// copies do.
void RemplaceFichiers(Module1& module) {
  AccesFichiers& disque = module.services.disque;
  disque.SynchroniseNoms({});
  for (const Donnees fichier : fichiersRecettes) {
    disque.Supprime(Nom(fichier));
  }
  for (const Donnees fichier : fichiersRecettes) {
    disque.Renomme(NomTemporaire(fichier), Nom(fichier));
  }
  disque.SynchroniseNoms({});
}

void OteCopies(Module1& module) {
  AccesFichiers& disque = module.services.disque;
  const std::string dossier(dossierNettoyage);
  PasseOutre([&] {
    for (const std::string& nom : disque.FichiersDe(dossier)) {
      disque.Supprime(NomDeCopie(nom));
    }
  });
  PasseOutre([&] { disque.SupprimeDossier(dossier); });
}

}  // namespace

std::int16_t NettoieRecettes(Module1& module) {
  FermeFichiersRecettes(module);
  CopieFichiers(module);
  Rouvre(module);
  const NumerosFamilles numeros = RebatitFamilles(module);
  const std::int16_t vus = RebatitRecettes(module, numeros);
  FermeFichiersRecettes(module);
  RemplaceFichiers(module);
  Rouvre(module);
  OteCopies(module);
  return vus;
}

}  // namespace gastrelle
