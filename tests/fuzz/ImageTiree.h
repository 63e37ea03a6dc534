// A picture made of the bytes of one input, and read as the windows read it.
//
//   byte  0      its kind, a row of `sortesImages`, counted round; `reduite` beside it
//   bytes 1-8    its width and height in pixels, little-endian
//   then         for a picture that is made: changes, each a place in its file (two bytes) and what
//                is put there (one byte); for `octetsTels`: the file
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <QSize>
#include <QtGlobal>

#include "doublures/ImagesEnormes.h"
#include "fuzz/Graines.h"

namespace gastrelle::essai {

/// Beside the kind: the picture is shown in a small place.
inline constexpr unsigned reduite = 0x80;

/// The kinds of a made picture, then the one whose bytes stand in the input.
inline constexpr std::size_t nombreSortes = imagesEnormes.size() + 2;
inline constexpr std::size_t pngEntiere = imagesEnormes.size();
inline constexpr std::size_t octetsTels = pngEntiere + 1;

struct ImageLue {
  bool nulle = true;
  QSize annoncee;     ///< what the reader says of the picture that it read
  qint64 octets = 0;  ///< of its pixels
  qint64 duree = 0;   ///< of the reading, in milliseconds
};

/// Throws std::logic_error for a picture that is larger than any that may be read, or that doesn't
/// fit into its place.
ImageLue LitImageTiree(std::string_view entree);

/// The inputs from which the fuzzer starts: each kind small, and each of a size that nobody may
/// read ("-enorme").
std::vector<Graine> GrainesImages();

}  // namespace gastrelle::essai
