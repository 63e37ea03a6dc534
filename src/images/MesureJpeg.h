// The measure of a JPEG.
#pragma once

#include <optional>

#include <QIODevice>

#include "images/MesureImage.h"

namespace gastrelle {

/// `fichier`: begins with the format's signature. Nothing if it is no such picture, or if it goes
/// over itself so often that nobody would wait for it.
std::optional<MesureImage> MesureJpeg(QIODevice& fichier);

}  // namespace gastrelle
