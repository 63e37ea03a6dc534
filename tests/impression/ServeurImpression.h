// A print service of the tests' own, with one queue: "essai", the default, of a printer that keeps
// what it is sent. The process asks that one and no other.
#pragma once

#include <string>

#include <QProcess>
#include <QString>
#include <QStringList>

#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

class ServeurImpression {
 public:
  /// Fails the test if the service doesn't start.
  ServeurImpression();
  ServeurImpression(const ServeurImpression&) = delete;
  ServeurImpression& operator=(const ServeurImpression&) = delete;
  ~ServeurImpression();

  /// An instruction to the service (lpadmin, cupsdisable...); what it prints.
  static QString Commande(const QString& programme, const QStringList& arguments);
  /// Stops and resumes the service's process, which keeps its port.
  void Fige(bool fige) const;
  /// Ends the service; from then on nobody answers.
  void Arrete();

  /// The jobs that the service has accepted, done or not.
  [[nodiscard]] static int TravauxEnAttente();
  /// The document of the n-th job, counted from 1, as soon as the printer has it whole; empty if it
  /// doesn't come.
  [[nodiscard]] QString Sortie(int numero) const;
  /// True if the printer was never given anything.
  [[nodiscard]] bool RienSorti() const;

 private:
  [[nodiscard]] QString Chemin(const QString& nom) const;

  DossierEssai dossier_{"impression"};
  QProcess processus_;
};

}  // namespace gastrelle::essai
