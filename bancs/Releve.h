// Times of repeated runs, and the line that tells a figure against its floor.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace gastrelle::bancs {

using Millisecondes = std::chrono::duration<double, std::milli>;

class Releve {
 public:
  void Ajoute(Millisecondes temps) { temps_.push_back(temps.count()); }

  /// Runs a block and adds what it took.
  template <class Bloc>
  void Mesure(Bloc&& bloc) {
    const auto debut = std::chrono::steady_clock::now();
    bloc();
    Ajoute(std::chrono::steady_clock::now() - debut);
  }

  /// In milliseconds; 0 without any run.
  [[nodiscard]] double Mediane() const;

 private:
  std::vector<double> temps_;
};

/// One line of the table: name, measured, floor, ratio, target, whether it is kept. Returns the
/// latter.
bool Annonce(const std::string& nom, const Releve& mesure, const Releve& plancher, double cible);

/// One line below it: where a part of the time goes.
void AnnoncePart(const std::string& nom, const Releve& part);

}  // namespace gastrelle::bancs
