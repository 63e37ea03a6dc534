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
    bool connus = true;
    for (quint32 i = 0; i < nombre && octets_.Juste(); ++i) {
      connus = LitChamp() && connus;
    }
    return connus && nombre <= champsAuPlus && octets_.Juste();
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

  /// Its value, or the first one of several. False for a type of which the length isn't known.
  bool LitChamp() {
    const quint32 champ = Nombre(2);
    const quint32 genre = Nombre(2);
    const bool connu = genre < longueurs.size();
    const qint64 octets = qint64{Nombre(longueurPlace)} * (connu ? longueurs.at(genre) : 1);
    const qint64 place = octets_.Place();
    if (octets > longueurPlace) {
      octets_.Va(Nombre(longueurPlace));
    }
    valeurs_.emplace(champ, Nombre(genre == genreCourt ? 2 : longueurPlace));
    octets_.Va(place + longueurPlace);
    total_ += octets;
    return connu;
  }

  LectureOctets octets_;
  bool gros_;
  std::map<quint32, qint64> valeurs_;
  qint64 total_ = 0;
};

/// A piece of the pixels is held whole.
qint64 OctetsDUnePiece(const Repertoire& repertoire) {
  const qint64 large = repertoire.De(largeurTuile, repertoire.De(largeur, 0));
  const qint64 haute = repertoire.De(
      hauteurTuile, std::min(repertoire.De(rangeesParBande, repertoire.De(hauteur, 0)),
                             repertoire.De(hauteur, 0)));
  constexpr qint64 bitsParOctet = 8;
  const double octets = static_cast<double>(large) * static_cast<double>(haute) *
                        static_cast<double>(repertoire.De(echantillons, 1)) *
                        static_cast<double>(repertoire.De(bits, 1)) / bitsParOctet;
  return static_cast<qint64>(std::min(octets, static_cast<double>(2 * memoireAuPlus)));
}

/// And so is what the file has of it: as long as the file says, up to ten times the piece.
qint64 OctetsCompresses(const Repertoire& repertoire, qint64 piece, qint64 fichier) {
  constexpr qint64 auPire = 10;
  constexpr qint64 aisance = 4096;
  return repertoire.De(compression, 1) == 1 ? 0 : std::min(fichier, auPire * piece + aisance);
}

bool SeLit(qint64 compression) {
  return compression == ancienZlib || std::find(compressionsLues.begin(), compressionsLues.end(),
                                                compression) != compressionsLues.end();
}

}  // namespace

std::optional<MesureImage> MesureTiff(QIODevice& fichier) {
  fichier.seek(0);
  Repertoire repertoire(fichier);
  if (!repertoire.Lit() || !SeLit(repertoire.De(compression, 1))) {
    return std::nullopt;
  }
  constexpr qint64 bitsOrdinaires = 8;
  const qint64 piece = OctetsDUnePiece(repertoire);
  return MesureImage{
      {static_cast<int>(repertoire.De(largeur, 0)), static_cast<int>(repertoire.De(hauteur, 0))},
      octetsParPoint * std::max<qint64>(1, repertoire.De(bits, 1) / bitsOrdinaires),
      piece + OctetsCompresses(repertoire, piece, fichier.size()) + 2 * repertoire.octets(),
      Reduction::aucune};
}

}  // namespace gastrelle
