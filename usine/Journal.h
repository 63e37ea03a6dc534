// What the factory compiler refuses: in which file, on which line, at which entry, for which
// reason.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace gastrelle::usine {

/// A place in a source file. Line 0 stands for the whole file.
struct Lieu {
  std::string fichier;
  std::size_t ligne = 0;

  /// "file:line", or the file alone.
  [[nodiscard]] std::string EnTexte() const;

  bool operator==(const Lieu&) const = default;
};

struct Refus {
  Lieu lieu;
  std::string entree;
  std::string raison;

  bool operator==(const Refus&) const = default;
};

class Journal {
 public:
  void Refuse(Lieu lieu, std::string entree, std::string raison);

  [[nodiscard]] const std::vector<Refus>& refus() const { return refus_; }
  /// One line a refusal: "file:line: entry: reason", in UTF-8.
  void Ecrit(std::ostream& sortie) const;

 private:
  std::vector<Refus> refus_;
};

}  // namespace gastrelle::usine
