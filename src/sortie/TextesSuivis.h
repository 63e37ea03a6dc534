// The texts of a pool on their way into a document. Those that lie one behind the other, as those
// of a family mostly do, are fetched together; any other is read straight into its place.
#pragma once

#include <cstdint>
#include <memory>

#include "data/Reserve.h"
#include "sortie/FluxTexte.h"

namespace gastrelle {

/// For as long as nothing is written to the pool.
class TextesSuivis {
 public:
  explicit TextesSuivis(Reserve& reserve);

  /// Adds a whole text to the document, with a line end. Throws as `Reserve::Lit` does for it, and
  /// as the document does.
  void EcritDans(FluxTexte& flux, std::int32_t position, std::int32_t longueur);

 private:
  [[nodiscard]] bool EstLu(std::int64_t position, std::int64_t longueur) const {
    return debut_ <= position && position + longueur <= fin_;
  }
  void LitEnAvance(std::int32_t position);

  Reserve& reserve_;
  std::unique_ptr<char[]> avance_;  // NOLINT(modernize-avoid-c-arrays): read ahead
  std::int64_t debut_ = 0;          ///< where that lies in the pool
  std::int64_t fin_ = 0;
  std::int64_t suite_ = 0;  ///< behind the text that was written last
};

}  // namespace gastrelle
