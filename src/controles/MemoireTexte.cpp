#include "controles/MemoireTexte.h"

#include <algorithm>

#include "data/Limites.h"

namespace gastrelle {
namespace {

// Bytes of memory, as measured on the boxes.
constexpr std::int64_t boites = 3;
constexpr std::int64_t duCaractere = 5;
constexpr std::int64_t deLaLigne = 450;
constexpr std::int64_t duSigne = 70;     // a tab or a line feed alone
constexpr std::int64_t miseEnPage = 45;  // of a character, while its line is being broken
constexpr std::string_view finDeLigne = "\r\n";

/// Calls `visite(morceau)` for each piece of a text between two of the separators that `trouve`
/// finds, as `find` does; a separator is `longueur` bytes.
template <class Trouve, class Visite>
void Decoupe(std::string_view texte, std::size_t longueur, Trouve&& trouve, Visite&& visite) {
  for (;;) {
    const std::size_t coupe = trouve(texte);
    visite(texte.substr(0, coupe));
    if (coupe == std::string_view::npos) {
      return;
    }
    texte.remove_prefix(coupe + longueur);
  }
}

}  // namespace

std::int64_t MemoireDeTexte(std::string_view texte) {
  std::int64_t lignes = 0;
  std::int64_t plusLongue = 0;
  const auto trouve = [](std::string_view reste) { return reste.find(finDeLigne); };
  Decoupe(texte, finDeLigne.size(), trouve, [&](std::string_view ligne) {
    ++lignes;
    const auto signes =
        std::count_if(ligne.begin(), ligne.end(), [](char c) { return c == '\t' || c == '\n'; });
    plusLongue = std::max<std::int64_t>(plusLongue,
                                        miseEnPage * std::ssize(ligne) + boites * duSigne * signes);
  });
  return boites * (duCaractere * std::ssize(texte) + deLaLigne * lignes) + plusLongue;
}

bool TientUnMotSansFin(std::string_view texte) {
  std::size_t plusLong = 0;
  if (texte.size() <= std::size_t{limiteTexte}) {
    return false;
  }
  const auto trouve = [](std::string_view reste) { return reste.find_first_of(" \t\r\n-"); };
  Decoupe(texte, 1, trouve,
          [&](std::string_view mot) { plusLong = std::max(plusLong, mot.size()); });
  return plusLong > std::size_t{limiteTexte};
}

}  // namespace gastrelle
