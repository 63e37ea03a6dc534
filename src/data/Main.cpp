#include "data/Main.h"

#include <string>

#include "data/Courses.h"
#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"

namespace gastrelle {
namespace {

constexpr std::string_view dossierImages = "IMAGE";

[[noreturn]] void Refuse(Module1& module, std::string_view texte, Icone icone) {
  module.services.pointeur.Normal();
  if (icone == Icone::critique) {
    module.services.messages.Bip();
  }
  module.services.messages.Informe(texte, icone);
  module.services.processus.Termine(1);
}

/// The factory copy of a missing file must be there; without one the program ends, the user being
/// told.
void ExigeFabrique(Module1& module, Donnees fichier, std::string& chemin) {
  const std::string fabrique = NomFabrique(fichier);
  chemin = module.chemins.De(fabrique);
  if (!FichierExisteMsg(module, fabrique)) {
    module.services.processus.Termine(1);
  }
}

void PrepareFichier(Module1& module, Donnees fichier, std::string& chemin) {
  if (FichierExiste(module, Nom(fichier))) {
    chemin = module.chemins.De(Nom(fichier));
    Ouvre(module, fichier);
    VerifieEntete(module, fichier);
  } else {
    ExigeFabrique(module, fichier, chemin);
    chemin = module.chemins.De(Nom(fichier));
    RestaureDeFabrique(module, fichier);
  }
}

void PrepareDonnees(Module1& module) {
  std::string chemin;
  try {
    for (std::size_t i = 0; i < static_cast<std::size_t>(Donnees::GLPREF); ++i) {
      PrepareFichier(module, static_cast<Donnees>(i), chemin);
    }
    ChargeCourses(module);
    module.Place(Donnees::GLMCN).reset();
  } catch (const ErreurExecution&) {
    Refuse(module,
           "Fichier" + std::string(CRLF) + chemin + std::string(CRLF) +
               std::string("non trouvé ou incompatible ou erreur disque."_1252),
           Icone::critique);
  }
}

}  // namespace

void ChargePreferences(Module1& module) {
  RecPreferences& enVigueur = module.prefs[0];
  const bool presente = FichierExiste(module, Nom(Donnees::GLPREF));
  enVigueur = {};
  try {
    Ouvre(module, Donnees::GLPREF);
    if (presente) {
      module.prefs.Lit(1, enVigueur);
    } else {
      module.prefs.Ecrit(1, enVigueur);
    }
  } catch (const ErreurExecution&) {
    enVigueur = {};
    module.Place(Donnees::GLPREF).reset();
  }
}

void Main(Module1& module, bool dejaEnCours, const std::function<void()>& montreCadre) {
  module.services.pointeur.Sablier();
  module.premiereOuverture = true;
  if (dejaEnCours) {
    Refuse(module, "Cette application est déjà en cours"_1252, Icone::information);
  }
  if (module.chemins.EstDisquette()) {
    Refuse(module,
           std::string(titreApplication) +
               std::string(" ne fonctionne pas à partir d'une disquette."_1252),
           Icone::information);
  }
  module.fichierAide = module.chemins.De("gl32.hlp");
  PrepareDonnees(module);
  ChargePreferences(module);
  if (!DossierExiste(module, dossierImages)) {
    module.services.disque.CreeDossier(std::string(dossierImages));
  }
  montreCadre();
}

}  // namespace gastrelle
