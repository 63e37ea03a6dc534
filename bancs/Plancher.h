// The floors of the benchmarks of lists: what it takes at least to know the names in a file of
// records.
#pragma once

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "data/Enregistrements.h"
#include "data/Texte1252.h"

namespace gastrelle::bancs {

/// A file open for reading; throws std::runtime_error on a failure.
class FichierLu {
 public:
  explicit FichierLu(const std::filesystem::path& fichier)
      : nom_(fichier.string()), descripteur_(::open(fichier.c_str(), O_RDONLY | O_CLOEXEC)) {
    struct stat etat {};
    if (descripteur_ < 0 || ::fstat(descripteur_, &etat) != 0) {
      throw std::runtime_error("impossible de lire " + nom_);
    }
    longueur_ = static_cast<std::size_t>(etat.st_size);
  }
  FichierLu(const FichierLu&) = delete;
  FichierLu& operator=(const FichierLu&) = delete;
  ~FichierLu() { ::close(descripteur_); }

  [[nodiscard]] std::size_t longueur() const { return longueur_; }
  void Lit(std::size_t debut, char* vers, std::size_t combien) const {
    if (::pread(descripteur_, vers, combien, static_cast<off_t>(debut)) !=
        static_cast<ssize_t>(combien)) {
      throw std::runtime_error("lecture incomplète de " + nom_);
    }
  }

 private:
  std::string nom_;
  int descripteur_;
  std::size_t longueur_ = 0;
};

/// One plain read of a file and one plain sort of its names: those of all live records that
/// `garde` keeps, in byte order.
template <class T, class Garde>
std::vector<std::string> LitEtTrie(const std::filesystem::path& fichier, Garde garde) {
  const FichierLu lu(fichier);
  std::string octets(lu.longueur(), '\0');
  lu.Lit(0, octets.data(), octets.size());
  constexpr std::size_t longueur = longueurEnregistrement<T>;
  std::vector<std::string> noms;
  T enregistrement;
  for (std::size_t debut = longueur; debut + longueur <= octets.size(); debut += longueur) {
    Decode(enregistrement, octets.data() + debut);
    if (enregistrement.actif == vivant && garde(enregistrement)) {
      noms.emplace_back(Rogne(NomOuSignature(enregistrement).brut()));
    }
  }
  std::sort(noms.begin(), noms.end());
  return noms;
}

/// One plain read of a file of records, one after the other. Returns the live ones.
template <class T>
std::vector<T> LitUnAUn(const std::filesystem::path& fichier) {
  const FichierLu lu(fichier);
  constexpr std::size_t longueur = longueurEnregistrement<T>;
  std::array<char, longueur> octets{};
  std::vector<T> vivants;
  T enregistrement;
  for (std::size_t debut = longueur; debut + longueur <= lu.longueur(); debut += longueur) {
    lu.Lit(debut, octets.data(), octets.size());
    Decode(enregistrement, octets.data());
    if (enregistrement.actif == vivant) {
      vivants.push_back(enregistrement);
    }
  }
  return vivants;
}

}  // namespace gastrelle::bancs
