// Texts of a pool that are read one after the other, as they mostly lie: those that follow each
// other are fetched many at a time.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "data/Reserve.h"

namespace gastrelle {

/// For as long as nothing is written to the pool.
class LectureEnAvance {
 public:
  explicit LectureEnAvance(Reserve& reserve);

  /// The text at `position` (from 1), `longueur` bytes of it, if it lies right behind the one asked
  /// for before and is short enough to gain by company; it stays until the next call. Otherwise
  /// nothing, and whoever asks reads it by itself. Throws nothing.
  [[nodiscard]] std::optional<std::string_view> Rend(std::int32_t position, std::int32_t longueur);

 private:
  [[nodiscard]] bool EstLu(std::int64_t position, std::int64_t longueur) const {
    return debut_ <= position && position + longueur <= fin_;
  }
  void LitDepuis(std::int32_t position);

  Reserve& reserve_;
  std::unique_ptr<char[]> avance_;  // NOLINT(modernize-avoid-c-arrays): read ahead
  std::int64_t debut_ = 0;          ///< where that lies in the pool
  std::int64_t fin_ = 0;
  std::int64_t suite_ = 0;  ///< behind the text that was asked for last
};

}  // namespace gastrelle
