#include <filesystem>
#include <string>
#include <windows.h>
// After the header that they build on.
#include <shellapi.h>
#include <shlwapi.h>

#include "plateforme/AdresseOuverte.h"
#include "plateforme/Association.h"
#include "plateforme/TexteChemin.h"

namespace gastrelle {
namespace {

/// True for the paths that mean the same from any folder: a drive and its root, or a server.
bool EstCheminEntier(const std::filesystem::path& cible) {
  return cible.is_absolute() && cible.has_root_name();
}

/// What would be run instead of being shown: no picture, document or address is one.
bool EstProgramme(const std::filesystem::path& cible) {
  return ::AssocIsDangerous(cible.extension().c_str()) != FALSE;
}

}  // namespace

Ouverture AssociationSysteme::Ouvre(const std::string& cible) {
  if (cible.find('\0') != std::string::npos) {
    return Ouverture::echec;
  }
  const bool adresse = AUnSchema(cible);
  const std::filesystem::path texte = CheminDe(adresse ? EnUnArgument(cible) : cible);
  if ((!adresse && !EstCheminEntier(texte)) || EstProgramme(texte)) {
    return Ouverture::echec;
  }
  // Up to 32 the answer is an error, and this one says that nothing is associated.
  constexpr INT_PTR derniereErreur = 32;
  const auto reponse = reinterpret_cast<INT_PTR>(
      ::ShellExecuteW(nullptr, L"open", texte.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
  if (reponse > derniereErreur) {
    return Ouverture::ouverte;
  }
  return reponse == SE_ERR_NOASSOC ? Ouverture::aucuneAssociation : Ouverture::echec;
}

}  // namespace gastrelle
