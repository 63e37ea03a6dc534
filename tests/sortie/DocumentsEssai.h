// A view for each document, and what the tests of documents and of sending share.
#pragma once

#include <chrono>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "data/Vues.h"
#include "doublures/Bibliotheque.h"
#include "sortie/Envoi.h"
#include "sortie/Modeles.h"

namespace gastrelle::essai {

/// A view, the stem of its document, and the file of `tests/sortie/modeles` that has its bytes.
struct DocumentEssai {
  std::string modele;
  std::string radical;
  Vue vue;
};

inline void PrintTo(const DocumentEssai& document, std::ostream* sortie) {
  *sortie << document.modele;
}

/// Each of the eleven documents, the ones that can do without a part also without it.
const std::vector<DocumentEssai>& DocumentsEssai();

/// The day that the models bear.
inline constexpr std::chrono::year_month_day jourDesModeles{std::chrono::year{2026} / 3 / 5};

inline const char* Suffixe(Extension extension) {
  return extension == Extension::txt ? ".txt" : ".doc";
}

/// What each extension has of its own: how its messages read.
struct Commande {
  Extension extension;
  const char* nonCree;
  const char* sansAssociation;
};

inline void PrintTo(const Commande& commande, std::ostream* sortie) {
  *sortie << Suffixe(commande.extension);
}

inline constexpr Commande commandes[]{
    {Extension::txt, "Impossibilité de créer un fichier temporaire.",
     "Aucune association n'est définie pour les fichiers *.TXT"},
    {Extension::doc, "Impossibilté de créer un fichier temporaire.",
     "Aucune association n'est définie pour les fichiers *.DOC"},
};

/// The files of a folder and their bytes, but for one. Folders bear no bytes.
inline std::map<std::string, std::string> ContenuSans(const DossierEssai& dossier,
                                                      const std::string& sauf) {
  std::map<std::string, std::string> contenu;
  for (const auto& place : std::filesystem::directory_iterator(dossier.chemin())) {
    const std::string nom = place.path().filename().string();
    if (nom != sauf) {
      contenu[nom] = place.is_regular_file() ? dossier.Lit(nom) : std::string();
    }
  }
  return contenu;
}

}  // namespace gastrelle::essai
