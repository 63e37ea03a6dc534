#include "data/LectureEnAvance.h"

#include <cstddef>

#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr std::size_t enAvance = std::size_t{1} << 17;
/// A longer text gains nothing by company.
constexpr std::int32_t plusLong = std::int32_t{1} << 15;

}  // namespace

LectureEnAvance::LectureEnAvance(Reserve& reserve)
    : reserve_(reserve),
      // NOLINTNEXTLINE(modernize-avoid-c-arrays): untouched, it costs nothing
      avance_(std::make_unique_for_overwrite<char[]>(enAvance)) {}

std::optional<std::string_view> LectureEnAvance::Rend(std::int32_t position,
                                                      std::int32_t longueur) {
  if (position == suite_ && longueur <= plusLong && !EstLu(position, longueur)) {
    LitDepuis(position);
  }
  suite_ = std::int64_t{position} + longueur;
  if (longueur < 0 || !EstLu(position, longueur)) {
    return std::nullopt;
  }
  return std::string_view(avance_.get() + (position - debut_), static_cast<std::size_t>(longueur));
}

void LectureEnAvance::LitDepuis(std::int32_t position) {
  debut_ = position;
  fin_ = position;
  // What can't be read may lie behind the text that is asked for, which is then read alone.
  PasseOutre([&] {
    fin_ += static_cast<std::int64_t>(reserve_.LitDans(position, {avance_.get(), enAvance}));
  });
}

}  // namespace gastrelle
