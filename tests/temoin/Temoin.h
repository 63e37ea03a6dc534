// Tells the messages of an unmodified program on its standard output. Loaded by the toolkit when
// the environment says QT_QPA_GENERIC_PLUGINS=temoin, QT_PLUGIN_PATH being the folder above.
#pragma once

#include <QObject>
#include <QtGui/QGenericPlugin>

namespace gastrelle::essai {

/// One line for each message box that comes on the screen: "message: " and its text, the lines of
/// the text joined by " | ".
class Temoin final : public QObject {
  Q_OBJECT

 public:
  Temoin();

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;
};

class GreffonTemoin final : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "temoin.json")

 public:
  QObject* create(const QString& nom, const QString& precision) override;
};

}  // namespace gastrelle::essai
