// The report of the whole cellar: which lines it has, and each of them as it is asked for. Texts
// are Windows-1252.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/Collation.h"
#include "data/Module1.h"
#include "vins/Cave.h"

namespace gastrelle {

class RapportCave {
 public:
  /// The report on these wines, in their order; on none, the one line that says so. Their records
  /// and those of their regions are read through the working records, which are left on the last
  /// ones. Throws ErreurExecution on a failure, and for a total that doesn't fit 32 bits.
  RapportCave(Module1& module, const Liste& vins);

  /// How many lines there are.
  [[nodiscard]] int nombre() const;
  /// A line, counted from 0 and below their number.
  [[nodiscard]] std::string Ligne(int indice) const;

 private:
  /// A wine and where its lines begin.
  struct VinRange {
    TexteFixe<64> nom;
    TexteFixe<64> region;
    Bouteilles bouteilles;
    int premiereLigne;
  };

  void Range(const RecVin& vin, const RecRegion& region);
  void Compte(const Bouteilles& bouteilles);
  /// The lines behind the last wine.
  void Conclut();

  std::vector<VinRange> vins_;
  std::vector<std::string> conclusion_;
  int lignesDesVins_ = 0;
  std::array<std::int32_t, couleursVin.size()> parCouleur_{};
  std::int32_t total_ = 0;
};

}  // namespace gastrelle
