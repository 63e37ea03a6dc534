// The measure of a TIFF: that of its first picture.
#pragma once

#include <optional>

#include <QIODevice>

#include "images/MesureImage.h"

namespace gastrelle {

/// `fichier`: begins with the format's signature, in either order of bytes. Nothing if it is no
/// such picture, or compressed in a way that only special programs write.
std::optional<MesureImage> MesureTiff(QIODevice& fichier);

}  // namespace gastrelle
