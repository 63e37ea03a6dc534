// The measure of an icon or a pointer: that of the largest picture in it.
#pragma once

#include <optional>

#include <QIODevice>

#include "images/MesureImage.h"

namespace gastrelle {

/// `fichier`: begins with the format's signature. Nothing if it is no such picture, or one that is
/// larger inside than any icon.
std::optional<MesureImage> MesureIcone(QIODevice& fichier);

}  // namespace gastrelle
