// Builds the parts, hands over to `Main`, runs the window events.

#include "data/Main.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

#include "controles/Boites.h"
#include "controles/Conversion.h"
#include "data/Emplacement.h"
#include "imprimante/AccesImprimanteSysteme.h"
#include "plateforme/Clavier.h"
#include "plateforme/Contraintes.h"
#include "plateforme/DemandeArret.h"
#include "plateforme/Disque.h"
#include "plateforme/DonneesUtilisateur.h"
#include "plateforme/FinImprevue.h"
#include "plateforme/TexteChemin.h"
#include "shell/Application.h"
#include "shell/EcouteArret.h"
#include "shell/frmMain.h"

namespace gastrelle {
namespace {

/// Files that the program holds open, with its data, a dialog and what the desktop's libraries
/// take, and then some.
constexpr int fichiersUtiles = 64;
/// What a single message takes of them.
constexpr int fichiersDUnMessage = 32;

constexpr const char* tropPeuDeFichiers =
    "Le système ne laisse pas ouvrir assez de fichiers à la fois : Gastrelle ne peut pas démarrer. "
    "Relevez cette limite (« ulimit -n 256 »), puis recommencez.";

/// A folder as the system writes it.
QString EnTexte(std::filesystem::path dossier) {
  return QString::fromStdString(EnUtf8(dossier.make_preferred()));
}

}  // namespace
}  // namespace gastrelle

int main(int argc, char** argv) {
  using namespace gastrelle;
  GarnitEntreesSorties();
  ChangeSignalEnErreur();
  const int fichiers = FichiersPermis(fichiersUtiles);
  if (fichiers < fichiersUtiles) {
    static_cast<void>(std::fprintf(stderr, "%s\n", tropPeuDeFichiers));
  }
  if (fichiers < fichiersDUnMessage) {
    return EXIT_FAILURE;  // the toolkit itself would give up half way
  }
  const DemandeArret demande;
  MessagesEcran messages;
  PointeurEcran pointeur;
  HorlogeSysteme horloge;
  AssociationSysteme association;
  SonSysteme son;
  ProcessusSysteme processus;
  Application application(argc, argv, messages, pointeur, processus);
  EcouteArret ecoute(application, demande.descripteur());
  // Until the frame is there, all that a stop can meet is a message about the start.
  ecoute.surArret = [&] { processus.Termine(EXIT_FAILURE); };
  if (fichiers < fichiersUtiles) {
    messages.Informe(DepuisQt(QString::fromUtf8(tropPeuDeFichiers)), Icone::critique);
    return EXIT_FAILURE;
  }
  ClavierSysteme clavier;

  const Emplacement lieu =
      OccupeEmplacement(QApplication::applicationDirPath().toStdU16String(), DonneesUtilisateur());
  std::error_code sansSuite;
  std::filesystem::current_path(lieu.dossier,
                                sansSuite);  // where the programs that it starts begin
  Disque disque(lieu.dossier);
  AccesImprimanteSysteme imprimante(QApplication::applicationDirPath());
  Module1 module({disque, messages, pointeur, horloge, association, son, processus, imprimante},
                 Chemins(conventionDuSysteme, DepuisQt(EnTexte(lieu.dossier))));
  try {
    std::unique_ptr<frmMain> cadre;
    Main(module, lieu.dejaEnCours, [&] {
      cadre = std::make_unique<frmMain>(module, clavier);
      cadre->surFin = [] { QApplication::exit(0); };
      ecoute.surArret = [&] { cadre->Arrete(); };
      ecoute.surEnregistrement = [&] { cadre->Enregistre(); };
      cadre->show();
    });
    const FinImprevue imprevue([&] { cadre->Enregistre(); });
    return QApplication::exec();
  } catch (const ErreurExecution& erreur) {
    FinSurErreur(erreur, messages, pointeur, processus);
  }
}
