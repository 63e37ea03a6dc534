#include "maintenance/Remplacement.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>

#include "data/ProceduresFichiers.h"
#include "maintenance/Sauvegarde.h"

namespace gastrelle {
namespace {

/// A stop while the message is up must know that the program has failed.
[[noreturn]] void FinitEnPanne(Module1& module) {
  module.erreurFatale = true;
  ErreurFatale(module);
}

/// The only record that is left, of families and of recipes.
constexpr std::int32_t numeroGarde = 2;

/// Puts the four files aside. False if one of them can't be: those before it have their names back,
/// the first file last. So whoever finds its ".tmp" knows that others may still be aside.
bool MetDeCote(Module1& module) {
  AccesFichiers& disque = module.services.disque;
  for (auto fichier = fichiersRecettes.begin(); fichier != fichiersRecettes.end(); ++fichier) {
    PasseOutre([&] { disque.Supprime(NomTemporaire(*fichier)); });
    if (!Reussit([&] { disque.Renomme(Nom(*fichier), NomTemporaire(*fichier)); })) {
      std::for_each(std::make_reverse_iterator(fichier), fichiersRecettes.rend(), [&](Donnees mis) {
        PasseOutre([&] { disque.Renomme(NomTemporaire(mis), Nom(mis)); });
      });
      return false;
    }
  }
  return true;
}

std::unique_ptr<Fichier> OuvreOrigine(Module1& module, Donnees fichier) {
  return module.services.disque.OuvrePourLire(NomFabrique(fichier));
}

/// Header and first record of a factory copy, the header counting that one alone. The working
/// record then holds it.
template <class T>
void GardeLePremier(Module1& module, Donnees fichier, FichierEnregistrements<T>& vers) {
  const std::unique_ptr<Fichier> place = OuvreOrigine(module, fichier);
  FichierEnregistrements<T> origine(place);
  origine.LitEntete();
  ExigeEntete(fichier, origine.entete());
  vers.entete() = origine.entete();
  vers.nbActifs() = 1;
  vers.EcritEntete();
  origine.Lit(numeroGarde, vers.courant());
  vers.EcritCourant(numeroGarde);
}

/// The signature of the texts, and the text of the recipe that is left.
void GardeSonTexte(Module1& module) {
  const std::unique_ptr<Fichier> place = OuvreOrigine(module, Donnees::GLR3);
  Reserve origine(place);
  const auto lgSignature = static_cast<std::int32_t>(Signature(Donnees::GLR3).size());
  const RecRecette& recette = module.bufRecette.courant();
  Fichier& textes = Ouvert(module.Place(Donnees::GLR3));
  textes.Ecrit(0, origine.Lit(1, lgSignature));
  textes.Ecrit(lgSignature, origine.Lit(recette.posTexte, recette.lgTexte));
}

void GardeLesImages(Module1& module) {
  const std::unique_ptr<Fichier> place = OuvreOrigine(module, Donnees::GLR4);
  Reserve origine(place);
  const auto longueur = Tenu<std::int32_t>(origine.Longueur());
  Ouvert(module.Place(Donnees::GLR4)).Ecrit(0, origine.Lit(1, longueur));
}

void OteAnciennes(Module1& module) {
  AccesFichiers& disque = module.services.disque;
  for (const Donnees fichier : fichiersRecettes) {
    PasseOutre([&] { disque.Supprime(NomTemporaire(fichier)); });
  }
  for (const Donnees fichier : fichiersRecettes) {
    PasseOutre([&] { disque.Supprime(NomDeSauvegarde(fichier)); });
  }
}

}  // namespace

bool ExisteOrigines(Module1& module) {
  return std::all_of(fichiersRecettes.begin(), fichiersRecettes.end(), [&](Donnees fichier) {
    return FichierExisteMsg(module, NomFabrique(fichier));
  });
}

void FabriqueUneRecette(Module1& module) {
  if (!OuvreFichiersRecettes(module, false)) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
  GardeLePremier(module, Donnees::GLR1, module.bufFamille);
  GardeLePremier(module, Donnees::GLR2, module.bufRecette);
  GardeSonTexte(module);
  GardeLesImages(module);
  for (const Donnees fichier : fichiersRecettes) {
    Ouvert(module.Place(fichier)).Synchronise();
  }
}

void FabriqueOrigines(Module1& module) {
  for (const Donnees fichier : fichiersRecettes) {
    RestaureDeFabrique(module, fichier);
  }
}

void RemplaceRecettes(Module1& module, FabriqueRecettes fabrique) {
  FermeFichiersRecettes(module);
  if (!MetDeCote(module)) {
    FinitEnPanne(module);
  }
  const bool faites = Reussit([&] {
    fabrique(module);
    module.services.disque.SynchroniseNoms({});
  });
  if (!faites) {
    FinitEnPanne(module);
  }
  OteAnciennes(module);
}

}  // namespace gastrelle
