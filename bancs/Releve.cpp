#include "Releve.h"

#include <algorithm>
#include <cstdio>

namespace gastrelle::bancs {
namespace {

constexpr int largeurNom = 46;

/// A name filled up to the column, by characters and not by bytes.
std::string Rempli(const std::string& nom) {
  const auto lettres = std::count_if(nom.begin(), nom.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  });
  return nom + std::string(static_cast<std::size_t>(std::max(1L, largeurNom - lettres)), ' ');
}

}  // namespace

double Releve::Mediane() const {
  if (temps_.empty()) {
    return 0;
  }
  std::vector<double> tries = temps_;
  std::sort(tries.begin(), tries.end());
  const std::size_t milieu = tries.size() / 2;
  return tries.size() % 2 == 1 ? tries[milieu] : (tries[milieu - 1] + tries[milieu]) / 2;
}

bool Annonce(const std::string& nom, const Releve& mesure, const Releve& plancher, double cible) {
  const double rapport = mesure.Mediane() / plancher.Mediane();
  const bool tenu = rapport <= cible;
  std::printf("%s%9.2f%9.2f%9.2f%9.2f  %s\n", Rempli(nom).c_str(), mesure.Mediane(),
              plancher.Mediane(), rapport, cible, tenu ? "tenu" : "MANQUÉ");
  std::fflush(stdout);
  return tenu;
}

void AnnoncePart(const std::string& nom, const Releve& part) {
  std::printf("%s%9.2f\n", Rempli("  " + nom).c_str(), part.Mediane());
}

}  // namespace gastrelle::bancs
