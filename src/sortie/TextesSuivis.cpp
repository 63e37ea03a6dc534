#include "sortie/TextesSuivis.h"

#include <cstddef>
#include <span>
#include <string_view>

#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr std::size_t enAvance = std::size_t{1} << 17;
/// A longer text gains nothing by company.
constexpr std::int32_t plusLong = std::int32_t{1} << 15;

}  // namespace

TextesSuivis::TextesSuivis(Reserve& reserve)
    : reserve_(reserve),
      // NOLINTNEXTLINE(modernize-avoid-c-arrays): untouched, it costs nothing
      avance_(std::make_unique_for_overwrite<char[]>(enAvance)) {}

void TextesSuivis::EcritDans(FluxTexte& flux, std::int32_t position, std::int32_t longueur) {
  if (longueur < 0 || longueur > FluxTexte::place) {
    flux.EcritLigne(reserve_.Lit(position, longueur));
    return;
  }
  if (position == suite_ && longueur <= plusLong && !EstLu(position, longueur)) {
    LitEnAvance(position);
  }
  suite_ = std::int64_t{position} + longueur;
  if (EstLu(position, longueur)) {
    flux.EcritLigne(
        std::string_view(avance_.get() + (position - debut_), static_cast<std::size_t>(longueur)));
  } else {
    flux.EcritLigneLue(longueur,
                       [&](std::span<char> ou) { return reserve_.LitDans(position, ou); });
  }
}

void TextesSuivis::LitEnAvance(std::int32_t position) {
  debut_ = position;
  fin_ = position;
  // What can't be read may lie behind the text that is asked for, which is then read alone.
  PasseOutre([&] {
    fin_ += static_cast<std::int64_t>(reserve_.LitDans(position, {avance_.get(), enAvance}));
  });
}

}  // namespace gastrelle
