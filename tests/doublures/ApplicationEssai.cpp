#include "doublures/ApplicationEssai.h"

#include <filesystem>

#include <QStandardPaths>

#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

std::optional<int> fin;
bool finTraversee = false;
MessagesEssai* ecoute = nullptr;

}  // namespace

ApplicationEssai::ApplicationEssai(int& argc, char** argv)
    : Application(argc, argv, messages_, pointeur_, processus_) {
  // An open list ignores the mouse for as long as a double click may take.
  constexpr int millisecondes = 10;
  setDoubleClickInterval(millisecondes);
}

bool ApplicationEssai::notify(QObject* destinataire, QEvent* evenement) {
  try {
    return Application::notify(destinataire, evenement);
  } catch (const FinDuProgramme& f) {
    fin = f.statut;
    finTraversee = true;
    if (ecoute != nullptr) {
      ecoute->vus.insert(ecoute->vus.end(), messages_.vus.begin(), messages_.vus.end());
    }
    messages_.vus.clear();
    return true;
  }
}

void EcouteMessages(MessagesEssai* messages) {
  ecoute = messages;
}

std::optional<int> FinVue() {
  return fin;
}

void OublieFin() {
  fin.reset();
}

}  // namespace gastrelle::essai

/// Asked by the leak sanitizer at the end of the process. Where the program's end was an exception,
/// whatever the toolkit held in the frames that it crossed is gone; any other test is checked.
extern "C" int __lsan_is_turned_off() {
  return gastrelle::essai::finTraversee ? 1 : 0;
}

int main(int argc, char** argv) {
  // Nothing of the person who runs the tests is read or written.
  const gastrelle::essai::DossierEssai foyer;
  qputenv("HOME", foyer.chemin().c_str());
  for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                               "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
    const std::filesystem::path dossier = foyer.chemin() / variable;
    std::filesystem::create_directory(dossier);
    std::filesystem::permissions(dossier, std::filesystem::perms::owner_all);
    qputenv(variable, dossier.c_str());
  }
  qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("PLATEFORME_DES_ESSAIS", "offscreen").toUtf8());
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false;default.debug=false");
  testing::InitGoogleTest(&argc, argv);
  const gastrelle::essai::ApplicationEssai application(argc, argv);
  return RUN_ALL_TESTS();
}
