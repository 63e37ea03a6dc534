// Writes the inputs from which the fuzzer starts: `seme FOLDER`. What else the folder holds stays.

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "fuzz/Graines.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage : seme DOSSIER\n", stderr);
    return 2;
  }
  const std::filesystem::path dossier = argv[1];
  for (const gastrelle::essai::Graine& graine : gastrelle::essai::Graines()) {
    std::ofstream sortie(dossier / graine.nom, std::ios::binary);
    sortie.write(graine.octets.data(), static_cast<std::streamsize>(graine.octets.size()));
    if (!sortie) {
      std::fprintf(stderr, "impossible d'écrire %s\n", graine.nom.c_str());
      return 1;
    }
  }
  return 0;
}
