// The program's own pictures, rendered from vectors at the build in every size that a screen wants.
#pragma once

#include <QIcon>

namespace gastrelle {

/// The picture of that name; an empty one if there is none.
QIcon IconeDe(const QString& nom);

}  // namespace gastrelle
