// Writes the inputs from which the fuzzers start: `seme FOLDER`, into its folders `corpus` and
// `corpus-images`. What else they hold stays.

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "fuzz/Graines.h"
#include "fuzz/ImageTiree.h"

namespace {

using gastrelle::essai::Graine;

/// False if a file can't be written; which one is told.
bool Seme(const std::vector<Graine>& graines, const std::filesystem::path& dossier) {
  std::filesystem::create_directories(dossier);
  for (const Graine& graine : graines) {
    std::ofstream sortie(dossier / graine.nom, std::ios::binary);
    sortie.write(graine.octets.data(), static_cast<std::streamsize>(graine.octets.size()));
    if (!sortie) {
      std::fprintf(stderr, "impossible d'écrire %s\n", graine.nom.c_str());
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage : seme DOSSIER\n", stderr);
    return 2;
  }
  const std::filesystem::path dossier = argv[1];
  const bool semees = Seme(gastrelle::essai::Graines(), dossier / "corpus") &&
                      Seme(gastrelle::essai::GrainesImages(), dossier / "corpus-images");
  return semees ? 0 : 1;
}
