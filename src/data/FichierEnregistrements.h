// A file of fixed records numbered from 1, with its two-element buffer: element 0 is the header in
// memory, element 1 the working record.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "data/Enregistrements.h"
#include "plateforme/AccesFichiers.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {

/// The open file behind a place of the shared state; a closed one is a failure.
inline Fichier& Ouvert(const std::unique_ptr<Fichier>& place) {
  if (!place) {
    throw ErreurExecution(Panne::fichierFerme);
  }
  return *place;
}

/// Narrows to a field's type; a value that doesn't fit any more is a failure.
template <class Cible>
Cible Tenu(std::int64_t valeur) {
  if (valeur < std::numeric_limits<Cible>::min() || valeur > std::numeric_limits<Cible>::max()) {
    throw ErreurExecution(Panne::depassement);
  }
  return static_cast<Cible>(valeur);
}

template <class T>
class FichierEnregistrements {
 public:
  static constexpr std::int64_t longueur = longueurEnregistrement<T>;
  /// How many records are fetched with one read.
  static constexpr std::int64_t parBloc = std::max<std::int64_t>(1, (1 << 16) / longueur);

  /// `place` is where the shared state keeps the open file; it may be opened and closed later.
  explicit FichierEnregistrements(const std::unique_ptr<Fichier>& place) : place_(place) {}

  [[nodiscard]] T& operator[](std::size_t element) { return tampon_[element]; }
  [[nodiscard]] T& entete() { return tampon_[0]; }
  [[nodiscard]] T& courant() { return tampon_[1]; }

  /// Reads record `numero`; what lies beyond the end of the file reads as zeros.
  void Lit(std::int64_t numero, T& vers) {
    std::array<char, longueurEnregistrement<T>> octets{};
    Ouvert(place_).Lit(Decalage(numero), octets);
    Decode(vers, octets.data());
  }

  /// Reads the bytes of `nombre` records from `premier` on; what lies beyond the end of the file
  /// reads as zeros.
  void LitBloc(std::int64_t premier, std::int64_t nombre, std::vector<char>& bloc) {
    bloc.assign(static_cast<std::size_t>(nombre * longueur), '\0');
    Ouvert(place_).Lit(Decalage(premier), bloc);
  }

  /// Writes record `numero`, also beyond the end.
  void Ecrit(std::int64_t numero, const T& depuis) {
    const auto octets = Code(depuis);
    Ouvert(place_).Ecrit(Decalage(numero), {octets.data(), octets.size()});
  }

  void LitCourant(std::int64_t numero) { Lit(numero, courant()); }
  void EcritCourant(std::int64_t numero) { Ecrit(numero, courant()); }
  void LitEntete() { Lit(1, entete()); }
  void EcritEntete() { Ecrit(1, entete()); }

  /// Size of the file in whole records.
  [[nodiscard]] std::int64_t Nombre() { return Ouvert(place_).Longueur() / longueur; }

  /// The number of a new record: the first behind the last whole one.
  [[nodiscard]] std::int32_t ProchainNumero() { return Tenu<std::int32_t>(Nombre() + 1); }

  /// Number of live records, as the header in memory counts them.
  [[nodiscard]] std::int16_t& nbActifs() { return entete().actif; }

  /// Counts `ecart` live records more in the header and writes it.
  void Compte(std::int64_t ecart) {
    nbActifs() = Tenu<std::int16_t>(nbActifs() + ecart);
    EcritEntete();
  }

  /// Reads the records from 2 to the last, one after the other, into `dans`, and calls
  /// `visite(numero)` for each until it answers False. Records are fetched many at a time.
  template <class Visite>
  void ParcourtTous(T& dans, Visite&& visite) {
    ParcourtEntre(2, Nombre(), dans, visite);
  }

  /// The same from record `premier` to record `dernier`; what lies beyond the end of the file reads
  /// as zeros. A visit may write the record that it is at.
  template <class Visite>
  void ParcourtEntre(std::int64_t premier, std::int64_t dernier, T& dans, Visite&& visite) {
    std::vector<char> bloc;
    for (std::int64_t numero = premier; numero <= dernier; ++numero) {
      const auto rang = static_cast<std::size_t>((numero - premier) % parBloc);
      if (rang == 0) {
        LitBloc(numero, std::min<std::int64_t>(parBloc, dernier - numero + 1), bloc);
      }
      Decode(dans, bloc.data() + rang * static_cast<std::size_t>(longueur));
      if (!visite(Tenu<std::int32_t>(numero))) {
        return;
      }
    }
  }

  /// As ParcourtTous, for the live records alone. Stops once as many of them were seen as the
  /// header counts, or at the last record. Returns the number of live ones seen.
  template <class Visite>
  std::int16_t ParcourtVivants(T& dans, Visite&& visite) {
    std::int16_t vus = 0;
    ParcourtTous(dans, [&](std::int32_t numero) {
      if (dans.actif == vivant) {
        vus = Tenu<std::int16_t>(vus + 1);
        visite(numero);
      }
      return vus != nbActifs();
    });
    return vus;
  }

  /// The header's count, put right after a scan that saw `vus` live records: in memory, then on
  /// file. A failure of that write is ignored.
  void RepareCompte(std::int16_t vus) {
    if (vus == nbActifs()) {
      return;
    }
    nbActifs() = vus;
    try {
      EcritEntete();
    } catch (const ErreurExecution&) {
      return;  // the next scan that reaches the disk repairs it
    }
  }

 private:
  static std::int64_t Decalage(std::int64_t numero) {
    if (numero < 1) {
      throw ErreurExecution(Panne::numeroEnregistrement);
    }
    return (numero - 1) * longueur;
  }

  const std::unique_ptr<Fichier>& place_;
  std::array<T, 2> tampon_{};
};

}  // namespace gastrelle
