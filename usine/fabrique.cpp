// fabrique CATALOGUES IMAGES FOLDER: compiles the catalogues into the nineteen factory copies.
// Exit status: 0 done, 1 something was refused (told on standard error), 2 wrong call.

#include <exception>
#include <iostream>

#include "data/Texte1252.h"
#include "plateforme/Disque.h"
#include "plateforme/ErreurExecution.h"
#include "usine/Catalogues.h"
#include "usine/Ecriture.h"

int main(int argc, char** argv) {
  using namespace gastrelle;
  constexpr int arguments = 4;
  if (argc != arguments) {
    std::cerr << "usage : fabrique CATALOGUES IMAGES DOSSIER\n";
    return 2;
  }
  try {
    usine::Journal journal;
    const usine::Catalogues catalogues = usine::LitCatalogues(argv[1], argv[2], journal);
    journal.Ecrit(std::cerr);
    if (!journal.refus().empty()) {
      std::cerr << journal.refus().size() << " refus, rien n'est écrit\n";
      return 1;
    }
    Disque disque(argv[3]);
    usine::EcritFabrique(disque, catalogues);
    return 0;
  } catch (const ErreurExecution& erreur) {
    std::cerr << "fabrique : " << VersUtf8(erreur.what()) << '\n';
    return 1;
  } catch (const std::exception& erreur) {
    std::cerr << "fabrique : " << erreur.what() << '\n';
    return 1;
  }
}
