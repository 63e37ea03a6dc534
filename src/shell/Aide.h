// The help: a compiled file of topics in the program's folder, shown in a window of its own.
#pragma once

#include <memory>

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "data/Module1.h"

namespace gastrelle {

/// The topic with which the help opens.
inline constexpr const char* sujetAccueil = "accueil";

class FichierAide;
class frmAide;

class Aide final : public QObject {
 public:
  explicit Aide(Module1& module);
  ~Aide() override;

  /// Opens a topic, at the first of the named paragraphs that its page has. A help file that is
  /// missing or damaged is told with its own description.
  void Ouvre(const QString& sujet, const QStringList& paragraphes = {});
  /// Closes the help window.
  void Quitte();

 protected:
  /// The key F1, anywhere in the program: opens the topic of the control in focus, or of what it
  /// lies in, at the paragraph that bears the control's name, or the name of what it lies in.
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  [[nodiscard]] bool Prepare();
  /// Makes the window usable beside a modal dialog (null: none is open).
  void Rattache(QWidget* dialogue);

  Module1& module_;
  std::unique_ptr<FichierAide> fichier_;
  std::unique_ptr<frmAide> fenetre_;
  QPointer<QWidget> dialogue_;
};

}  // namespace gastrelle
