// A field of a record: its place, its width and its kind. One table of fields a record type serves
// reading, writing, the factory compiler and the documentation's worked examples.
//
// Integers are little-endian two's complement. A text field is a fixed run of Windows-1252 bytes
// padded on the right with blanks, without terminator.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <tuple>

namespace gastrelle {

/// A text field of N bytes. Setting a longer text cuts it, a shorter one is padded with blanks.
template <std::size_t N>
class TexteFixe {
 public:
  static constexpr std::size_t largeur = N;

  constexpr TexteFixe() { octets_.fill(' '); }

  constexpr TexteFixe& operator=(std::string_view texte) {
    std::array<char, N> nouveaux{};  // the text may be a piece of the old one
    nouveaux.fill(' ');
    std::copy_n(texte.begin(), std::min(texte.size(), N), nouveaux.begin());
    octets_ = nouveaux;
    return *this;
  }

  /// All N bytes, padding included.
  [[nodiscard]] constexpr std::string_view brut() const { return {octets_.data(), N}; }
  [[nodiscard]] constexpr std::span<char, N> octets() { return std::span<char, N>(octets_); }

  bool operator==(const TexteFixe&) const = default;

 private:
  std::array<char, N> octets_;
};

template <class Enregistrement, class Valeur>
struct Champ {
  std::string_view nom;
  std::size_t decalage;
  Valeur Enregistrement::*membre;

  static constexpr std::size_t largeur = sizeof(Valeur);
};

template <class Enregistrement, class Valeur>
Champ(const char*, std::size_t, Valeur Enregistrement::*) -> Champ<Enregistrement, Valeur>;

/// The table of fields of a record type; each type gives its own.
template <class Enregistrement>
inline constexpr auto champs = std::tuple{};

namespace detail {

template <class Enregistrement>
constexpr bool SeSuivent() {
  std::size_t fin = 0;
  bool bon = true;
  std::apply(
      [&](const auto&... champ) {
        ((bon = bon && champ.decalage == fin, fin += champ.largeur), ...);
      },
      champs<Enregistrement>);
  return bon;
}

// As in memory on every machine that the program is built for.
static_assert(std::endian::native == std::endian::little);

template <class Entier>
void Ecrit(Entier valeur, char* place) {
  std::memcpy(place, &valeur, sizeof valeur);
}

template <std::size_t N>
void Ecrit(const TexteFixe<N>& valeur, char* place) {
  std::memcpy(place, valeur.brut().data(), N);
}

template <class Entier>
void Lit(Entier& valeur, const char* place) {
  std::memcpy(&valeur, place, sizeof valeur);
}

template <std::size_t N>
void Lit(TexteFixe<N>& valeur, const char* place) {
  std::memcpy(valeur.octets().data(), place, N);
}

}  // namespace detail

/// Length of a record on file, in bytes.
template <class Enregistrement>
inline constexpr std::size_t longueurEnregistrement =
    std::apply([](const auto&... champ) { return (std::size_t{0} + ... + champ.largeur); },
               champs<Enregistrement>);

/// The bytes of a record, as on file.
template <class Enregistrement>
std::array<char, longueurEnregistrement<Enregistrement>> Code(const Enregistrement& e) {
  std::array<char, longueurEnregistrement<Enregistrement>> octets{};
  std::apply(
      [&](const auto&... champ) {
        (detail::Ecrit(e.*champ.membre, octets.data() + champ.decalage), ...);
      },
      champs<Enregistrement>);
  return octets;
}

/// Fills a record from its bytes; `octets` holds at least the record's length.
template <class Enregistrement>
void Decode(Enregistrement& e, const char* octets) {
  std::apply(
      [&](const auto&... champ) { (detail::Lit(e.*champ.membre, octets + champ.decalage), ...); },
      champs<Enregistrement>);
}

}  // namespace gastrelle
