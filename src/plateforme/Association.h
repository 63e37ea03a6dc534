// Opening a document, a picture or an address with the program that the system associates with it.
#pragma once

#include <string>

namespace gastrelle {

enum class Ouverture {
  ouverte,
  aucuneAssociation,  ///< no program is associated with that kind of document
  echec,              ///< anything else: not there, refused...
};

class Association {
 public:
  Association() = default;
  Association(const Association&) = delete;
  Association& operator=(const Association&) = delete;
  virtual ~Association() = default;

  /// `cible` is an absolute path or an address with its scheme, in UTF-8. Returns at once; never
  /// throws.
  /// Any other text fails: nothing is looked for in the current directory, no scheme is put before
  /// it, and a single letter before ":" is a drive, not a scheme. No shell ever reads the text. An
  /// address goes to its program as one argument, in which blanks, control characters, quotes
  /// and the other marks that no address may hold are written as "%" and two digits; all else is
  /// as it was given.
  virtual Ouverture Ouvre(const std::string& cible) = 0;
};

/// GIO's application look-up on Linux, the shell on Windows.
class AssociationSysteme final : public Association {
 public:
  Ouverture Ouvre(const std::string& cible) override;
};

}  // namespace gastrelle
