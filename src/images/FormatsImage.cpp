#include "images/FormatsImage.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "images/LectureOctets.h"
#include "images/MesureIcone.h"
#include "images/MesureJpeg.h"
#include "images/MesurePng.h"
#include "images/MesureTiff.h"

namespace gastrelle {
namespace {

using namespace std::literals;

constexpr qint64 fichierAuPlus = 256 * megaOctet;
/// Longer rows would cost more than their pixels.
constexpr int coteAuPlus = 200'000;

/// A frame that is to be taken away again is held twice.
std::optional<MesureImage> MesureGif(QIODevice& fichier) {
  LectureOctets octets(fichier);
  octets.Va("GIF89a"sv.size());
  const auto largeur = static_cast<int>(octets.PetitBoutien(2));
  return MesureImage{{largeur, static_cast<int>(octets.PetitBoutien(2))}, 2 * octetsParPoint};
}

/// The oldest kind has its size in two bytes; a negative height means rows from the top.
std::optional<MesureImage> MesureBmp(QIODevice& fichier) {
  constexpr qint64 avantTete = 14;
  constexpr quint32 ancienne = 12;
  LectureOctets octets(fichier);
  octets.Va(avantTete);
  const int nombre = octets.PetitBoutien(4) == ancienne ? 2 : 4;
  const auto largeur = static_cast<int>(octets.PetitBoutien(nombre));
  const auto hauteur = static_cast<int>(octets.PetitBoutien(nombre));
  return MesureImage{{largeur, Cote(hauteur)}};
}

/// The plain kind is made row by row; the others are whole beside what they give, and animations
/// twice. The toolkit holds the file as well.
std::optional<MesureImage> MesureWebp(QIODevice& fichier) {
  constexpr qint64 avantGenre = 12;
  constexpr qint64 avantDonnees = 20;
  constexpr qint64 genreALaTaille = 4;
  constexpr quint32 coteDeQuatorzeBits = 0x3FFF;
  constexpr unsigned bitsDUnCote = 14;
  LectureOctets octets(fichier);
  octets.Va(avantGenre);
  const QByteArray genre = octets.Prend(4);
  octets.Va(avantDonnees);
  MesureImage mesure{{}, 3 * octetsParPoint, fichier.size()};
  if (genre == "VP8 ") {
    octets.Saute(3 + 3);
    const quint32 largeur = octets.PetitBoutien(2) & coteDeQuatorzeBits;
    mesure.taille = QSize(static_cast<int>(largeur),
                          static_cast<int>(octets.PetitBoutien(2) & coteDeQuatorzeBits));
    mesure.parPoint = octetsParPoint;
  } else if (genre == "VP8L") {
    octets.Saute(1);
    const quint32 cotes = octets.PetitBoutien(4);
    mesure.taille = QSize(static_cast<int>(cotes & coteDeQuatorzeBits) + 1,
                          static_cast<int>(cotes >> bitsDUnCote & coteDeQuatorzeBits) + 1);
  } else {
    octets.Saute(genreALaTaille);
    const auto largeur = static_cast<int>(octets.PetitBoutien(3));
    mesure.taille = QSize(largeur + 1, static_cast<int>(octets.PetitBoutien(3)) + 1);
  }
  return mesure;
}

struct Format {
  std::string_view signature;
  qint64 place;
  const char* nom;
  std::optional<MesureImage> (*mesure)(QIODevice& fichier);
};

constexpr std::array<Format, 9> formats{{
    {"\xFF\xD8"sv, 0, "jpeg", MesureJpeg},
    {"\x89PNG\r\n\x1A\n"sv, 0, "png", MesurePng},
    {"GIF8"sv, 0, "gif", MesureGif},
    {"BM"sv, 0, "bmp", MesureBmp},
    {"WEBP"sv, 8, "webp", MesureWebp},
    {"II*\0"sv, 0, "tiff", MesureTiff},
    {"MM\0*"sv, 0, "tiff", MesureTiff},
    {"\0\0\1\0"sv, 0, "ico", MesureIcone},
    {"\0\0\2\0"sv, 0, "ico", MesureIcone},
}};

}  // namespace

std::optional<ImageConnue> ReconnaitImage(QIODevice& fichier) {
  constexpr qint64 assez = 16;
  const QByteArray debut = fichier.peek(assez);
  const std::string_view octets(debut.constData(), static_cast<std::size_t>(debut.size()));
  const auto* format = std::find_if(formats.begin(), formats.end(), [&](const Format& f) {
    return octets.size() == assez &&
           octets.substr(static_cast<std::size_t>(f.place)).substr(0, f.signature.size()) ==
               f.signature;
  });
  if (format == formats.end() || fichier.size() > fichierAuPlus) {
    return std::nullopt;
  }
  const std::optional<MesureImage> mesure = format->mesure(fichier);
  const QSize borne(coteAuPlus, coteAuPlus);
  if (!mesure || mesure->taille.isEmpty() || mesure->taille.boundedTo(borne) != mesure->taille ||
      qint64{mesure->taille.width()} * mesure->taille.height() * octetsParPoint > pointsAuPlus) {
    return std::nullopt;
  }
  return ImageConnue{format->nom, *mesure};
}

bool SeTient(const MesureImage& mesure, double points) {
  return points * static_cast<double>(mesure.parPoint) + static_cast<double>(mesure.ailleurs) <=
         static_cast<double>(memoireAuPlus);
}

}  // namespace gastrelle
