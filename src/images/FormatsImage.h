// The picture formats that the program reads, known by their first bytes.
#pragma once

#include <optional>

#include <QByteArray>
#include <QIODevice>

#include "images/MesureImage.h"

namespace gastrelle {

struct ImageConnue {
  QByteArray format;  ///< as the toolkit calls it
  MesureImage mesure;
};

/// What picture a file holds. `fichier`: open for reading. Nothing if it is none that is read, or
/// if reading it would take too much memory or time; that is known from some bytes of it.
std::optional<ImageConnue> ReconnaitImage(QIODevice& fichier);

/// True if so many pixels can be had from such a picture.
bool SeTient(const MesureImage& mesure, double points);

}  // namespace gastrelle
