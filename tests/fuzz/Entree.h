// A program folder made of the bytes of one input.
//
//   byte  0      options, see below
//   bytes 1-3    the data files that are replaced, one bit a row of the table of files
//   bytes 4-5    the call of the disk that fails, counted from the first one; 0: none
//   then, for each replaced file, two bytes of length and its bytes; the length `absent` takes the
//   file away. Numbers are little-endian; what the input doesn't hold any more reads as zeros.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/Module1.h"
#include "fuzz/DisqueMemoire.h"

namespace gastrelle::essai {

/// Options of an input.
enum Choix : unsigned {
  /// Headers and signatures stay right: the bytes of a file begin behind them. Where there is a
  /// header, their first two are its count, raised to the least that the start accepts.
  gardeEntetes = 1,
  /// The files lie there as factory copies only.
  enFabrique = 2,
  /// The picture folder and `imageDuDossier` in it are there, and `imageAilleurs`.
  avecImages = 4,
};

inline constexpr std::uint16_t absent = 0xFFFF;

inline constexpr const char* dossierMemoire = "/gastrelle";
inline constexpr const char* imageDuDossier = "IMAGE/soupe.png";
inline constexpr const char* imageAilleurs = "/photos/soupe.png";

/// Reads an input from its head on.
class Lecteur {
 public:
  explicit Lecteur(std::string_view octets) : octets_(octets) {}

  unsigned Octet();
  unsigned Mot();
  std::string_view Morceau(std::size_t longueur);

 private:
  std::string_view octets_;
};

/// Lays the folder of an input on the disk, for a module that isn't started yet.
void PoseDossier(std::string_view entree, Module1& module, DisqueMemoire& disque);

}  // namespace gastrelle::essai
