#include "images/MesureTiff.h"

#include <algorithm>
#include <array>
#include <map>

#include "images/LectureOctets.h"

namespace gastrelle {
namespace {

/// The fields that say how the pixels lie.
enum Champ : quint32 {
  largeur = 256,
  hauteur = 257,
  bits = 258,
  compression = 259,
  echantillons = 277,
  rangeesParBande = 278,
  largeurTuile = 322,
  hauteurTuile = 323,
};

/// None, fax, dictionary, JPEG, zlib, runs.
constexpr std::array<quint32, 8> compressionsLues{1, 2, 3, 4, 5, 7, 8, 32773};
constexpr quint32 ancienZlib = 32946;

/// Bytes of a value, by the number of its type.
constexpr std::array<qint64, 14> longueurs{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
constexpr quint32 genreCourt = 3;
constexpr int longueurPlace = 4;

class Repertoire {
 public:
  explicit Repertoire(QIODevice& fichier) : octets_(fichier), gros_(fichier.peek(1) == "M") {}

  /// False if there is none, or one that is too long.
  bool Lit() {
    constexpr quint32 champsAuPlus = 1000;
    octets_.Va(longueurPlace);
    octets_.Va(Nombre(longueurPlace));
    const quint32 nombre = Nombre(2);
    for (quint32 i = 0; i < nombre && octets_.Juste(); ++i) {
      LitChamp();
    }
    return nombre <= champsAuPlus && octets_.Juste();
  }

  [[nodiscard]] qint64 De(Champ champ, qint64 sinon) const {
    const auto trouve = valeurs_.find(champ);
    return trouve == valeurs_.end() ? sinon : trouve->second;
  }
  /// Of all fields together.
  [[nodiscard]] qint64 octets() const { return total_; }

 private:
  quint32 Nombre(int octets) {
    return gros_ ? octets_.GrandBoutien(octets) : octets_.PetitBoutien(octets);
  }

  /// Its value, or the first one of several.
  void LitChamp() {
    const quint32 champ = Nombre(2);
    const quint32 genre = Nombre(2);
    const qint64 octets = qint64{Nombre(longueurPlace)} *
                          longueurs.at(std::min<std::size_t>(genre, longueurs.size() - 1));
    const qint64 place = octets_.Place();
    if (octets > longueurPlace) {
      octets_.Va(Nombre(longueurPlace));
    }
    valeurs_.emplace(champ, Nombre(genre == genreCourt ? 2 : longueurPlace));
    octets_.Va(place + longueurPlace);
    total_ += octets;
  }

  LectureOctets octets_;
  bool gros_;
  std::map<quint32, qint64> valeurs_;
  qint64 total_ = 0;
};

/// The pieces in which the pixels are compressed, each of which is held in whole.
qint64 OctetsDUnePiece(const Repertoire& champs) {
  const qint64 large = champs.De(largeurTuile, champs.De(largeur, 0));
  const qint64 haute =
      champs.De(hauteurTuile,
                std::min(champs.De(rangeesParBande, champs.De(hauteur, 0)), champs.De(hauteur, 0)));
  constexpr qint64 bitsParOctet = 8;
  const double octets = static_cast<double>(large) * static_cast<double>(haute) *
                        static_cast<double>(champs.De(echantillons, 1)) *
                        static_cast<double>(champs.De(bits, 1)) / bitsParOctet;
  return static_cast<qint64>(std::min(octets, static_cast<double>(2 * memoireAuPlus)));
}

bool SeLit(qint64 compression) {
  return compression == ancienZlib || std::find(compressionsLues.begin(), compressionsLues.end(),
                                                compression) != compressionsLues.end();
}

}  // namespace

std::optional<MesureImage> MesureTiff(QIODevice& fichier) {
  fichier.seek(0);
  Repertoire champs(fichier);
  if (!champs.Lit() || !SeLit(champs.De(compression, 1))) {
    return std::nullopt;
  }
  constexpr qint64 bitsOrdinaires = 8;
  return MesureImage{
      {static_cast<int>(champs.De(largeur, 0)), static_cast<int>(champs.De(hauteur, 0))},
      octetsParPoint * std::max<qint64>(1, champs.De(bits, 1) / bitsOrdinaires),
      OctetsDUnePiece(champs) + 2 * champs.octets(),
      Reduction::aucune};
}

}  // namespace gastrelle
