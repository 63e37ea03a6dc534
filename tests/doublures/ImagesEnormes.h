// Pictures of any size in a few bytes, made without a library: what a file says of itself, not what
// one can draw. Sizes are in pixels; those that a format can't write lose their upper bits.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace gastrelle::essai {

namespace detail {

inline std::string GrandBoutien(std::uint64_t nombre, int octets) {
  std::string ecrit;
  for (int i = octets - 1; i >= 0; --i) {
    ecrit += static_cast<char>((nombre >> (8 * i)) & 0xFF);
  }
  return ecrit;
}

inline std::string PetitBoutien(std::uint64_t nombre, int octets) {
  const std::string ecrit = GrandBoutien(nombre, octets);
  return {ecrit.rbegin(), ecrit.rend()};
}

inline std::uint32_t Crc32(std::string_view octets) {
  static const std::array<std::uint32_t, 256> table = [] {
    std::array<std::uint32_t, 256> t{};
    for (std::uint32_t i = 0; i < t.size(); ++i) {
      std::uint32_t c = i;
      for (int k = 0; k < 8; ++k) {
        c = (c & 1U) != 0 ? 0xEDB88320U ^ (c >> 1U) : c >> 1U;
      }
      t[i] = c;
    }
    return t;
  }();
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const char octet : octets) {
    crc = table[(crc ^ static_cast<std::uint8_t>(octet)) & 0xFFU] ^ (crc >> 8U);
  }
  return ~crc;
}

/// A marker segment of a JPEG.
inline std::string SegmentJpeg(int marque, std::string_view octets) {
  return "\xFF" + GrandBoutien(static_cast<std::uint64_t>(marque), 1) +
         GrandBoutien(octets.size() + 2, 2) + std::string(octets);
}

/// A Huffman table of one code, the bit 0, which stands for `symbole`. `classe`: 0 or 0x10.
inline std::string TableJpeg(int classe, int symbole) {
  return SegmentJpeg(0xC4, GrandBoutien(static_cast<std::uint64_t>(classe), 1) + "\x01" +
                               std::string(15, '\0') +
                               GrandBoutien(static_cast<std::uint64_t>(symbole), 1));
}

/// All of a JPEG up to its rows: three components at full size, codes for empty blocks only.
inline std::string TeteJpeg(std::uint32_t largeur, std::uint32_t hauteur, bool progressive) {
  return "\xFF\xD8" + SegmentJpeg(0xDB, std::string(1, '\0') + std::string(64, '\x01')) +
         SegmentJpeg(progressive ? 0xC2 : 0xC0,
                     "\x08" + GrandBoutien(hauteur, 2) + GrandBoutien(largeur, 2) +
                         std::string("\x03\x01\x11\0\x02\x11\0\x03\x11\0", 10)) +
         TableJpeg(0, 0) + TableJpeg(0x10, progressive ? 0xE0 : 0) +
         SegmentJpeg(0xDA, std::string("\x03\x01\0\x02\0\x03\0\0", 8) +
                               (progressive ? '\0' : '\x3F') + '\0');
}

}  // namespace detail

/// That many zeros, compressed as zlib does: a thousandth and a half of their count.
inline std::string ZerosComprimes(std::uint64_t nombre) {
  // The first zero as it is, then copies of 258 of them: 13 bits each, so 8 make 13 bytes again.
  constexpr std::uint64_t copie = 258;
  std::string octets("\x78\x01", 2);
  std::uint32_t tampon = 0;
  int bits = 0;
  const auto met = [&](std::uint32_t valeur, int longueur) {
    tampon |= valeur << bits;
    for (bits += longueur; bits >= 8; bits -= 8) {
      octets += static_cast<char>(tampon & 0xFFU);
      tampon >>= 8U;
    }
  };
  constexpr std::uint32_t zero = 0b00001100;             // the literal, its bits turned round
  constexpr std::uint32_t pareilA258 = 0b0000010100011;  // length 258, distance 1
  met(0b011, 3);                                         // the last block, the codes of the format
  std::uint64_t reste = nombre;
  for (; reste % copie != 0; --reste) {
    met(zero, 8);
  }
  if (reste == nombre && reste != 0) {
    for (std::uint64_t i = 0; i < copie; ++i, --reste) {
      met(zero, 8);
    }
  }
  for (; reste != 0; reste -= copie) {
    met(pareilA258, 13);
  }
  met(0, 7 + 7);  // the end, and what completes a byte
  return octets + detail::GrandBoutien((nombre % 65521) << 16U | 1U, 4);
}

/// A chunk of a PNG, its sum right.
inline std::string MorceauPng(std::string_view genre, std::string_view octets) {
  const std::string corps = std::string(genre) + std::string(octets);
  return detail::GrandBoutien(octets.size(), 4) + corps +
         detail::GrandBoutien(detail::Crc32(corps), 4);
}

/// `bits` a sample, `genre`: 0 gray, 2 colour, 3 palette, 6 colour and opacity.
struct FormePng {
  int bits = 8;
  int genre = 2;
  bool entrelace = false;
};

inline std::string TetePng(std::uint32_t largeur, std::uint32_t hauteur, FormePng forme = {}) {
  using detail::GrandBoutien;
  return "\x89PNG\r\n\x1A\n" +
         MorceauPng("IHDR", GrandBoutien(largeur, 4) + GrandBoutien(hauteur, 4) +
                                static_cast<char>(forme.bits) + static_cast<char>(forme.genre) +
                                std::string(2, '\0') + static_cast<char>(forme.entrelace ? 1 : 0));
}

/// Its header true, its rows cut short.
inline std::string ImagePng(std::uint32_t largeur, std::uint32_t hauteur, FormePng forme = {}) {
  return TetePng(largeur, hauteur, forme) + MorceauPng("IDAT", ZerosComprimes(1000)) +
         MorceauPng("IEND", {});
}

/// Black, whole: nothing of it is damaged. `morceaux`: chunks before its rows. Of one bit a pixel
/// where nothing else is said.
inline std::string ImagePngEntiere(std::uint32_t largeur, std::uint32_t hauteur,
                                   std::string_view morceaux = {}, FormePng forme = {1, 0, false}) {
  const std::uint64_t echantillons = forme.genre == 6 ? 4 : forme.genre == 2 ? 3 : 1;
  const std::uint64_t bits = largeur * echantillons * static_cast<std::uint64_t>(forme.bits);
  return TetePng(largeur, hauteur, forme) + std::string(morceaux) +
         MorceauPng("IDAT", ZerosComprimes((1 + (bits + 7) / 8) * hauteur)) +
         MorceauPng("IEND", {});
}

/// A picture of 24 bits a pixel, its rows cut short.
inline std::string ImageBmp(std::uint32_t largeur, std::uint32_t hauteur) {
  using detail::PetitBoutien;
  return "BM" + PetitBoutien(64, 4) + PetitBoutien(0, 4) + PetitBoutien(54, 4) +
         PetitBoutien(40, 4) + PetitBoutien(largeur, 4) + PetitBoutien(hauteur, 4) +
         PetitBoutien(1, 2) + PetitBoutien(24, 2) + std::string(24, '\0') + std::string(10, '\0');
}

/// An animation of `images` frames, all empty; up to 65,535 a side.
inline std::string ImageGif(std::uint32_t largeur, std::uint32_t hauteur,
                            std::uint32_t images = 1) {
  using detail::PetitBoutien;
  const std::string cote = PetitBoutien(largeur, 2) + PetitBoutien(hauteur, 2);
  const std::string trame =
      "," + std::string(4, '\0') + cote + std::string("\0\x02\x02\x44\x01\0", 6);
  std::string octets = "GIF89a" + cote + std::string("\x80\0\0\xFF\xFF\xFF\0\0\0", 9);
  for (std::uint32_t i = 0; i < images; ++i) {
    octets += trame;
  }
  return octets + ";";
}

/// Gray, of three components at full size, whole; up to 65,535 a side. `passes`: 0 for a picture in
/// one scan, or the scans that go over one in several, most of which change nothing.
inline std::string ImageJpegEntiere(std::uint32_t largeur, std::uint32_t hauteur,
                                    std::uint32_t passes = 0) {
  using detail::SegmentJpeg;
  const std::uint64_t blocs =
      ((std::uint64_t{largeur & 0xFFFFU} + 7) / 8) * ((std::uint64_t{hauteur & 0xFFFFU} + 7) / 8);
  const auto zeros = [](std::uint64_t bits) { return std::string((bits + 7) / 8, '\0'); };
  std::string octets =
      detail::TeteJpeg(largeur, hauteur, passes != 0) + zeros(blocs * 3 * (passes != 0 ? 1 : 2));
  for (std::uint32_t i = 1; i < passes; ++i) {
    // Runs of 2^14 empty blocks: a code of one bit and 14 of the count beyond.
    octets +=
        SegmentJpeg(0xDA, std::string("\x01\x01\0\x01\x3F\0", 6)) + zeros((blocs / 16384 + 1) * 15);
  }
  return octets + "\xFF\xD9";
}

/// The same, its rows cut short.
inline std::string ImageJpeg(std::uint32_t largeur, std::uint32_t hauteur,
                             bool progressive = false) {
  return detail::TeteJpeg(largeur, hauteur, progressive) + std::string(64, '\0');
}

/// A picture of 24 bits a pixel in one strip, its rows cut short.
inline std::string ImageTiff(std::uint32_t largeur, std::uint32_t hauteur) {
  using detail::PetitBoutien;
  std::string octets = "II*" + std::string(1, '\0') + PetitBoutien(8, 4) + PetitBoutien(9, 2);
  const auto champ = [&](int marque, int genre, std::uint64_t valeur) {
    octets += PetitBoutien(static_cast<std::uint64_t>(marque), 2) +
              PetitBoutien(static_cast<std::uint64_t>(genre), 2) + PetitBoutien(1, 4) +
              PetitBoutien(valeur, 4);
  };
  constexpr int court = 3;
  constexpr int longue = 4;
  champ(256, longue, largeur);
  champ(257, longue, hauteur);
  champ(258, court, 8);
  champ(259, court, 1);
  champ(262, court, 2);
  champ(273, longue, 200);
  champ(277, court, 3);
  champ(278, longue, hauteur);
  champ(279, longue, std::uint64_t{largeur} * hauteur * 3);
  octets += PetitBoutien(0, 4);
  octets.resize(300);
  return octets;
}

/// A picture without loss, its data cut short; up to 16,384 a side.
inline std::string ImageWebp(std::uint32_t largeur, std::uint32_t hauteur) {
  using detail::PetitBoutien;
  const std::string donnees =
      "\x2F" + PetitBoutien(((hauteur - 1) & 0x3FFFU) << 14U | ((largeur - 1) & 0x3FFFU), 4) +
      std::string(27, '\0');
  return "RIFF" + PetitBoutien(donnees.size() + 12, 4) + "WEBPVP8L" +
         PetitBoutien(donnees.size(), 4) + donnees;
}

/// A picture of 32 bits a pixel, its rows cut short; up to 65,535 a side.
inline std::string ImageTga(std::uint32_t largeur, std::uint32_t hauteur) {
  using detail::PetitBoutien;
  return std::string("\0\0\x02", 3) + std::string(9, '\0') + PetitBoutien(largeur, 2) +
         PetitBoutien(hauteur, 2) + "\x20\x20" + std::string(26, '\0');
}

/// An icon that says 256 by 256 outside, and inside what it is told to.
inline std::string ImageIco(std::uint32_t largeur, std::uint32_t hauteur) {
  using detail::PetitBoutien;
  const std::string bitmap = PetitBoutien(40, 4) + PetitBoutien(largeur, 4) +
                             PetitBoutien(std::uint64_t{hauteur} * 2, 4) + PetitBoutien(1, 2) +
                             PetitBoutien(32, 2) + std::string(24, '\0') + std::string(64, '\0');
  return std::string("\0\0\x01\0\x01\0", 6) + std::string("\0\0\0\0\x01\0\x20\0", 8) +
         PetitBoutien(bitmap.size(), 4) + PetitBoutien(22, 4) + bitmap;
}

/// A picture of two colours as text, its rows cut short.
inline std::string ImageXpm(std::uint32_t largeur, std::uint32_t hauteur) {
  return "/* XPM */\nstatic char *image[] = {\n\"" + std::to_string(largeur) + " " +
         std::to_string(hauteur) + " 2 1\",\n\"  c None\",\n\". c #000000\",\n\" . . . .\"\n};\n";
}

/// A gray picture, its rows cut short.
inline std::string ImagePgm(std::uint32_t largeur, std::uint32_t hauteur) {
  return "P5 " + std::to_string(largeur) + " " + std::to_string(hauteur) + " 255\n" +
         std::string(64, '\0');
}

/// All of the above that take a size alone, and the ending that their files usually bear.
struct GenreImage {
  const char* fin;
  std::string (*octets)(std::uint32_t largeur, std::uint32_t hauteur);
};

inline constexpr std::array<GenreImage, 11> imagesEnormes{{
    {"png", [](std::uint32_t l, std::uint32_t h) { return ImagePng(l, h); }},
    {"bmp", ImageBmp},
    {"gif", [](std::uint32_t l, std::uint32_t h) { return ImageGif(l, h); }},
    {"jpg", [](std::uint32_t l, std::uint32_t h) { return ImageJpeg(l, h); }},
    {"jpeg", [](std::uint32_t l, std::uint32_t h) { return ImageJpeg(l, h, true); }},
    {"tif", ImageTiff},
    {"webp", ImageWebp},
    {"tga", ImageTga},
    {"ico", ImageIco},
    {"xpm", ImageXpm},
    {"pgm", ImagePgm},
}};

}  // namespace gastrelle::essai
