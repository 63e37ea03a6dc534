// The program itself as a process, in a folder of its own, on a virtual display: what its user sees
// from outside, in whatever surroundings.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/EcranVirtuel.h"
#include "doublures/Entrees.h"

namespace gastrelle::essai {

class ProgrammeEssai : public testing::Test {
 protected:
  /// Skips the test where there is no virtual display. The folder `b.dossier` gets the program, its
  /// small factory copies and preferences without a backup at the end.
  void SetUp() override;
  void TearDown() override { EcranVirtuel::Arrete(programme); }

  /// Starts the program; its messages are told from then on (`Messages`).
  void Lance(QProcess& processus);
  /// An instruction of xdotool on the display, and what it prints.
  QString Outil(const QStringList& arguments);
  /// The one window that a program shows, as the display knows it, once it is there; `dessous`: a
  /// window of the same program that was there before.
  QString FenetreDe(const QProcess& processus, const QString& dessous = {});
  /// Presses a key in a program's window, again as long as it may not have been ready for it, until
  /// the program ends; its status.
  int FinitPar(const char* touche, QProcess& processus, const QString& fenetre);
  /// The texts of all messages that a program has shown, their lines joined by " | ".
  std::vector<std::string> Messages(QProcess& processus);
  /// What the programs of the test have written to the standard error.
  [[nodiscard]] std::string Erreurs() const { return reglages.Lit("erreurs"); }
  /// The message of a file that can't be used.
  [[nodiscard]] std::string TroisLignes(const char* fichier) const;
  /// Most memory that a running program has held, in bytes.
  [[nodiscard]] static qint64 PlusDeMemoire(const QProcess& processus);

  /// From now on the program runs as a user who isn't the folder's owner, who may do with files and
  /// folders what everybody may. Its settings lie in a place of their own.
  void EnSimpleUsager();
  /// Lays something else under a name of the folder, whatever is there.
  void Remplace(const char* nom, const Entree& entree) const;
  /// Rights of a file of the folder, or of the folder itself (an empty name), as chmod takes them.
  void Droits(const char* nom, unsigned droits) const;

  Bibliotheque b;
  DossierEssai reglages;
  std::optional<EcranVirtuel> ecran;
  QProcess programme;
  /// Runs in the process between its making and the program: limits of the system, the user. May
  /// call nothing but the system.
  std::function<void()> avantDepart;
  /// How long a window or the end of the program may take, in milliseconds.
  int attente = patience;
  /// Where the program is started from; empty: where the tests run.
  std::string dossierCourant;
  /// What the environment says beside the display.
  QProcessEnvironment environnement;

 private:
  bool simpleUsager_ = false;
};

}  // namespace gastrelle::essai
