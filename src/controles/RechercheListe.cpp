#include "controles/RechercheListe.h"

#include <algorithm>

#include "controles/Conversion.h"

namespace gastrelle {
namespace {

/// What titles and typed letters are compared by: both apostrophes are one.
std::string Cle(std::string_view texte) {
  constexpr char apostropheCourbe = '\x92';
  std::string cle = LettresDeBase(texte);
  std::replace(cle.begin(), cle.end(), apostropheCourbe, '\'');
  return cle;
}

/// In base letters: what isn't a letter or a digit stands between two words.
bool EstDansUnMot(char c) {
  constexpr unsigned char premiereLettreHaute = 0xC0;
  return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
         static_cast<unsigned char>(c) >= premiereLettreHaute;
}

/// True if a word behind the first one begins with `lettres`.
bool AUnMot(std::string_view cle, std::string_view lettres) {
  for (std::size_t i = cle.find(lettres, 1); i != std::string_view::npos;
       i = cle.find(lettres, i + 1)) {
    if (!EstDansUnMot(cle[i - 1])) {
      return true;
    }
  }
  return false;
}

/// The first entry that fits, from `debut` on and round.
std::optional<int> Cherche(const Liste& entrees, std::size_t debut, std::string_view lettres) {
  std::optional<int> parMot;
  for (std::size_t pas = 0; pas < entrees.size(); ++pas) {
    const std::size_t i = (debut + pas) % entrees.size();
    const std::string cle = Cle(entrees[i].texte);
    if (cle.starts_with(lettres)) {
      return static_cast<int>(i);
    }
    if (!parMot && AUnMot(cle, lettres)) {
      parMot = static_cast<int>(i);
    }
  }
  return parMot;
}

}  // namespace

void RechercheListe::Retient(const std::string& lettres) {
  if (!derniereTouche_.isValid() || derniereTouche_.hasExpired(memoire_.count())) {
    tapees_.clear();
  }
  derniereTouche_.start();
  if (tapees_.empty()) {
    touche_ = lettres;
    uneSeule_ = true;
  }
  uneSeule_ = uneSeule_ && lettres == touche_;
  tapees_ += lettres;
}

std::optional<int> RechercheListe::Trouve(const Liste& entrees, int courante, const QString& tape) {
  if (tape.isEmpty() || !tape.front().isPrint() || entrees.empty()) {
    return std::nullopt;
  }
  Retient(Cle(DepuisQt(tape)));
  if (tapees_.find_first_not_of(' ') == std::string::npos) {
    tapees_.clear();  // no title begins with a blank
    return std::nullopt;
  }
  const int debut = std::max(courante, 0) + (uneSeule_ && courante >= 0 ? 1 : 0);
  return Cherche(entrees, static_cast<std::size_t>(debut), uneSeule_ ? touche_ : tapees_);
}

}  // namespace gastrelle
