// A walk through the unmodified program, the same on every system. The toolkit loads it when the
// environment says QT_QPA_GENERIC_PLUGINS=promenade, QT_PLUGIN_PATH being the folder above.
#pragma once

#include <QObject>
#include <QtGui/QGenericPlugin>

namespace gastrelle::essai {

class GreffonPromenade final : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "promenade.json")

 public:
  QObject* create(const QString& nom, const QString& precision) override;
};

}  // namespace gastrelle::essai
