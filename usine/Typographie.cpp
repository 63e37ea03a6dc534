#include "usine/Typographie.h"

#include <algorithm>
#include <array>

#include "data/Texte1252.h"
#include "usine/Place.h"

namespace gastrelle::usine {
namespace {

constexpr char insecable = '\xA0';
constexpr char ouvrant = '\xAB';
constexpr char fermant = '\xBB';

bool AppelleInsecableAvant(char c) {
  return c == ';' || c == ':' || c == '!' || c == '?' || c == fermant;
}

/// What a person can't see, and what has another spelling in the sources.
bool EstInterdit(const Place& p) {
  return (static_cast<unsigned char>(p.c()) < ' ' && p.c() != '\n') ||
         Parmi(p.c(), "\x91\x92\x93\x94\"\xA0\xAD\x7F\x81\x8D\x8F\x90\x9D");
}

bool EstBlancAuBout(const Place& p) {
  const bool aUnBout = p.i == 0 || p.i + 1 == p.texte.size();
  return (p.c() == ' ' && (p.avant() == '\n' || p.apres() == '\n')) || (p.c() == '\n' && aUnBout);
}

bool EstSansLigature(const Place& p) {
  constexpr std::array<std::string_view, 10> mots{"CHOEUR", "COEUR", "OEUF",  "BOEUF",  "SOEUR",
                                                  "NOEUD",  "VOEU",  "OEUVR", "MOEURS", "MANOEUVR"};
  if (EstLettre(p.avant())) {
    return false;
  }
  constexpr std::size_t leMotLePlusLong = 8;
  const std::string debut = Majuscules(p.texte.substr(p.i, leMotLePlusLong));
  return std::any_of(mots.begin(), mots.end(),
                     [&](std::string_view mot) { return debut.starts_with(mot); });
}

bool EstUniteCollee(const Place& p) {
  constexpr std::array<std::string_view, 11> unites{"g",  "kg", "l", "cl",  "dl",      "ml",
                                                    "cm", "mm", "h", "min", "\xB0\x43"};
  const auto collee = [&](std::string_view unite) {
    const char apres = p.a(unite.size());
    return p.Commence(unite) && !EstLettre(apres) && !EstChiffre(apres);
  };
  return EstChiffre(p.avant()) && std::any_of(unites.begin(), unites.end(), collee);
}

enum class Portee { tout, uneLigne, mots, ponctuation };

struct Regle {
  Portee portee;
  bool (*faute)(const Place&);
  const char* raison;
};

constexpr std::array<Regle, 15> regles{{
    {Portee::tout, EstInterdit, "guillemets « », apostrophe droite et blancs simples attendus"},
    {Portee::tout, [](const Place& p) { return p.Commence("..."); },
     "points de suspension en un seul caractère attendus (…)"},
    {Portee::tout, [](const Place& p) { return p.Commence("  "); }, "deux blancs de suite"},
    {Portee::tout, EstBlancAuBout, "blanc ou ligne vide à un bout"},
    {Portee::tout, [](const Place& p) { return p.Commence("\n\n\n"); },
     "deux lignes vides de suite"},
    {Portee::uneLigne, [](const Place& p) { return p.c() == '\n'; }, "une seule ligne attendue"},
    {Portee::mots, EstSansLigature, "ligature œ attendue"},
    {Portee::ponctuation,
     [](const Place& p) { return Parmi(p.c(), ";!?") && !EstBlanc(p.avant()); },
     "blanc attendu devant ; ! ?"},
    {Portee::ponctuation,
     [](const Place& p) {
       return p.c() == ':' && !EstBlanc(p.avant()) && !EstChiffre(p.avant()) && !p.Commence("://");
     },
     "blanc attendu devant :"},
    {Portee::ponctuation,
     [](const Place& p) { return Parmi(p.c(), ";:!?") && EstLettre(p.apres()); },
     "blanc attendu après ; : ! ?"},
    {Portee::ponctuation, [](const Place& p) { return Parmi(p.c(), ",.)]") && p.avant() == ' '; },
     "pas de blanc devant , . )"},
    {Portee::ponctuation,
     [](const Place& p) {
       return (p.c() == ',' && EstLettre(p.apres())) || (p.c() == '(' && p.apres() == ' ');
     },
     "blanc attendu après la virgule, pas après ("},
    {Portee::ponctuation,
     [](const Place& p) {
       return (p.c() == ouvrant && p.apres() != ' ') || (p.c() == fermant && p.avant() != ' ');
     },
     "blanc attendu à l'intérieur des guillemets"},
    {Portee::ponctuation, EstUniteCollee, "blanc attendu devant l'unité"},
    {Portee::ponctuation,
     [](const Place& p) { return Parmi(p.c(), "%\x80") && EstChiffre(p.avant()); },
     "blanc attendu devant % et €"},
}};

bool Concerne(Portee portee, Forme forme) {
  switch (portee) {
    case Portee::uneLigne:
      return !forme.lignes;
    case Portee::mots:
      return forme.mots;
    case Portee::ponctuation:
      return forme.ponctuation;
    default:
      return true;
  }
}

}  // namespace

std::string Compose(std::string_view texte) {
  std::string resultat;
  resultat.reserve(texte.size() + texte.size() / 16);
  for (std::size_t i = 0; i < texte.size(); ++i) {
    const char c = texte[i];
    const char avant = i > 0 ? texte[i - 1] : '\n';
    const char apres = i + 1 < texte.size() ? texte[i + 1] : '\n';
    if (c == '\n') {
      resultat += "\r\n";
    } else if (c == ' ' && (AppelleInsecableAvant(apres) || avant == ouvrant)) {
      resultat += insecable;
    } else {
      resultat += c;
    }
  }
  return resultat;
}

std::optional<Faute> FauteTypographique(std::string_view texte, Forme forme) {
  for (const Regle& regle : regles) {
    for (std::size_t i = 0; Concerne(regle.portee, forme) && i < texte.size(); ++i) {
      if (regle.faute({texte, i})) {
        return Faute{regle.raison, i};
      }
    }
  }
  return std::nullopt;
}

}  // namespace gastrelle::usine
