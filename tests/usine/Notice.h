// One entry of a compiled catalogue, and the ways to read what it tells.
#pragma once

#include <initializer_list>
#include <optional>
#include <regex>
#include <string>
#include <vector>

namespace gastrelle::usine {

/// An entry of a compiled catalogue, in UTF-8, with plain blanks and "\n" between its lines.
struct Notice {
  std::string nom;
  std::string texte;
  std::string groupe = {};  ///< the family of a recipe
};

bool Dit(const std::string& texte, std::initializer_list<const char*> tours);

std::vector<std::string> Lignes(const std::string& texte);

/// The pieces of a text between any of some characters, each with the one that ends it.
std::vector<std::string> Morceaux(const std::string& texte, const char* coupures);

/// All matches of an expression in a text, from left to right; they point into the text.
std::vector<std::smatch> Toutes(const std::string& texte, const std::regex& expression);

/// A span of heats, in degrees; both ends are the same for a single one.
struct Etendue {
  int de;
  int a;

  [[nodiscard]] std::string EnTexte() const;
  /// True if one of some spans holds all of this one.
  [[nodiscard]] bool TientDans(const std::vector<Etendue>& etendues) const;
};

/// One heat told in a text, and the words before it since the last one.
struct ChaleurDite {
  Etendue etendue;
  std::string avant;
};

/// The heats of a text: "14 °C", "12-14 °C", "entre 12 et 14 °C", "12 à 14 °C".
std::vector<ChaleurDite> ChaleursDites(const std::string& texte);
std::vector<Etendue> Chaleurs(const std::string& texte);

/// How many guests a text begins with: "Pour 6 personnes".
std::optional<int> Convives(const std::string& texte);

/// What a menu tells of a meal before the order of its work: the lines that serve something.
std::vector<std::string> Services(const Notice& menu);

/// The numbered steps of a recipe.
std::vector<std::string> Etapes(const Notice& recette);

}  // namespace gastrelle::usine
