// How long the export of 32,766 recipes with 60 MB of texts takes, from the click on its button to
// the dialog's end, against `cat` of the file of their texts into another one, in turns in the same
// run; and how much the memory grows by it.

#include <filesystem>

#include <QPushButton>

#include "Commande.h"
#include "GrandeBibliotheque.h"
#include "Lancement.h"
#include "Memoire.h"
#include "Ouverture.h"
#include "Releve.h"
#include "sortie/Export.h"
#include "sortie/frmExport.h"

namespace gastrelle::bancs {
namespace {

namespace fs = std::filesystem;

constexpr double cible = 2;
constexpr double cibleMemoire = 64;  // MB
constexpr int tours = 21;

struct Releves {
  Releve cat;
  Releve exportation;
  Releve memoire;
};

void Tour(Releves& releves, const fs::path& dossier, Module1& module) {
  const fs::path textes = dossier / Nom(Donnees::GLR3);
  const fs::path copie = dossier / "copie";
  const fs::path document = dossier / documentExport;
  fs::remove(copie);
  int statut = 0;
  releves.cat.Mesure([&] { statut = Execute({"cat", textes}, copie); });
  Exige(statut == 0 && fs::file_size(copie) == fs::file_size(textes), "la copie n'est pas entière");

  fs::remove(document);
  frmExport dialogue(module, nullptr);
  dialogue.show();
  QApplication::processEvents();
  auto* bouton = dialogue.findChild<QPushButton*>(QStringLiteral("cmdExport"));
  const double avant = OublieMaximum();
  releves.exportation.Mesure([&] { bouton->click(); });
  releves.memoire.Ajoute(Millisecondes(Memoire("VmHWM") - avant));
  Exige(!dialogue.isVisible() && fs::file_size(document) > fs::file_size(textes),
        "le document n'est pas entier");
}

/// The exports of the library in the folder: the first one by itself, then as many as are timed.
struct Exports {
  Releves premier;
  Releves suivants;
};

/// With the recipes of a family together, or each one elsewhere (`melees`).
Exports MesureCahier(essai::Bibliotheque& b, bool melees) {
  const fs::path dossier = b.dossier.chemin();
  EcritGrandCahier(dossier, {.melees = melees});
  SurLeDisque programme(b);
  Exports exports;
  Tour(exports.premier, dossier, programme.module());
  for (int tour = 0; tour < tours; ++tour) {
    Tour(exports.suivants, dossier, programme.module());
  }
  return exports;
}

int Mesure(essai::Bibliotheque& b) {
  const Exports reunies = MesureCahier(b, false);
  const bool tenu = Annonce("export de 32 766 recettes, 60 Mo, contre cat",
                            reunies.suivants.exportation, reunies.suivants.cat, cible);
  const Exports melees = MesureCahier(b, true);
  AnnoncePart("le même, chaque texte loin du précédent", melees.suivants.exportation);
  Releve un;
  un.Ajoute(Millisecondes(1));
  // Later exports find the memory of the first one.
  return Annonce("mémoire prise par l'export, en Mo", reunies.premier.memoire, un, cibleMemoire) &&
                 tenu
             ? 0
             : 1;
}

}  // namespace
}  // namespace gastrelle::bancs

int main(int argc, char** argv) {
  return gastrelle::bancs::Lance(argc, argv, gastrelle::bancs::Mesure);
}
