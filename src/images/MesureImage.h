// What a picture's file says of itself before any decoder sees it: its size, and what memory its
// reading may take.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <limits>

#include <QSize>
#include <QtGlobal>

namespace gastrelle {

/// How a decoder can make a picture smaller without ever holding the whole.
enum class Reduction { aucune, parRangees, parHuitiemes };

struct MesureImage {
  QSize taille;         ///< in pixels, as it lies in the file
  qint64 parPoint = 4;  ///< bytes that its decoder holds for one pixel
  qint64 ailleurs = 0;  ///< most bytes that it holds beside them
  Reduction reduction = Reduction::aucune;
};

/// The side that a number of a file means whose sign tells the order of the rows.
inline int Cote(qint32 nombre) {
  return std::abs(std::max(nombre, -std::numeric_limits<qint32>::max()));
}

/// Bytes that all pixels take on the screen, whatever the file has for one; no picture may take
/// more.
inline constexpr qint64 octetsParPoint = 4;
inline constexpr qint64 megaOctet = 1024LL * 1024;
inline constexpr qint64 pointsAuPlus = 256 * megaOctet;

/// Most that the reading of a picture may take in all.
inline constexpr qint64 memoireAuPlus = pointsAuPlus + 16 * megaOctet;

}  // namespace gastrelle
