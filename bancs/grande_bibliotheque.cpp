// `grande_bibliotheque FOLDER [NUMBER]`: fills a program folder with recipes.

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "GrandeBibliotheque.h"

int main(int argc, char** argv) {
  const int nombre = argc > 2 ? std::atoi(argv[2]) : gastrelle::bancs::nombreRecettes;
  if (argc < 2 || nombre < 1 || nombre > gastrelle::bancs::nombreRecettes + 1) {
    std::fputs("usage : grande_bibliotheque DOSSIER [NOMBRE]\n", stderr);
    return 2;
  }
  try {
    gastrelle::bancs::EcritGrandeBibliotheque(argv[1], nombre);
  } catch (const std::exception& erreur) {
    std::fprintf(stderr, "%s\n", erreur.what());
    return 1;
  }
  return 0;
}
