#include "shell/Application.h"

#include <QEvent>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "controles/Conversion.h"
#include "controles/Icones.h"
#include "controles/StyleGastrelle.h"
#include "data/Chemins.h"
#include "plateforme/DossierProgramme.h"

namespace gastrelle {

void FinSurErreur(const ErreurExecution& erreur, Messages& messages, Pointeur& pointeur,
                  Processus& processus) {
  pointeur.Normal();
  messages.Informe(erreur.Rapport(), Icone::critique);
  processus.Termine(1);
}

namespace {

/// The toolkit would look for plug-ins in the program's own folder as well, and run what it finds
/// there. It forgets a folder before it starts only if it knew of it.
int& SansGreffonsDuDossier(int& argc) {
  if constexpr (conventionDuSysteme == Convention::windows) {
    return argc;  // there the system itself looks for libraries in that folder first
  }
  constexpr const char* variable = "QT_PLUGIN_PATH";
  const QByteArray avant = qgetenv(variable);
  const QString dossier = QString::fromStdU16String(DossierDuProgramme().u16string());
  qputenv(variable, QFile::encodeName(dossier));
  QCoreApplication::removeLibraryPath(dossier);
  avant.isNull() ? qunsetenv(variable) : qputenv(variable, avant);
  return argc;
}

}  // namespace

Application::Application(int& argc, char** argv, Messages& messages, Pointeur& pointeur,
                         Processus& processus)
    : QApplication(SansGreffonsDuDossier(argc), argv),
      messages_(messages),
      pointeur_(pointeur),
      processus_(processus) {
  // No display name: the toolkit would put it behind every caption that doesn't end with it.
  setApplicationName(VersQt(titreApplication));
  setDesktopFileName(QStringLiteral("gastrelle"));
  setWindowIcon(IconeDe(QStringLiteral("gastrelle"), plusGrandeIconeFenetre));
  // The end of the program has steps of its own once its last window is gone.
  setQuitOnLastWindowClosed(false);
  setStyle(new StyleGastrelle);
  // French on the screen whatever the machine's language, the toolkit's own texts included.
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  auto* francais = new QTranslator(this);
  if (francais->load(QStringLiteral("qtbase_fr"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    installTranslator(francais);
  }
}

bool Application::notify(QObject* destinataire, QEvent* evenement) {
  try {
    return QApplication::notify(destinataire, evenement);
  } catch (const ErreurExecution& erreur) {
    FinSurErreur(erreur, messages_, pointeur_, processus_);
  }
}

bool Application::event(QEvent* evenement) {
  if (evenement->type() == QEvent::Quit && surArret) {
    surArret();
    return true;
  }
  return QApplication::event(evenement);
}

}  // namespace gastrelle
