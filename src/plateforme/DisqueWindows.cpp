#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "plateforme/CheminWindows.h"
#include "plateforme/Disque.h"
#include "plateforme/ErreurExecution.h"
#include "plateforme/NomsWindows.h"
#include "plateforme/PoigneeWindows.h"
#include "plateforme/TexteChemin.h"

namespace gastrelle {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Echoue() {
  throw ErreurExecution(PanneDuSysteme(static_cast<int>(::GetLastError())));
}

bool EstFichier(const fs::path& chemin) {
  const DWORD nature = Nature(chemin);
  return nature != absent && !EstDossier(nature);
}

enum class Usage : DWORD {
  lecture = GENERIC_READ,
  lectureEtEcriture = GENERIC_READ | GENERIC_WRITE,
};

/// An open file that is a regular one: not a pipe or a device that bears a reserved name.
/// `maniere`: OPEN_EXISTING, OPEN_ALWAYS, CREATE_NEW. Others may read, write and rename it.
Poignee Ordinaire(const fs::path& chemin, Usage usage, DWORD maniere) {
  Poignee ouvert(::CreateFileW(PourLeSysteme(chemin).c_str(), static_cast<DWORD>(usage),
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                               maniere, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!ouvert.ouverte()) {
    EchoueSur(chemin);
  }
  if (::GetFileType(ouvert.poignee()) != FILE_TYPE_DISK) {
    throw ErreurExecution(Panne::accesFichier);
  }
  return ouvert;
}

/// Where a call reads or writes.
OVERLAPPED A(std::int64_t decalage) {
  if (decalage < 0) {
    throw ErreurExecution(Panne::appelIncorrect);
  }
  ULARGE_INTEGER place{};
  place.QuadPart = static_cast<ULONGLONG>(decalage);
  OVERLAPPED position{};
  position.Offset = place.LowPart;
  position.OffsetHigh = place.HighPart;
  return position;
}

/// As many bytes as one call takes.
DWORD EnUneFois(std::size_t octets) {
  constexpr std::size_t auPlus = 1U << 30U;
  return static_cast<DWORD>(std::min(octets, auPlus));
}

/// Reads at a byte until the buffer is full or the file ends. Returns the number of bytes read.
std::size_t LitOctets(const Poignee& fichier, std::int64_t decalage, std::span<char> tampon) {
  std::size_t lus = 0;
  while (lus < tampon.size()) {
    OVERLAPPED position = A(decalage + static_cast<std::int64_t>(lus));
    DWORD n = 0;
    if (::ReadFile(fichier.poignee(), tampon.data() + lus, EnUneFois(tampon.size() - lus), &n,
                   &position) == 0 &&
        ::GetLastError() != ERROR_HANDLE_EOF) {
      Echoue();
    }
    if (n == 0) {
      break;
    }
    lus += n;
  }
  return lus;
}

/// Writes all of it at a byte.
void EcritOctets(const Poignee& fichier, std::int64_t decalage, std::string_view octets) {
  while (!octets.empty()) {
    OVERLAPPED position = A(decalage);
    DWORD n = 0;
    if (::WriteFile(fichier.poignee(), octets.data(), EnUneFois(octets.size()), &n, &position) ==
        0) {
      Echoue();
    }
    octets.remove_prefix(n);
    decalage += n;
  }
}

/// A file, or a link: what a link leads to isn't looked at, the link is what lies here.
bool EstNomDeFichier(const WIN32_FIND_DATAW& entree) {
  const std::wstring_view nom = entree.cFileName;
  const bool lien = (entree.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  return nom != L"." && nom != L".." && (lien || !EstDossier(entree.dwFileAttributes));
}

void Vide(const Poignee& fichier) {
  LARGE_INTEGER debut{};
  if (::SetFilePointerEx(fichier.poignee(), debut, nullptr, FILE_BEGIN) == 0 ||
      ::SetEndOfFile(fichier.poignee()) == 0) {
    Echoue();
  }
}

void Pousse(const Poignee& fichier) {
  if (::FlushFileBuffers(fichier.poignee()) == 0) {
    Echoue();
  }
}

class FichierWindows final : public Fichier {
 public:
  FichierWindows(Poignee ouvert, Usage usage)
      : poignee_(std::move(ouvert)), seulementLu_(usage == Usage::lecture) {}

  std::size_t Lit(std::int64_t decalage, std::span<char> tampon) override {
    return LitOctets(poignee_, decalage, tampon);
  }

  void Ecrit(std::int64_t decalage, std::string_view octets) override {
    if (seulementLu_) {
      throw ErreurExecution(Panne::accesFichier);
    }
    EcritOctets(poignee_, decalage, octets);
  }

  std::int64_t Longueur() override {
    LARGE_INTEGER longueur{};
    if (::GetFileSizeEx(poignee_.poignee(), &longueur) == 0) {
      Echoue();
    }
    return longueur.QuadPart;
  }

  void Synchronise() override {
    if (!seulementLu_) {
      Pousse(poignee_);
    }
  }

 private:
  Poignee poignee_;
  bool seulementLu_;
};

/// A file that is to take the place of another: made anew beside it, under a name that nobody has.
/// What hasn't replaced anything goes with the object.
class Remplacant {
 public:
  explicit Remplacant(const fs::path& cible) : cible_(cible), poignee_(Cree()) {}
  Remplacant(const Remplacant&) = delete;
  Remplacant& operator=(const Remplacant&) = delete;
  ~Remplacant() {
    if (!chemin_.empty()) {
      Ferme();
      ::DeleteFileW(PourLeSysteme(chemin_).c_str());
    }
  }

  [[nodiscard]] const Poignee& poignee() const { return poignee_; }

  /// Takes the other's place; by then it is on the disk, not on its way there.
  void Remplace() {
    Pousse(poignee_);
    Ferme();
    PermetDeLOter(cible_);
    Exige(Deplace(chemin_, cible_), cible_);
    chemin_.clear();
  }

 private:
  Poignee Cree() {
    chemin_ = NomProvisoire(cible_);
    if (chemin_.empty()) {
      throw ErreurExecution(Panne::accesFichier);
    }
    return Ordinaire(chemin_, Usage::lectureEtEcriture, CREATE_NEW);
  }

  void Ferme() { const Poignee fermee(std::move(poignee_)); }

  const fs::path& cible_;
  fs::path chemin_;
  Poignee poignee_;
};

}  // namespace

fs::path Disque::Chemin(const std::string& nom) const {
  return (dossier_ / CheminDe(nom)).make_preferred();
}

bool Disque::Existe(const std::string& nom) {
  return EstFichier(Chemin(nom));
}

bool Disque::DossierExiste(const std::string& nom) {
  return EstDossier(Nature(Chemin(nom)));
}

bool Disque::ExisteAilleurs(const std::string& chemin) {
  return EstFichier(CheminDe(chemin));
}

std::string Disque::CheminEntier(const std::string& nom) const {
  return EnUtf8(Chemin(nom));
}

std::unique_ptr<Fichier> Disque::Ouvre(const std::string& nom) {
  constexpr Usage usage = Usage::lectureEtEcriture;
  return std::make_unique<FichierWindows>(Ordinaire(Chemin(nom), usage, OPEN_ALWAYS), usage);
}

std::unique_ptr<Fichier> Disque::OuvrePourLire(const std::string& nom) {
  constexpr Usage usage = Usage::lecture;
  return std::make_unique<FichierWindows>(Ordinaire(Chemin(nom), usage, OPEN_EXISTING), usage);
}

std::unique_ptr<Fichier> Disque::Cree(const std::string& nom) {
  constexpr Usage usage = Usage::lectureEtEcriture;
  Poignee ouvert = Ordinaire(Chemin(nom), usage, OPEN_ALWAYS);
  Vide(ouvert);
  return std::make_unique<FichierWindows>(std::move(ouvert), usage);
}

void Disque::Copie(const std::string& source, const std::string& cible) {
  // The old file stands until the new one is whole.
  constexpr std::size_t tailleBloc = 1U << 18U;
  const Poignee lecture = Ordinaire(Chemin(source), Usage::lecture, OPEN_EXISTING);
  const fs::path ancienne = Chemin(cible);
  Remplacant nouvelle(ancienne);
  std::vector<char> bloc(tailleBloc);
  std::int64_t decalage = 0;
  while (const std::size_t lus = LitOctets(lecture, decalage, bloc)) {
    EcritOctets(nouvelle.poignee(), decalage, {bloc.data(), lus});
    decalage += static_cast<std::int64_t>(lus);
  }
  nouvelle.Remplace();
}

void Disque::Supprime(const std::string& nom) {
  const fs::path chemin = Chemin(nom);
  Exige(Ote(chemin), chemin);
}

void Disque::Renomme(const std::string& nom, const std::string& nouveau) {
  const fs::path chemin = Chemin(nom);
  Exige(Deplace(chemin, Chemin(nouveau)), chemin);
}

void Disque::CreeDossier(const std::string& nom) {
  const fs::path chemin = Chemin(nom);
  Exige(::CreateDirectoryW(PourLeSysteme(chemin).c_str(), nullptr), chemin);
}

void Disque::SupprimeDossier(const std::string& nom) {
  const fs::path chemin = Chemin(nom);
  Exige(::RemoveDirectoryW(PourLeSysteme(chemin).c_str()), chemin);
}

void Disque::SynchroniseNoms(const std::string& /*dossier*/) {
  // The file system keeps a journal of its names, in their order; nobody can be asked for more.
}

std::vector<std::string> Disque::FichiersDe(const std::string& dossier) {
  const fs::path chemin = Chemin(dossier);
  WIN32_FIND_DATAW entree{};
  const HANDLE recherche = ::FindFirstFileW(PourLeSysteme(chemin / L"*").c_str(), &entree);
  if (recherche == INVALID_HANDLE_VALUE) {
    if (::GetLastError() == ERROR_FILE_NOT_FOUND) {
      return {};  // the root of a drive may be empty of everything
    }
    EchoueSur(chemin / L"*");
  }
  std::vector<std::string> noms;
  do {
    if (EstNomDeFichier(entree)) {
      noms.push_back(EnUtf8(entree.cFileName));
    }
  } while (::FindNextFileW(recherche, &entree) != 0);
  const DWORD fin = ::GetLastError();
  ::FindClose(recherche);
  if (fin != ERROR_NO_MORE_FILES) {
    throw ErreurExecution(PanneDuSysteme(static_cast<int>(fin)));
  }
  std::sort(noms.begin(), noms.end());
  return noms;
}

}  // namespace gastrelle
