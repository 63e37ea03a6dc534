// The toolkit's application with the program's style and language, and the net under its event
// loop.
#pragma once

#include <functional>

#include <QApplication>

#include "data/Messages.h"
#include "plateforme/ErreurExecution.h"
#include "plateforme/Processus.h"

namespace gastrelle {

/// Shows "Erreur d'exécution 'N' : " and the text, then ends the process with status 1.
[[noreturn]] void FinSurErreur(const ErreurExecution& erreur, Messages& messages,
                               Pointeur& pointeur, Processus& processus);

class Application : public QApplication {
 public:
  Application(int& argc, char** argv, Messages& messages, Pointeur& pointeur, Processus& processus);

  /// A failure that no operation guards ends the program with its report.
  bool notify(QObject* destinataire, QEvent* evenement) override;

  /// Runs when the desktop wants the program to end, as at the end of the session. Without it the
  /// toolkit closes every window as its user does, and whatever that asks waits for an answer.
  std::function<void()> surArret;

 protected:
  bool event(QEvent* evenement) override;

 private:
  Messages& messages_;
  Pointeur& pointeur_;
  Processus& processus_;
};

}  // namespace gastrelle
