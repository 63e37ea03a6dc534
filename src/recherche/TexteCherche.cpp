#include "recherche/TexteCherche.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "data/TableCaracteres.h"
#include "data/Texte1252.h"

namespace gastrelle {
namespace {

constexpr unsigned char Octet(char c) {
  return static_cast<unsigned char>(c);
}

/// The other byte that has the same capital; the byte itself where there is none.
constexpr std::array<char, 256> minuscule1252 = [] {
  std::array<char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    table[i] = static_cast<char>(i);
  }
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (Octet(capitale1252[i]) != i) {
      table[Octet(capitale1252[i])] = static_cast<char>(i);
    }
  }
  return table;
}();

/// The more frequent a capital is in French, the higher; 0 for what stands for no letter of these.
std::size_t Frequence(char capitale) {
  constexpr std::string_view deRareAFrequent = "KWYZXJHGBFQVPMÉCDOLURNTIASE "_1252;
  return deRareAFrequent.find(capitale) + 1;
}

constexpr std::size_t parBloc = 128;

}  // namespace

TexteCherche::TexteCherche(std::string_view texte) : cible_(Majuscules(texte)) {
  std::vector<std::size_t> places(cible_.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::stable_sort(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
    return Frequence(cible_[a]) < Frequence(cible_[b]);
  });
  reperes_ = {RepereA(places.front()), RepereA(places.size() > 1 ? places[1] : places.front())};
}

TexteCherche::Repere TexteCherche::RepereA(std::size_t place) const {
  const char capitale = cible_[place];
  return {place, {capitale, minuscule1252[Octet(capitale)]}};
}

bool TexteCherche::Commence(const char* texte) const {
  return std::equal(cible_.begin(), cible_.end(), texte,
                    [](char attendu, char lu) { return attendu == capitale1252[Octet(lu)]; });
}

bool TexteCherche::PeutEtreDans(const char* bloc) const {
  const auto [a, b] = reperes_;
  const char* const premiere = bloc + a.place;
  const char* const seconde = bloc + b.place;
  // Without a branch: the compiler compares many places at once.
  unsigned char possible = 0;
  for (std::size_t i = 0; i < parBloc; ++i) {
    const bool ici = ((premiere[i] == a.formes[0]) | (premiere[i] == a.formes[1])) &
                     ((seconde[i] == b.formes[0]) | (seconde[i] == b.formes[1]));
    possible |= static_cast<unsigned char>(ici);
  }
  return possible != 0;
}

bool TexteCherche::EstDans(std::string_view texte) const {
  if (texte.size() < longueur()) {
    return false;
  }
  const std::size_t departs = texte.size() - longueur() + 1;
  for (std::size_t debut = 0; debut < departs; debut += parBloc) {
    const std::size_t nombre = std::min(parBloc, departs - debut);
    const char* const bloc = texte.data() + debut;
    if (nombre == parBloc && !PeutEtreDans(bloc)) {
      continue;
    }
    for (std::size_t i = 0; i < nombre; ++i) {
      if (Commence(bloc + i)) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace gastrelle
