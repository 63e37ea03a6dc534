#include <algorithm>
#include <array>
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

/// What would be run instead of being shown: no picture or document is one. The system's own list
/// is longer, where it has one.
bool EstProgramme(const std::filesystem::path& cible) {
  constexpr std::array programmes{L".bat", L".cmd", L".com", L".exe", L".js",  L".lnk", L".msi",
                                  L".pif", L".ps1", L".reg", L".scr", L".vbs", L".wsf"};
  const std::wstring genre = cible.extension().wstring();
  return std::any_of(programmes.begin(), programmes.end(),
                     [&](const wchar_t* programme) {
                       return ::lstrcmpiW(programme, genre.c_str()) == 0;
                     }) ||
         ::AssocIsDangerous(genre.c_str()) != FALSE;
}

/// What is handed to the shell; empty for a text that leads nowhere, or to a program.
std::filesystem::path Cible(const std::string& texte) {
  if (texte.find('\0') != std::string::npos) {
    return {};
  }
  if (AUnSchema(texte) && !texte.starts_with("file:")) {
    return CheminDe(EnUnArgument(texte));
  }
  // The shell would read the accents of a file's address in another code.
  const std::filesystem::path chemin =
      CheminDe(texte.starts_with("file:") ? CheminDAdresse(texte) : texte).make_preferred();
  return EstCheminEntier(chemin) && !EstProgramme(chemin) ? chemin : std::filesystem::path();
}

}  // namespace

Ouverture AssociationSysteme::Ouvre(const std::string& cible) {
  const std::filesystem::path texte = Cible(cible);
  if (texte.empty()) {
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
