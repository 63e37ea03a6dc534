// How long the program takes until its window can be used, against a bare window of the same
// toolkit. Both are started the same way, unmodified, and ended by the same plugin; the clock
// stands outside. `banc_demarrage [offscreen|xcb] [RUNS]`; xcb needs a display.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "GrandeBibliotheque.h"
#include "Releve.h"

namespace gastrelle::bancs {
namespace {

namespace fs = std::filesystem;

constexpr double cibleFabrique = 1.3;
constexpr double cibleGrande = 1.6;
constexpr int toursParDefaut = 21;

/// A folder that goes with the object.
class Travail {
 public:
  Travail() {
    std::string modele = (fs::temp_directory_path() / "gastrelle-banc-XXXXXX").string();
    if (::mkdtemp(modele.data()) == nullptr) {
      throw std::runtime_error("pas de dossier provisoire");
    }
    chemin_ = modele;
  }
  Travail(const Travail&) = delete;
  Travail& operator=(const Travail&) = delete;
  ~Travail() {
    std::error_code ignoree;
    fs::remove_all(chemin_, ignoree);
  }
  [[nodiscard]] const fs::path& chemin() const { return chemin_; }

 private:
  fs::path chemin_;
};

/// A copy of the program folder as the build made it, with the factory copies only.
fs::path CopieProgramme(const fs::path& vers) {
  fs::create_directory(vers);
  for (const auto& entree : fs::directory_iterator(DOSSIER_PROGRAMME)) {
    if (entree.path().extension() != ".DAT") {
      fs::copy(entree.path(), vers / entree.path().filename(), fs::copy_options::recursive);
    }
  }
  return vers / "gastrelle";
}

/// The same surroundings for all: nothing of the person who measures, no desktop's own plugins.
void PrepareEnvironnement(const fs::path& foyer, const std::string& plateforme) {
  for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                               "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
    const fs::path dossier = foyer / variable;
    fs::create_directories(dossier);
    fs::permissions(dossier, fs::perms::owner_all);
    ::setenv(variable, dossier.c_str(), 1);
  }
  for (const char* variable : {"XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "QT_STYLE_OVERRIDE",
                               "QT_QPA_PLATFORMTHEME", "DBUS_SESSION_BUS_ADDRESS"}) {
    ::unsetenv(variable);
  }
  ::setenv("QT_QPA_PLATFORM", plateforme.c_str(), 1);
  ::setenv("QT_LOGGING_RULES", "default.warning=false;qt.*=false", 1);
  ::setenv("QT_QPA_GENERIC_PLUGINS", "guetteur", 1);
  ::setenv("QT_PLUGIN_PATH", DOSSIER_GREFFONS, 1);
}

/// One start, from the call to the end of the process.
void Lance(const fs::path& programme, const char* argument = nullptr) {
  std::string nom = programme.string();
  std::string suite = argument == nullptr ? "" : argument;
  std::array<char*, 3> arguments{nom.data(), suite.empty() ? nullptr : suite.data(), nullptr};
  pid_t pid = 0;
  if (::posix_spawn(&pid, nom.c_str(), nullptr, nullptr, arguments.data(), environ) != 0) {
    throw std::runtime_error("impossible de lancer " + nom);
  }
  int etat = 0;
  ::waitpid(pid, &etat, 0);
  if (!WIFEXITED(etat) || WEXITSTATUS(etat) != 0) {
    throw std::runtime_error(nom + " n'a pas montré sa fenêtre : statut " + std::to_string(etat));
  }
}

int Mesure(const std::string& plateforme, int tours) {
  const Travail travail;
  PrepareEnvironnement(travail.chemin() / "foyer", plateforme);
  const fs::path nue = FENETRE_NUE;
  const fs::path fabrique = CopieProgramme(travail.chemin() / "fabrique");
  const fs::path grande = CopieProgramme(travail.chemin() / "grande");
  EcritGrandeBibliotheque(grande.parent_path());
  // The first starts restore the files and warm the caches.
  for (const fs::path& programme : {nue, fabrique, grande, nue, fabrique, grande}) {
    Lance(programme);
  }
  Releve plancher;
  Releve sansTitre;
  Releve avecFabrique;
  Releve avecGrande;
  for (int tour = 0; tour < tours; ++tour) {
    plancher.Mesure([&] { Lance(nue); });
    avecFabrique.Mesure([&] { Lance(fabrique); });
    sansTitre.Mesure([&] { Lance(nue, "sans"); });
    plancher.Mesure([&] { Lance(nue); });
    avecGrande.Mesure([&] { Lance(grande); });
  }
  const std::string ou = " (" + plateforme + ")";
  bool tenu = Annonce("démarrage, données de fabrique" + ou, avecFabrique, plancher, cibleFabrique);
  tenu = Annonce("démarrage, 32 766 recettes" + ou, avecGrande, plancher, cibleGrande) && tenu;
  AnnoncePart("la fenêtre nue, sans titre ni police", sansTitre);
  return tenu ? 0 : 1;
}

}  // namespace
}  // namespace gastrelle::bancs

int main(int argc, char** argv) {
  constexpr unsigned secondesAuPlus = 600;
  ::alarm(secondesAuPlus);
  try {
    const std::string plateforme = argc > 1 ? argv[1] : "offscreen";
    const int tours = argc > 2 ? std::atoi(argv[2]) : gastrelle::bancs::toursParDefaut;
    return gastrelle::bancs::Mesure(plateforme, tours);
  } catch (const std::exception& erreur) {
    std::fprintf(stderr, "%s\n", erreur.what());
    return 2;
  }
}
