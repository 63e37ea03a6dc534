// One source file of the factory, and one entry of it: every value is checked as it is taken.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <toml++/toml.h>

#include "usine/Journal.h"
#include "usine/Typographie.h"

namespace gastrelle::usine {

/// Limits of a text, in Windows-1252 bytes as they go to file, and what it is made of.
struct Mesure {
  std::size_t moindre = 0;
  std::size_t plus = 0;
  Forme forme = formes::prose;
};

class Entree {
 public:
  Entree(const toml::table& table, std::string fichier, std::string nom, Journal& journal)
      : table_(table), fichier_(std::move(fichier)), nom_(std::move(nom)), journal_(journal) {}

  /// A text in Windows-1252 as the sources write it; empty if it is missing.
  [[nodiscard]] std::string Texte(const char* cle, Mesure mesure) const;
  /// The texts of an array, at least `moindre` of them.
  [[nodiscard]] std::vector<std::string> Textes(const char* cle, std::size_t moindre,
                                                Mesure mesure) const;
  /// A whole number between two bounds.
  [[nodiscard]] std::int16_t Nombre(const char* cle, std::int16_t moindre, std::int16_t plus) const;
  /// The place of a word in a table; a word that isn't there is refused.
  [[nodiscard]] std::int16_t Code(const char* cle, std::span<const std::string_view> mots) const;

  /// Refuses the entry, or one of its values.
  void Refuse(const std::string& raison) const;
  void Refuse(const char* cle, const std::string& raison) const;
  /// Refuses every key that isn't among these.
  void ExigeCles(std::span<const std::string_view> connues) const;

  /// Where the entry begins.
  [[nodiscard]] Lieu lieu() const;

 private:
  [[nodiscard]] std::string Examine(const char* cle, const toml::node& valeur, Mesure mesure) const;
  void RefuseFaute(const char* cle, const toml::node& valeur, std::string_view texte,
                   const Faute& faute) const;
  void RefuseEn(const toml::node& noeud, std::size_t lignes, const std::string& raison) const;

  const toml::table& table_;
  std::string fichier_;
  std::string nom_;
  Journal& journal_;
};

/// One kind of entry in a source file: the array of tables `cle`, whose entries may hold `cles` and
/// are named by `cleNom` in refusals.
struct Rubrique {
  const char* cle;
  const char* cleNom;
  std::span<const std::string_view> cles;
  std::function<void(const Entree&)> pourChaque;
};

/// Reads a source file, rubric after rubric. A file that can't be read, a rubric without an entry
/// and anything that isn't in a rubric are told to the journal.
void LitSource(const std::filesystem::path& dossier, const std::string& fichier,
               std::span<const Rubrique> rubriques, Journal& journal);

/// Texts that may stand only once: refuses a second one, case ignored, and says where the first is.
class Uniques {
 public:
  /// True if the text is new; an empty one never is.
  bool Exige(const Entree& entree, const char* cle, std::string_view texte);

 private:
  std::map<std::string, std::string> vus_;
};

}  // namespace gastrelle::usine
