#include "images/MesureIcone.h"

#include <algorithm>

#include <QBuffer>

#include "images/LectureOctets.h"
#include "images/MesurePng.h"

namespace gastrelle {
namespace {

constexpr qint64 fichierAuPlus = 8 * megaOctet;
constexpr int coteAuPlus = 1024;
constexpr quint32 imagesAuPlus = 256;

/// A picture in the file: a whole PNG, or a bitmap of twice its height, the lower half its mask.
std::optional<MesureImage> MesureUne(QByteArray octets) {
  QBuffer tampon(&octets);
  tampon.open(QIODevice::ReadOnly);
  if (octets.startsWith("\x89PNG")) {
    return MesurePng(tampon);
  }
  LectureOctets lecture(tampon);
  lecture.Va(4);
  const auto largeur = static_cast<int>(lecture.PetitBoutien(4));
  const auto hauteur = static_cast<int>(lecture.PetitBoutien(4));
  return MesureImage{{Cote(largeur), Cote(hauteur) / 2}};
}

bool Tient(const std::optional<MesureImage>& mesure) {
  const QSize icone(coteAuPlus, coteAuPlus);
  return mesure && !mesure->taille.isEmpty() && mesure->taille.boundedTo(icone) == mesure->taille;
}

}  // namespace

std::optional<MesureImage> MesureIcone(QIODevice& fichier) {
  constexpr int longueurTete = 6;
  constexpr int longueurEntree = 16;
  constexpr int avantLongueur = 8;
  LectureOctets octets(fichier);
  octets.Va(4);
  const quint32 nombre = octets.PetitBoutien(2);
  MesureImage mesure{{coteAuPlus, coteAuPlus}, 4 * octetsParPoint, fichierAuPlus};
  for (quint32 i = 0; i < nombre && nombre <= imagesAuPlus && octets.Juste(); ++i) {
    octets.Va(longueurTete + qint64{i} * longueurEntree + avantLongueur);
    const qint64 longueur = octets.PetitBoutien(4);
    octets.Va(octets.PetitBoutien(4));
    const auto une = MesureUne(octets.Prend(std::min(longueur, fichierAuPlus)));
    if (!Tient(une)) {
      return std::nullopt;
    }
    mesure.ailleurs = std::max(mesure.ailleurs, fichierAuPlus + une->ailleurs);
  }
  return nombre <= imagesAuPlus && fichier.size() <= fichierAuPlus ? std::optional(mesure)
                                                                   : std::nullopt;
}

}  // namespace gastrelle
