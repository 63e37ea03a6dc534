#include "plateforme/NomsWindows.h"

#include <algorithm>
#include <string>

#include "plateforme/CheminWindows.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

namespace fs = std::filesystem;

/// True if nothing can lie under a path, for the reason that the system gives.
bool DitAbsent(DWORD erreur) {
  return erreur == ERROR_FILE_NOT_FOUND || erreur == ERROR_PATH_NOT_FOUND ||
         erreur == ERROR_INVALID_NAME || erreur == ERROR_INVALID_DRIVE ||
         erreur == ERROR_NOT_READY || erreur == ERROR_BAD_NETPATH || erreur == ERROR_BAD_NET_NAME;
}

/// Does it again for a moment while another program is looking at the file: what scans or indexes
/// files does so right after they were written.
template <class Fait>
BOOL Insiste(Fait fait) {
  constexpr int fois = 10;
  constexpr DWORD unMoment = 50;  // milliseconds
  BOOL reussi = fait();
  for (int i = 1; i < fois && reussi == 0; ++i) {
    const DWORD erreur = ::GetLastError();
    if (erreur != ERROR_SHARING_VIOLATION && erreur != ERROR_ACCESS_DENIED) {
      break;
    }
    ::Sleep(unMoment);
    reussi = fait();
  }
  return reussi;
}

/// A link to a folder goes as a folder does, without what it leads to; a folder isn't touched.
BOOL OteLien(const fs::path& chemin) {
  if ((AttributsDe(chemin) & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    return ::RemoveDirectoryW(PourLeSysteme(chemin).c_str());
  }
  ::SetLastError(ERROR_ACCESS_DENIED);
  return FALSE;
}

/// A name that is free at once: a file that another program holds open would keep its own until it
/// is closed, so it goes under another one.
BOOL OteFichier(const fs::path& chemin) {
  const fs::path provisoire = NomProvisoire(chemin);
  if (provisoire.empty() || Deplace(chemin, provisoire) == 0) {
    return Insiste([&] { return ::DeleteFileW(PourLeSysteme(chemin).c_str()); });
  }
  if (Insiste([&] { return ::DeleteFileW(PourLeSysteme(provisoire).c_str()); }) != 0) {
    return TRUE;
  }
  const DWORD erreur = ::GetLastError();
  static_cast<void>(Deplace(provisoire, chemin));
  ::SetLastError(erreur);
  return FALSE;
}

}  // namespace

DWORD AttributsDe(const fs::path& chemin) {
  return ::GetFileAttributesW(PourLeSysteme(chemin).c_str());
}

DWORD Nature(const fs::path& chemin) {
  constexpr std::size_t nomLePlusLong = 255;
  const bool tropLong = std::any_of(chemin.begin(), chemin.end(), [](const fs::path& nom) {
    return nom.native().size() > nomLePlusLong;
  });
  const DWORD attributs = tropLong ? absent : AttributsDe(chemin);
  if (tropLong || (attributs == absent && !DitAbsent(::GetLastError()))) {
    throw ErreurExecution(Panne::accesFichier);
  }
  return attributs;
}

/// The system says the same of a folder that isn't there and of a file taken for a folder, and
/// refuses a folder taken for a file as it refuses what isn't permitted.
void EchoueSur(const fs::path& chemin) {
  DWORD erreur = ::GetLastError();
  if (erreur == ERROR_PATH_NOT_FOUND) {
    const DWORD parent = AttributsDe(chemin.parent_path());
    erreur = parent == absent || EstDossier(parent) ? erreur : ERROR_DIRECTORY;
  } else if (erreur == ERROR_ACCESS_DENIED && EstDossier(AttributsDe(chemin))) {
    throw ErreurExecution(Panne::accesFichier);
  }
  throw ErreurExecution(PanneDuSysteme(static_cast<int>(erreur)));
}

void Exige(BOOL reussi, const fs::path& chemin) {
  if (reussi == 0) {
    EchoueSur(chemin);
  }
}

fs::path NomProvisoire(const fs::path& cible) {
  constexpr int essais = 100;
  for (int n = 1; n <= essais; ++n) {
    fs::path nom = cible;
    nom += n == 1 ? L"~" : L"~" + std::to_wstring(n);
    if (AttributsDe(nom) == absent) {
      return nom;
    }
  }
  return {};
}

void PermetDeLOter(const fs::path& chemin) {
  const DWORD attributs = AttributsDe(chemin);
  if (attributs != absent && (attributs & FILE_ATTRIBUTE_READONLY) != 0) {
    ::SetFileAttributesW(PourLeSysteme(chemin).c_str(),
                         attributs & ~DWORD{FILE_ATTRIBUTE_READONLY});
  }
}

BOOL Deplace(const fs::path& chemin, const fs::path& nouveau) {
  return Insiste([&] {
    return ::MoveFileExW(PourLeSysteme(chemin).c_str(), PourLeSysteme(nouveau).c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
  });
}

BOOL Ote(const fs::path& chemin) {
  PermetDeLOter(chemin);
  return EstDossier(AttributsDe(chemin)) ? OteLien(chemin) : OteFichier(chemin);
}

}  // namespace gastrelle
