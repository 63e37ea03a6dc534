// The words of the factory sources, under the French dictionary and the list of accepted words.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace gastrelle::usine {

/// Words in UTF-8.
using Mots = std::set<std::string>;

/// A word and the places where it stands: "recettes/soupes.toml: Garbure béarnaise: conseil".
using MotsEtLieux = std::map<std::string, std::vector<std::string>>;

/// The words of a French text: runs of letters, with the apostrophes and hyphens inside them.
/// Addresses on the net and everything that holds a figure are left out.
std::vector<std::string> MotsDe(std::string_view texte);

/// All words of all names and texts of the sources in a folder.
MotsEtLieux MotsDesSources(const std::filesystem::path& dossier);

/// The words that the French dictionary doesn't know, with one call of hunspell. Throws
/// std::runtime_error if it doesn't run.
Mots InconnusDuDictionnaire(const Mots& mots);

/// The lines of a word list that aren't comments.
std::vector<std::string> LitListe(const std::filesystem::path& fichier);

struct Verdict {
  Mots refuses;   ///< neither in the dictionary nor in the list
  Mots inutiles;  ///< in the list, but no word needs them
};

/// A word is right if it is in the dictionary or in the list (where a small letter stands for a
/// capital too), or if what is left without its elided beginning is, or if all its parts between
/// hyphens are.
Verdict Juge(const Mots& mots, const std::vector<std::string>& acceptes);

}  // namespace gastrelle::usine
