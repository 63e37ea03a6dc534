#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

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

class Descripteur {
 public:
  explicit Descripteur(int numero) : numero_(numero) {
    if (numero_ < 0) {
      Echoue();
    }
  }
  Descripteur(const Descripteur&) = delete;
  Descripteur& operator=(const Descripteur&) = delete;
  ~Descripteur() { ::close(numero_); }
  [[nodiscard]] int numero() const { return numero_; }

 private:
  int numero_;
};

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
  explicit FichierPosix(const std::filesystem::path& chemin)
      : descripteur_(::open(chemin.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {}

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

 private:
  Descripteur descripteur_;
};

/// Copies a file; the copy is on the disk, not on its way there, when this returns.
void CopieOctets(const std::filesystem::path& source, const std::filesystem::path& cible) {
  const Descripteur lecture(::open(source.c_str(), O_RDONLY | O_CLOEXEC));
  const Descripteur ecriture(::open(cible.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  constexpr std::size_t tailleBloc = 1U << 18U;
  std::vector<char> bloc(tailleBloc);
  std::int64_t decalage = 0;
  while (const std::size_t lus = LitOctets(lecture, decalage, bloc)) {
    EcritOctets(ecriture, decalage, {bloc.data(), lus});
    decalage += static_cast<std::int64_t>(lus);
  }
  Exige(::fsync(ecriture.numero()));
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
  return std::make_unique<FichierPosix>(Chemin(nom));
}

void Disque::Copie(const std::string& source, const std::string& cible) {
  // The old file stands until the new one is whole.
  const std::filesystem::path provisoire = Chemin(cible + "~");
  try {
    CopieOctets(Chemin(source), provisoire);
    Exige(std::rename(provisoire.c_str(), Chemin(cible).c_str()));
  } catch (const ErreurExecution&) {
    ::unlink(provisoire.c_str());
    throw;
  }
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

}  // namespace gastrelle
