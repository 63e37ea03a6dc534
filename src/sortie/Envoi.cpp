#include "sortie/Envoi.h"

#include <array>
#include <string>

#include "data/Texte1252.h"
#include "sortie/ChoixFait.h"
#include "sortie/Documents.h"

namespace gastrelle {
namespace {

struct LigneExtension {
  std::string_view suffixe;
  std::string_view nonCree;
  std::string_view sansAssociation;
};

constexpr std::array<LigneExtension, 2> extensions{{
    {".txt", "Impossibilité de créer un fichier temporaire."_1252,
     "Aucune association n'est définie pour les fichiers *.TXT"_1252},
    {".doc", "Impossibilté de créer un fichier temporaire."_1252,
     "Aucune association n'est définie pour les fichiers *.DOC"_1252},
}};

constexpr const LigneExtension& Ligne(Extension extension) {
  return extensions[static_cast<std::size_t>(extension)];
}

}  // namespace

void EnvoieDocument(Module1& module, const Vue& vue, Extension extension) {
  Services& services = module.services;
  services.pointeur.Sablier();
  if (!ChoixFait(vue)) {
    services.pointeur.Normal();
    services.messages.Bip();
    return;
  }
  const Document document = DocumentDe(vue);
  const std::string nom = Joint(document.radical, Ligne(extension).suffixe);
  const bool ecrit = !document.radical.empty() && EcritDocument(module, nom, document.corps);
  services.pointeur.Normal();
  if (ecrit) {
    OuvreDocument(module, nom, extension);
  } else {
    AnnonceNonCree(module, extension);
  }
}

void AnnonceNonCree(Module1& module, Extension extension) {
  module.services.messages.Informe(Ligne(extension).nonCree, Icone::critique);
}

void OuvreDocument(Module1& module, const std::string& nom, Extension extension) {
  Services& services = module.services;
  if (services.association.Ouvre(services.disque.CheminEntier(nom)) ==
      Ouverture::aucuneAssociation) {
    services.messages.Informe(Ligne(extension).sansAssociation, Icone::information);
  }
}

}  // namespace gastrelle
