#include "data/ProceduresFichiers.h"

#include <algorithm>

#include "data/Limites.h"
#include "data/Texte1252.h"

namespace gastrelle {
namespace {

/// A directory search: any failure of it counts as nothing found.
template <class Recherche>
bool Trouve(Recherche&& recherche) {
  try {
    return recherche();
  } catch (const ErreurExecution&) {
    return false;
  }
}

void VerifieCompteEtSignature(Module1& module, Donnees fichier) {
  module.AvecCatalogue(fichier, [&](auto& catalogue) {
    catalogue.LitEntete();
    ExigeEntete(fichier, catalogue.entete());
  });
}

void VerifiePremiersOctets(Module1& module, Donnees fichier) {
  const std::string_view attendu = Signature(fichier);
  std::string lu(attendu.size(), ' ');
  lu.resize(Ouvert(module.Place(fichier)).Lit(0, lu));
  if (lu != attendu) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
}

}  // namespace

bool FichierExiste(Module1& module, std::string_view nom) {
  return !nom.empty() && Trouve([&] { return module.services.disque.Existe(std::string(nom)); });
}

bool FichierExisteMsg(Module1& module, std::string_view nom) {
  if (FichierExiste(module, nom)) {
    return true;
  }
  module.services.pointeur.Normal();
  module.services.messages.Informe("Fichier " + module.chemins.De(nom) + std::string(CRLF) +
                                       std::string("non trouvé ou erreur disque."_1252),
                                   Icone::critique);
  return false;
}

bool FichierExisteMsg(Module1& module, Donnees fichier) {
  return FichierExisteMsg(module, Ligne(fichier).nom);
}

void ExigeFichier(Module1& module, Donnees fichier) {
  if (!FichierExisteMsg(module, fichier)) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
}

bool DossierExiste(Module1& module, std::string_view nom) {
  return Trouve([&] { return module.services.disque.DossierExiste(std::string(nom)); });
}

namespace {

/// A path of the program's own folder, from there on, as AccesFichiers takes it; empty for a path
/// that leads elsewhere.
std::string NomInterne(const Module1& module, std::string_view chemin) {
  std::string nom = VersUtf8(module.chemins.Relatif(chemin));
  if constexpr (conventionDuSysteme == Convention::windows) {
    std::replace(nom.begin(), nom.end(), '\\', '/');
  }
  return nom;
}

}  // namespace

std::string CheminSysteme(Module1& module, std::string_view chemin) {
  const std::string nom = NomInterne(module, chemin);
  return nom.empty() ? VersUtf8(chemin) : module.services.disque.CheminEntier(nom);
}

std::string CheminProgramme(Module1& module, const std::string& chemin) {
  const std::string dossier = module.services.disque.CheminEntier({});
  return chemin.starts_with(dossier)
             ? module.chemins.De(DepuisUtf8(std::string_view(chemin).substr(dossier.size())))
             : DepuisUtf8(chemin);
}

bool ImageExiste(Module1& module, std::string_view chemin) {
  return !chemin.empty() && chemin.size() <= std::size_t{limiteChemin} && Trouve([&] {
    const std::string nom = NomInterne(module, chemin);
    return nom.empty() ? module.services.disque.ExisteAilleurs(VersUtf8(chemin))
                       : module.services.disque.Existe(nom);
  });
}

void Ouvre(Module1& module, Donnees fichier) {
  module.Place(fichier) = module.services.disque.Ouvre(Nom(fichier));
}

void VerifieEntete(Module1& module, Donnees fichier) {
  switch (Ligne(fichier).controle) {
    case Controle::entete:
      return VerifieCompteEtSignature(module, fichier);
    case Controle::signature:
      return VerifiePremiersOctets(module, fichier);
    case Controle::aucun:
      return;
  }
}

void RestaureDeFabrique(Module1& module, Donnees fichier) {
  module.services.disque.Copie(NomFabrique(fichier), Nom(fichier));
  Ouvre(module, fichier);
  if (fichier == Donnees::GLR2) {
    RecRecette entete;
    module.bufRecette.Lit(1, entete);
    entete.idFamille = NumeroJour(module.services.horloge.Aujourdhui());
    module.bufRecette.Ecrit(1, entete);
  }
  VerifieEntete(module, fichier);
}

void FermeFichiersRecettes(Module1& module) {
  for (const Donnees fichier : fichiersRecettes) {
    module.Place(fichier).reset();
  }
}

bool OuvreFichiersRecettes(Module1& module, bool verifier) {
  try {
    for (const Donnees fichier : fichiersRecettes) {
      Ouvre(module, fichier);
      if (verifier) {
        VerifieEntete(module, fichier);
      }
    }
    return true;
  } catch (const ErreurExecution&) {
    return false;
  }
}

void JoueExclamation(Module1& module) {
  module.services.son.Joue(CheminSysteme(module, module.chemins.De("Exclamation")));
}

void ErreurFatale(Module1& module) {
  module.services.pointeur.Normal();
  module.services.messages.Bip();
  module.services.messages.Informe("Erreur fatale. Impossibilité de continuer."_1252,
                                   Icone::critique);
  module.services.processus.Termine(1);
}

void ExigeFichierOuFinit(Module1& module, Donnees fichier) {
  if (!FichierExisteMsg(module, fichier)) {
    ErreurFatale(module);
  }
}

void FinOperation(Module1& module) {
  module.services.pointeur.Normal();
  if (module.erreurFatale) {
    ErreurFatale(module);
  }
}

}  // namespace gastrelle
