// The application of the window tests: offscreen, with a home and settings of its own, and an end
// of the program that is kept instead of ending the tests.
#pragma once

#include "doublures/ServicesEssai.h"
#include "shell/Application.h"

namespace gastrelle::essai {

class ApplicationEssai final : public Application {
 public:
  ApplicationEssai(int& argc, char** argv);

  bool notify(QObject* destinataire, QEvent* evenement) override;

 private:
  MessagesEssai messages_;
  PointeurEssai pointeur_;
  ProcessusEssai processus_;
};

/// Where the reports of unguarded failures go from now on; null: nowhere.
void EcouteMessages(MessagesEssai* messages);

}  // namespace gastrelle::essai
