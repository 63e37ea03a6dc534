// Reading pictures from files, turned upright and no larger than they are shown.
#pragma once

#include <QImage>
#include <QString>

namespace gastrelle {

/// A picture with its proportions, scaled down to `auPlus` pixels while it is read if it is larger:
/// a photograph never takes its whole memory. Null when there is no such file, when it isn't a
/// regular one, or when it can't be read.
QImage LitImageReduite(const QString& fichier, const QSize& auPlus);

}  // namespace gastrelle
