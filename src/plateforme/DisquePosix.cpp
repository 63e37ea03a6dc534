#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

#include "plateforme/DescripteurPosix.h"
#include "plateforme/Disque.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

[[noreturn]] void Echoue() {
  throw ErreurExecution(PanneDuSysteme(errno));
}

void Exige(int resultat) {
  if (resultat != 0) {
    Echoue();
  }
}

/// An open file; none is a failure.
Descripteur Ouverte(int numero) {
  if (numero < 0) {
    Echoue();
  }
  return Descripteur(numero);
}

/// What lies under a path: nothing (0), or its kind as `S_IFMT` bits.
mode_t Nature(const std::filesystem::path& chemin) {
  struct stat etat {};
  if (::stat(chemin.c_str(), &etat) == 0) {
    return etat.st_mode & S_IFMT;
  }
  if (errno == ENOENT || errno == ENOTDIR) {
    return 0;
  }
  Echoue();
}

bool EstFichier(const std::filesystem::path& chemin) {
  const mode_t nature = Nature(chemin);
  return nature != 0 && nature != S_IFDIR;
}

constexpr mode_t droitsOrdinaires = 0666;  // less what the user's mask takes away
constexpr mode_t tousLesDroits = 0777;

int NumeroDe(const std::filesystem::path& chemin, int maniere) {
  return ::open(chemin.c_str(), maniere | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, droitsOrdinaires);
}

/// An open file that is a regular one: a pipe, a socket or a device would keep the program waiting,
/// or take what is written to it elsewhere. It was opened without waiting for anybody.
Descripteur Ordinaire(int numero) {
  Descripteur ouvert = Ouverte(numero);
  struct stat etat {};
  Exige(::fstat(ouvert.numero(), &etat));
  if (!S_ISREG(etat.st_mode)) {
    throw ErreurExecution(Panne::accesFichier);
  }
  return ouvert;
}

/// Opens a file that is there, or makes one: never at the end of a link that leads nowhere.
Descripteur OuvreOuCree(const std::filesystem::path& chemin) {
  const int present = NumeroDe(chemin, O_RDWR);
  const bool manque = present < 0 && errno == ENOENT;
  return Ordinaire(manque ? NumeroDe(chemin, O_RDWR | O_CREAT | O_EXCL) : present);
}

/// Reads at a byte until the buffer is full or the file ends. Returns the number of bytes read.
std::size_t LitOctets(const Descripteur& fichier, std::int64_t decalage, std::span<char> tampon) {
  std::size_t lus = 0;
  while (lus < tampon.size()) {
    const ssize_t n = ::pread(fichier.numero(), tampon.data() + lus, tampon.size() - lus,
                              decalage + static_cast<std::int64_t>(lus));
    if (n == 0) {
      break;
    }
    if (n > 0) {
      lus += static_cast<std::size_t>(n);
    } else if (errno != EINTR) {
      Echoue();
    }
  }
  return lus;
}

/// Writes all of it at a byte.
void EcritOctets(const Descripteur& fichier, std::int64_t decalage, std::string_view octets) {
  while (!octets.empty()) {
    const ssize_t n = ::pwrite(fichier.numero(), octets.data(), octets.size(), decalage);
    if (n >= 0) {
      octets.remove_prefix(static_cast<std::size_t>(n));
      decalage += n;
    } else if (errno != EINTR) {
      Echoue();
    }
  }
}

class FichierPosix final : public Fichier {
 public:
  explicit FichierPosix(Descripteur ouvert) : descripteur_(std::move(ouvert)) {}

  std::size_t Lit(std::int64_t decalage, std::span<char> tampon) override {
    return LitOctets(descripteur_, decalage, tampon);
  }

  void Ecrit(std::int64_t decalage, std::string_view octets) override {
    EcritOctets(descripteur_, decalage, octets);
  }

  std::int64_t Longueur() override {
    struct stat etat {};
    Exige(::fstat(descripteur_.numero(), &etat));
    return etat.st_size;
  }

  void Synchronise() override { Exige(::fsync(descripteur_.numero())); }

 private:
  Descripteur descripteur_;
};

/// A file that is to take the place of another: made anew beside it, under a name that nobody has,
/// with the rights of the one that it replaces. What hasn't replaced anything goes with the object.
class Remplacant {
 public:
  explicit Remplacant(const std::filesystem::path& cible) : cible_(cible), descripteur_(Cree()) {}
  Remplacant(const Remplacant&) = delete;
  Remplacant& operator=(const Remplacant&) = delete;
  ~Remplacant() {
    if (!chemin_.empty()) {
      ::unlink(chemin_.c_str());
    }
  }

  [[nodiscard]] const Descripteur& descripteur() const { return descripteur_; }

  /// Takes the other's place; by then it is on the disk, not on its way there.
  void Remplace() {
    Exige(::fsync(descripteur_.numero()));
    Exige(std::rename(chemin_.c_str(), cible_.c_str()));
    chemin_.clear();
  }

 private:
  Descripteur Cree() {
    struct stat ancien {};
    if (::stat(cible_.c_str(), &ancien) != 0 || !S_ISREG(ancien.st_mode)) {
      return CreeAvec(droitsOrdinaires);
    }
    const mode_t droits = ancien.st_mode & tousLesDroits;
    Descripteur cree = CreeAvec(droits);
    // Where the file system has no rights to give, the copy is worth more than they are.
    static_cast<void>(::fchmod(cree.numero(), droits));
    return cree;
  }

  /// "~" stands behind the name, and a number where somebody has that one: a file, or a link that
  /// leads elsewhere.
  Descripteur CreeAvec(mode_t droits) {
    constexpr int essais = 100;
    int numero = -1;
    for (int n = 1; n <= essais && numero < 0; ++n) {
      chemin_ = cible_;
      chemin_ += n == 1 ? "~" : "~" + std::to_string(n);
      numero = ::open(chemin_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, droits);
      if (numero < 0 && errno != EEXIST) {
        break;
      }
    }
    return Ouverte(numero);
  }

  const std::filesystem::path& cible_;
  std::filesystem::path chemin_;
  Descripteur descripteur_;
};

/// Has what was written to a part of a file set out for the device, where it is waited for later. A
/// file system that can't do so brings it there when it is waited for.
void MetEnRoute(const Descripteur& fichier, std::int64_t decalage, std::int64_t longueur) {
  static_cast<void>(::sync_file_range(fichier.numero(), decalage, longueur, SYNC_FILE_RANGE_WRITE));
}

/// Copies all bytes of a file into another. The device takes what is copied while the rest is read.
void CopieOctets(const Descripteur& lecture, const Descripteur& ecriture) {
  constexpr std::size_t tailleBloc = 1U << 18U;
  constexpr std::int64_t tailleEnvoi = 1U << 23U;
  std::int64_t envoyes = 0;
  std::vector<char> bloc(tailleBloc);
  std::int64_t decalage = 0;
  while (const std::size_t lus = LitOctets(lecture, decalage, bloc)) {
    EcritOctets(ecriture, decalage, {bloc.data(), lus});
    decalage += static_cast<std::int64_t>(lus);
    if (decalage - envoyes >= tailleEnvoi) {
      MetEnRoute(ecriture, envoyes, decalage - envoyes);
      envoyes = decalage;
    }
  }
}

}  // namespace

std::filesystem::path Disque::Chemin(const std::string& nom) const {
  return dossier_ / nom;
}

bool Disque::Existe(const std::string& nom) {
  return EstFichier(Chemin(nom));
}

bool Disque::DossierExiste(const std::string& nom) {
  return Nature(Chemin(nom)) == S_IFDIR;
}

bool Disque::ExisteAilleurs(const std::string& chemin) {
  return EstFichier(chemin);
}

std::string Disque::CheminEntier(const std::string& nom) const {
  return Chemin(nom).string();
}

std::unique_ptr<Fichier> Disque::Ouvre(const std::string& nom) {
  return std::make_unique<FichierPosix>(OuvreOuCree(Chemin(nom)));
}

std::unique_ptr<Fichier> Disque::OuvrePourLire(const std::string& nom) {
  return std::make_unique<FichierPosix>(Ordinaire(NumeroDe(Chemin(nom), O_RDONLY)));
}

std::unique_ptr<Fichier> Disque::Cree(const std::string& nom) {
  Descripteur ouvert = OuvreOuCree(Chemin(nom));
  Exige(::ftruncate(ouvert.numero(), 0));
  return std::make_unique<FichierPosix>(std::move(ouvert));
}

void Disque::Copie(const std::string& source, const std::string& cible) {
  // The old file stands until the new one is whole.
  const Descripteur lecture = Ordinaire(NumeroDe(Chemin(source), O_RDONLY));
  const std::filesystem::path ancienne = Chemin(cible);
  Remplacant nouvelle(ancienne);
  CopieOctets(lecture, nouvelle.descripteur());
  nouvelle.Remplace();
}

void Disque::Supprime(const std::string& nom) {
  Exige(::unlink(Chemin(nom).c_str()));
}

void Disque::Renomme(const std::string& nom, const std::string& nouveau) {
  Exige(std::rename(Chemin(nom).c_str(), Chemin(nouveau).c_str()));
}

void Disque::CreeDossier(const std::string& nom) {
  Exige(::mkdir(Chemin(nom).c_str(), 0777));
}

void Disque::SupprimeDossier(const std::string& nom) {
  Exige(::rmdir(Chemin(nom).c_str()));
}

void Disque::SynchroniseNoms(const std::string& dossier) {
  const Descripteur ouvert(::open(Chemin(dossier).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  const bool sansObjet = ouvert.numero() < 0;  // a folder that may be used but not read
  if (!sansObjet && ::fsync(ouvert.numero()) != 0 && errno != EINVAL) {
    Echoue();
  }
}

std::vector<std::string> Disque::FichiersDe(const std::string& dossier) {
  std::vector<std::string> noms;
  std::error_code erreur;
  std::filesystem::directory_iterator entree(Chemin(dossier), erreur);
  for (; !erreur && entree != std::filesystem::directory_iterator(); entree.increment(erreur)) {
    // What a link leads to isn't looked at: the link is what lies here.
    std::error_code inconnue;
    if (entree->symlink_status(inconnue).type() != std::filesystem::file_type::directory) {
      noms.push_back(entree->path().filename().string());
    }
  }
  if (erreur) {
    throw ErreurExecution(PanneDuSysteme(erreur.value()));
  }
  std::sort(noms.begin(), noms.end());
  return noms;
}

}  // namespace gastrelle
