// The program itself, walked through from its first start to its end in a folder of its own.
#pragma once

#include <string>

#include <QStringList>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

/// What a command has ended with, and all that it has written.
struct Issue {
  int statut;
  std::string dit;
};

/// Runs a command of the system to its end; the environment is the test's own but for `variables`
/// ("NAME=value"). The status of one that was stopped or didn't end is -1.
Issue Execute(const QString& commande, const QStringList& arguments,
              const QStringList& variables = {});

/// A complete copy of the program's folder without any data file, and a user without a printer or a
/// program for documents.
class DossierPromene {
 public:
  /// `nom`: how the folder's name begins.
  explicit DossierPromene(const std::string& nom);

  /// Walks through the program there; steps that don't come are waited for that long, in
  /// milliseconds.
  [[nodiscard]] Issue Promene(int patience) const;
  /// The steps that the walk has told, one a line.
  [[nodiscard]] QStringList Journal() const;

  DossierEssai dossier;

 private:
  DossierEssai usager_{"usager"};
};

/// Compares two folders after their walks.
Issue Compare(const DossierEssai& un, const DossierEssai& autre, const QStringList& options = {});

}  // namespace gastrelle::essai
