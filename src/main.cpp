// Builds the parts, hands over to `Main`, runs the window events.

#include "data/Main.h"

#include <filesystem>
#include <memory>

#include "controles/Boites.h"
#include "controles/Conversion.h"
#include "plateforme/Clavier.h"
#include "plateforme/Disque.h"
#include "plateforme/Instance.h"
#include "shell/Application.h"
#include "shell/frmMain.h"

int main(int argc, char** argv) {
  using namespace gastrelle;
  MessagesEcran messages;
  PointeurEcran pointeur;
  HorlogeSysteme horloge;
  AssociationSysteme association;
  SonSysteme son;
  ProcessusSysteme processus;
  const Application application(argc, argv, messages, pointeur, processus);
  ClavierSysteme clavier;

  const std::filesystem::path dossier = QApplication::applicationDirPath().toStdU16String();
  Disque disque(dossier);
  const std::unique_ptr<Instance> instance = Instance::Prend(dossier);
  Module1 module({disque, messages, pointeur, horloge, association, son, processus},
                 Chemins(conventionDuSysteme, DepuisQt(QApplication::applicationDirPath())));
  try {
    std::unique_ptr<frmMain> cadre;
    Main(module, instance == nullptr, [&] {
      cadre = std::make_unique<frmMain>(module, clavier);
      cadre->surFin = [] { QApplication::exit(0); };
      cadre->show();
    });
    return QApplication::exec();
  } catch (const ErreurExecution& erreur) {
    FinSurErreur(erreur, messages, pointeur, processus);
  }
}
