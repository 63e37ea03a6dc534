// The measure of a PNG.
#pragma once

#include <optional>

#include <QIODevice>

#include "images/MesureImage.h"

namespace gastrelle {

/// `fichier`: begins with the format's signature. Nothing if it is no such picture, or in more
/// pieces than any program writes.
std::optional<MesureImage> MesurePng(QIODevice& fichier);

}  // namespace gastrelle
