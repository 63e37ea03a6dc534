// Walks through the steps, each as soon as it can be made, also inside the dialogs that they open.
#pragma once

#include <cstddef>

#include <QElapsedTimer>
#include <QFile>
#include <QObject>

#include "promenade/Trajet.h"

namespace gastrelle::essai {

/// Tells each step to the file that the environment names (PROMENADE_JOURNAL): first how many there
/// are, then "number/all name" when it is made, "(sans objet)" behind one that nothing called for,
/// and "fin" once the program leaves its events. A step that doesn't come, or can't be made, ends
/// the process with the status 3, "ABANDON" in the file and on the standard error. The environment
/// may say how long a step is waited for (PROMENADE_PATIENCE, in milliseconds; else 30 seconds).
class Marche final : public QObject {
 public:
  explicit Marche(Trajet trajet);

 private:
  void Reprend();
  void Avance();
  bool EstPrete(const Etape& etape);
  void Execute(const Etape& etape);
  /// A step that waits for more time than a machine needs ends the walk.
  void Patiente();
  void Dit(const QString& ligne);
  [[noreturn]] void Abandonne(const QString& pourquoi);
  [[nodiscard]] QString NomDeLEtape() const;

  Trajet trajet_;
  std::size_t suivante_ = 0;
  int enCours_ = 0;  ///< gestures under way: one that opens a dialog lasts as long as that
  QString manque_;   ///< what the step that is waited for found wanting
  QElapsedTimer attente_;
  int patience_;  ///< milliseconds
  QFile journal_;
};

}  // namespace gastrelle::essai
