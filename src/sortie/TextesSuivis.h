// The texts of a pool on their way into a document. Those that lie one behind the other, as those
// of a family mostly do, are fetched together; any other is read straight into its place.
#pragma once

#include <cstdint>

#include "data/LectureEnAvance.h"
#include "data/Reserve.h"
#include "sortie/FluxTexte.h"

namespace gastrelle {

/// For as long as nothing is written to the pool.
class TextesSuivis {
 public:
  explicit TextesSuivis(Reserve& reserve) : reserve_(reserve), avance_(reserve) {}

  /// Adds a whole text to the document, with a line end. Throws as `Reserve::Lit` does for it, and
  /// as the document does.
  void EcritDans(FluxTexte& flux, std::int32_t position, std::int32_t longueur);

 private:
  Reserve& reserve_;
  LectureEnAvance avance_;
};

}  // namespace gastrelle
