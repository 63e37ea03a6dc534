#include "controles/TraitsTexte.h"

#include <algorithm>
#include <array>

namespace gastrelle {
namespace {

constexpr std::array<QStringView, 4> titres{u"Ingrédients", u"Étapes", u"Organisation",
                                            u"Préparation"};
constexpr qsizetype cleAuPlus = 40;
constexpr qsizetype chiffresAuPlus = 3;

bool EstBlanc(QChar c) {
  return c == u' ' || c == QChar::Nbsp;
}

qsizetype Marge(QStringView ligne) {
  return std::find_if_not(ligne.begin(), ligne.end(), EstBlanc) - ligne.begin();
}

std::optional<qsizetype> LongueurTitre(QStringView texte) {
  for (const QStringView titre : titres) {
    if (!texte.startsWith(titre, Qt::CaseInsensitive)) {
      continue;
    }
    const QStringView reste = texte.sliced(titre.size());
    // A heading may end in a colon; what has words behind it is no heading.
    if (reste.size() <= cleAuPlus &&
        std::all_of(reste.begin(), reste.end(), [](QChar c) { return EstBlanc(c) || c == u':'; })) {
      return titre.size();
    }
  }
  return std::nullopt;
}

std::optional<qsizetype> LongueurMarque(QStringView texte) {
  constexpr QStringView tirets = u"-–—•*";
  const auto suiviDUnBlanc = [&](qsizetype longueur) {
    return texte.size() > longueur && EstBlanc(texte[longueur]);
  };
  if (!texte.isEmpty() && tirets.contains(texte.front()) && suiviDUnBlanc(1)) {
    return 1;
  }
  qsizetype chiffres = 0;
  while (chiffres < std::min(texte.size(), chiffresAuPlus) && texte[chiffres].isDigit()) {
    ++chiffres;
  }
  const bool numero = chiffres > 0 && chiffres < chiffresAuPlus && texte.size() > chiffres &&
                      (texte[chiffres] == u'.' || texte[chiffres] == u')');
  return numero && suiviDUnBlanc(chiffres + 1) ? std::optional(chiffres + 1) : std::nullopt;
}

/// "Pour 4 personnes": the whole line.
bool EstPourTant(QStringView texte) {
  constexpr QStringView pour = u"Pour ";
  return texte.size() > pour.size() && texte.size() <= cleAuPlus && texte.startsWith(pour) &&
         texte[pour.size()].isDigit();
}

/// A sentence that happens to hold a colon is no key: a key is short, begins with a capital and has
/// neither a digit nor a stop in it.
std::optional<qsizetype> LongueurCle(QStringView texte) {
  const qsizetype deuxPoints = texte.first(std::min(texte.size(), cleAuPlus)).indexOf(u':');
  if (deuxPoints < 2 || !EstBlanc(texte[deuxPoints - 1]) || !texte.front().isUpper()) {
    return std::nullopt;
  }
  const QStringView cle = texte.first(deuxPoints - 1);
  constexpr QStringView interdits = u".,;!?";
  const bool courte = std::none_of(cle.begin(), cle.end(),
                                   [&](QChar c) { return c.isDigit() || interdits.contains(c); });
  return courte ? std::optional(cle.size()) : std::nullopt;
}

}  // namespace

std::optional<PassageTrait> TraitDeLigne(QStringView ligne) {
  const qsizetype debut = Marge(ligne);
  const QStringView texte = ligne.sliced(debut);
  if (texte.isEmpty()) {
    return std::nullopt;
  }
  if (const auto longueur = LongueurMarque(texte)) {
    return PassageTrait{Trait::marque, debut, *longueur};
  }
  if (const auto longueur = LongueurTitre(texte)) {
    return PassageTrait{Trait::titre, debut, *longueur};
  }
  if (EstPourTant(texte)) {
    return PassageTrait{Trait::cle, debut, texte.size()};
  }
  if (const auto longueur = LongueurCle(texte)) {
    return PassageTrait{Trait::cle, debut, *longueur};
  }
  return std::nullopt;
}

}  // namespace gastrelle
