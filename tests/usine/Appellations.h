// The names of wines in the texts of the catalogues.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "usine/Notice.h"

namespace gastrelle::usine {

/// The names by which texts call a wine, and the entry that each stands for. Hyphens, apostrophes
/// and case don't count.
class Appellations {
 public:
  /// `connues` are lines "name" or "name = entry"; the names of the entries are known by
  /// themselves.
  Appellations(const std::vector<std::string>& connues, const std::vector<Notice>& vins);

  struct Citation {
    std::string nom;
    const Notice* fiche;  ///< none: the wine has no entry
    bool connue;          ///< a line names it, so that it is missed if its entry goes
  };
  /// The wines named in a text, the longest name at each place.
  [[nodiscard]] std::vector<Citation> Dans(std::string_view texte) const;

 private:
  std::map<std::string, const Notice*> fiches_;
  std::set<std::string> connues_;
};

}  // namespace gastrelle::usine
