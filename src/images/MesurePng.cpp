#include "images/MesurePng.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "images/LectureOctets.h"

namespace gastrelle {
namespace {

constexpr qint64 longueurSignature = 8;
constexpr int longueurSomme = 4;
constexpr int morceauxAuPlus = 100'000;

/// The format's own compression can't do better.
constexpr qint64 gonflement = 1032;
/// Beyond this length the library passes a chunk by.
constexpr qint64 morceauAuPlus = 8'000'000;

/// A text is held by the library, and several times by the toolkit, two bytes a letter.
constexpr qint64 copiesDUnTexte = 6;
constexpr qint64 copiesDUnProfil = 3;

using Cout = qint64 (*)(qint64 longueur, const QByteArray& debut);

/// What it takes inflated: nobody knows before, but the library's bound holds.
qint64 Gonfle(qint64 longueur) {
  return std::min(longueur * gonflement, morceauAuPlus);
}

qint64 TexteComprime(qint64 longueur, const QByteArray& /*debut*/) {
  return Gonfle(longueur) * copiesDUnTexte;
}

qint64 TexteClair(qint64 longueur, const QByteArray& /*debut*/) {
  return longueur * copiesDUnTexte;
}

/// Its keyword ends with a zero; a byte then tells whether it is compressed.
qint64 TexteInternational(qint64 longueur, const QByteArray& debut) {
  const qsizetype marque = debut.indexOf('\0') + 1;
  const bool clair = marque > 0 && marque < debut.size() && debut.at(marque) == '\0';
  return clair ? TexteClair(longueur, debut) : TexteComprime(longueur, debut);
}

qint64 Profil(qint64 longueur, const QByteArray& /*debut*/) {
  return Gonfle(longueur) * copiesDUnProfil;
}

struct Morceau {
  std::string_view genre;
  Cout cout;
};

/// The chunks of which more than a few bytes are kept.
constexpr std::array<Morceau, 6> gardes{{
    {"zTXt", TexteComprime},
    {"iTXt", TexteInternational},
    {"tEXt", TexteClair},
    {"sPLT", TexteClair},
    {"eXIf", TexteClair},
    {"iCCP", Profil},
}};

qint64 CoutDe(std::string_view genre, qint64 longueur, LectureOctets& octets) {
  const auto* garde = std::find_if(gardes.begin(), gardes.end(),
                                   [&](const Morceau& m) { return m.genre == genre; });
  if (garde == gardes.end()) {
    return 0;
  }
  constexpr qint64 motCleAuPlus = 79;
  const qint64 debut = octets.Place();
  const qint64 cout =
      garde->cout(longueur, octets.Prend(std::min<qint64>(longueur, motCleAuPlus + 2)));
  octets.Va(debut);
  return cout;
}

/// The first chunk: size, bits a sample, kind of colour, and whether the rows are interlaced.
std::optional<MesureImage> LitTete(LectureOctets& octets) {
  constexpr quint32 longueurTete = 13;
  if (octets.GrandBoutien(4) != longueurTete || octets.Prend(4) != "IHDR") {
    return std::nullopt;
  }
  const auto largeur = static_cast<int>(octets.GrandBoutien(4));
  const auto hauteur = static_cast<int>(octets.GrandBoutien(4));
  const quint32 bits = octets.GrandBoutien(1);
  const quint32 couleur = octets.GrandBoutien(1);
  octets.Saute(2);
  const bool entrelace = octets.GrandBoutien(1) != 0;
  octets.Saute(longueurSomme);
  constexpr quint32 bitsOrdinaires = 8;
  constexpr quint32 enCouleurs = 2;
  constexpr quint32 avecOpacite = 4;
  const bool enPlein = (couleur & ~avecOpacite) == enCouleurs || couleur == avecOpacite;
  return MesureImage{
      {largeur, hauteur},
      bits > bitsOrdinaires ? 2 * octetsParPoint : octetsParPoint,
      0,
      enPlein && bits == bitsOrdinaires && !entrelace ? Reduction::parRangees : Reduction::aucune};
}

}  // namespace

std::optional<MesureImage> MesurePng(QIODevice& fichier) {
  LectureOctets octets(fichier);
  octets.Va(longueurSignature);
  std::optional<MesureImage> mesure = LitTete(octets);
  int morceaux = 0;
  while (mesure && octets.Juste()) {
    const qint64 longueur = octets.GrandBoutien(4);
    const QByteArray genre = octets.Prend(4);
    mesure->ailleurs +=
        CoutDe({genre.constData(), static_cast<std::size_t>(genre.size())}, longueur, octets);
    if (++morceaux > morceauxAuPlus || mesure->ailleurs > memoireAuPlus) {
      return std::nullopt;
    }
    if (genre == "IEND") {
      break;
    }
    octets.Saute(longueur + longueurSomme);
  }
  // The library makes room for a chunk before it knows that the file ends first.
  return octets.Juste() ? mesure : std::nullopt;
}

}  // namespace gastrelle
