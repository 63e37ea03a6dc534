// Makes a picture smaller without ever holding it twice.
#pragma once

#include <QImage>
#include <QSize>

namespace gastrelle {

/// `image` in another size; as it is if it has that size, or is none.
QImage Reduit(QImage image, const QSize& taille);

}  // namespace gastrelle
