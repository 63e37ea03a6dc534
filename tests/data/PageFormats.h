// docs/formats.md as a test reads it: its tables by heading, its worked examples.
#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace gastrelle::essai {

using Rangee = std::vector<std::string>;

/// A block of bytes: the words of its first line ("RecFamille", "actif=-1", ...) and the dump.
struct Exemple {
  std::string sujet;
  std::string valeurs;
  std::vector<std::string> lignes;
};

/// The cells of a table's row, without blanks at their ends and without back-quotes.
inline Rangee Cellules(std::string_view ligne) {
  Rangee cellules;
  for (std::size_t i = 1; i < ligne.size();) {
    const std::size_t fin = ligne.find('|', i);
    std::string cellule(ligne.substr(i, fin - i));
    std::erase(cellule, '`');
    cellule.erase(0, cellule.find_first_not_of(' '));
    cellule.erase(cellule.find_last_not_of(' ') + 1);
    cellules.push_back(cellule);
    i = fin + 1;
  }
  return cellules;
}

class PageFormats {
 public:
  PageFormats() {
    std::ifstream page(PAGE_FORMATS);
    for (std::string ligne; std::getline(page, ligne);) {
      lignes_.push_back(ligne);
    }
    EXPECT_FALSE(lignes_.empty()) << PAGE_FORMATS;
  }

  /// The rows of the tables under a heading, without those of their titles.
  [[nodiscard]] std::vector<Rangee> Table(const std::string& titre) const {
    std::vector<Rangee> rangees;
    bool dessous = false;
    for (std::size_t i = 0; i < lignes_.size(); ++i) {
      const std::string& ligne = lignes_[i];
      if (ligne.starts_with('#')) {
        dessous = ligne.ends_with("# " + titre);
      } else if (dessous && ligne.starts_with("| ") && !lignes_[i + 1].starts_with("|-")) {
        rangees.push_back(Cellules(ligne));
      }
    }
    return rangees;
  }

  [[nodiscard]] std::vector<Exemple> Exemples() const {
    std::vector<Exemple> exemples;
    bool dedans = false;
    for (const std::string& ligne : lignes_) {
      if (ligne.starts_with("```hex ")) {
        const std::size_t fin = ligne.find(' ', 7);
        exemples.push_back({ligne.substr(7, fin - 7), ligne.substr(fin + 1), {}});
        dedans = true;
      } else if (ligne.starts_with("```")) {
        dedans = false;
      } else if (dedans) {
        exemples.back().lignes.push_back(ligne);
      }
    }
    return exemples;
  }

 private:
  std::vector<std::string> lignes_;
};

/// The bytes of a dump: "0000: FF FF 20 x 121", each line beginning with its offset.
inline std::string OctetsDe(const std::vector<std::string>& lignes) {
  std::string octets;
  for (const std::string& ligne : lignes) {
    EXPECT_EQ(std::stoul(ligne, nullptr, 16), octets.size()) << ligne;
    std::istringstream mots(ligne.substr(ligne.find(':') + 1));
    for (std::string mot; mots >> mot;) {
      if (mot == "x") {
        std::size_t combien = 0;
        mots >> combien;
        octets.append(combien - 1, octets.back());
      } else {
        EXPECT_EQ(mot.size(), 2U) << ligne;
        octets += static_cast<char>(std::stoul(mot, nullptr, 16));
      }
    }
  }
  return octets;
}

}  // namespace gastrelle::essai
