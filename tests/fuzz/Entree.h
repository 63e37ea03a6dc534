// A program folder made of the bytes of one input.
//
//   byte  0      options, see below
//   bytes 1-3    the data files that are replaced, one bit a row of the table of files; the bit
//                behind theirs: there are notes
//   bytes 4-5    the call of the disk in memory that fails, counted from the first one; 0: none
//   then, for each replaced file, two bytes of length and its bytes; the length `absent` takes the
//   file away; the notes come last
//   then, on the disk of the machine, what lies there that is no file (`DossierReel::Pose`)
// Numbers are little-endian; what the input doesn't hold any more reads as zeros.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/Module1.h"

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
  /// The folder lies on the disk of the machine.
  surDisque = 8,
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
  [[nodiscard]] std::string_view reste() const { return octets_; }

 private:
  std::string_view octets_;
};

/// What an input says beside its files.
struct Suite {
  unsigned choix = 0;
  unsigned panne = 0;
  std::string_view intrus;
};

[[nodiscard]] bool VaSurDisque(std::string_view entree);

/// Lays the files of an input on the module's disk; the module isn't started yet.
Suite PoseFichiers(std::string_view entree, Module1& module);

}  // namespace gastrelle::essai
