// Ends an unmodified program as soon as its first window can be used. Loaded by the toolkit when
// the environment says QT_QPA_GENERIC_PLUGINS=guetteur, QT_PLUGIN_PATH being the folder above.
#pragma once

#include <QObject>
#include <QTimer>
#include <QtGui/QGenericPlugin>

namespace gastrelle::bancs {

/// Usable: the first window has been exposed and painted, and the event loop, asked again and
/// again, has nothing more to do. The process then ends at once with status 0, or with `modale`
/// when that window is a message or a dialog.
class Guetteur final : public QObject {
  Q_OBJECT

 public:
  static constexpr int modale = 3;

  Guetteur();

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Bat();

  QTimer battement_;
  unsigned long evenements_ = 0;
  unsigned long evenementsAvant_ = 0;
  int calmes_ = 0;
  int statut_ = 0;
  bool exposee_ = false;
  bool peinte_ = false;
};

class GreffonGuetteur final : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "guetteur.json")

 public:
  QObject* create(const QString& nom, const QString& precision) override;
};

}  // namespace gastrelle::bancs
