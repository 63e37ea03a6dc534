#include "memcheck/DossiersEssayes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <utility>

#include "fuzz/Graines.h"
#include "memcheck/Hasard.h"

namespace gastrelle::essai {
namespace {

constexpr std::size_t plusLong = 8192;

void ChangeUnOctet(std::string& octets, Hasard& hasard) {
  octets[hasard.Sous(octets.size())] = hasard.Octet();
}

/// A number at an end of its range, or beside it, where a count or a reference may stand.
void PoseUnExtreme(std::string& octets, Hasard& hasard) {
  using Bornes = std::numeric_limits<std::int32_t>;
  constexpr std::array<std::int32_t, 10> extremes{
      Bornes::min(), Bornes::max(), -1, 0, 1, 9, 30'000, 30'001, 32'767, -32'768};
  auto valeur = static_cast<std::uint32_t>(extremes[hasard.Sous(extremes.size())]);
  for (std::size_t i = hasard.Sous(octets.size()), n = 0; n < 4 && i < octets.size(); ++n, ++i) {
    octets[i] = static_cast<char>(valeur & 0xFFU);
    valeur >>= 8U;
  }
}

void Coupe(std::string& octets, Hasard& hasard) {
  octets.resize(1 + hasard.Sous(octets.size()));
}

void Repete(std::string& octets, Hasard& hasard) {
  const std::size_t debut = hasard.Sous(octets.size());
  octets.insert(hasard.Sous(octets.size()),
                octets.substr(debut, 1 + hasard.Sous(octets.size() - debut)));
}

void Retire(std::string& octets, Hasard& hasard) {
  constexpr std::size_t passage = 150;
  const std::size_t debut = 1 + hasard.Sous(octets.size());
  if (debut < octets.size()) {
    octets.erase(debut, 1 + hasard.Sous(passage));
  }
}

constexpr std::array mutations{ChangeUnOctet, ChangeUnOctet, PoseUnExtreme, PoseUnExtreme,
                               PoseUnExtreme, Repete,        Retire,        Coupe};

std::string Mute(std::string octets, Hasard& hasard) {
  constexpr std::size_t changements = 8;
  for (std::size_t reste = 1 + hasard.Sous(changements); reste > 0; --reste) {
    mutations[hasard.Sous(mutations.size())](octets, hasard);
  }
  octets.resize(std::min(octets.size(), plusLong));
  return octets;
}

}  // namespace

std::vector<std::string> DossiersEssayes(std::size_t nombre) {
  std::vector<std::string> dossiers;
  for (Graine& graine : Graines()) {
    dossiers.push_back(std::move(graine.octets));
  }
  const std::size_t graines = dossiers.size();
  Hasard hasard;
  while (dossiers.size() < nombre) {
    const std::string& graine = dossiers[hasard.Sous(graines)];
    if (!graine.empty()) {
      dossiers.push_back(Mute(graine, hasard));
    }
  }
  return dossiers;
}

}  // namespace gastrelle::essai
