// How long the export of 32,766 recipes with 60 MB of texts takes, from the click on its button to
// the dialog's end, against `cat` of the file of their texts into another one, in turns in the same
// run; and how much the memory grows by it.

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include <QPushButton>

#include "GrandeBibliotheque.h"
#include "Lancement.h"
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

/// Runs `cat` and waits for its end.
void Concatene(const fs::path& de, const fs::path& vers) {
  constexpr mode_t droits = 0666;
  posix_spawn_file_actions_t sorties;
  Exige(::posix_spawn_file_actions_init(&sorties) == 0, "pas de place pour lancer cat");
  Exige(::posix_spawn_file_actions_addopen(&sorties, STDOUT_FILENO, vers.c_str(),
                                           O_WRONLY | O_CREAT | O_TRUNC, droits) == 0,
        "pas de place pour lancer cat");
  std::string nom = "cat";
  std::string source = de.string();
  const std::array<char*, 3> arguments{nom.data(), source.data(), nullptr};
  pid_t cat = 0;
  const int refus = ::posix_spawnp(&cat, nom.c_str(), &sorties, nullptr, arguments.data(), environ);
  ::posix_spawn_file_actions_destroy(&sorties);
  int statut = -1;
  Exige(refus == 0 && ::waitpid(cat, &statut, 0) == cat && statut == 0, "cat a échoué");
}

/// A figure of the process, in MB: "VmRSS" what it has in memory, "VmHWM" the most it has had.
double Memoire(const std::string& mesure) {
  constexpr double kiloParMega = 1024;
  std::ifstream etat("/proc/self/status");
  for (std::string mot; etat >> mot;) {
    if (mot == mesure + ":") {
      double kilos = 0;
      etat >> kilos;
      return kilos / kiloParMega;
    }
  }
  throw std::runtime_error("pas de mesure " + mesure);
}

/// The most that the process has had becomes what it has.
void OublieMaximum() {
  std::ofstream("/proc/self/clear_refs") << 5;
}

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
  releves.cat.Mesure([&] { Concatene(textes, copie); });
  Exige(fs::file_size(copie) == fs::file_size(textes), "la copie n'est pas entière");

  fs::remove(document);
  frmExport dialogue(module, nullptr);
  dialogue.show();
  QApplication::processEvents();
  auto* bouton = dialogue.findChild<QPushButton*>(QStringLiteral("cmdExport"));
  ::malloc_trim(0);  // what was freed before would hide what is taken now
  OublieMaximum();
  const double avant = Memoire("VmRSS");
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
  EcritGrandCahier(dossier, melees);
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
