#include "images/MesureJpeg.h"

#include <algorithm>
#include <vector>

#include "images/LectureOctets.h"

namespace gastrelle {
namespace {

constexpr quint32 tete = 0xFF;
constexpr quint32 debutDePasse = 0xDA;
constexpr quint32 finDImage = 0xD9;
constexpr quint32 premierCadre = 0xC0;
constexpr quint32 dernierCadre = 0xCF;
/// Bytes between the pieces that lead to the first scan.
constexpr int octetsEntreAuPlus = 20'000;

/// Blocks that the scans of a picture may go over, all together: about three seconds.
constexpr qint64 blocsParcourusAuPlus = 40'000'000;

/// A comment or a description is held by the library, and several times by the toolkit.
constexpr qint64 copiesDUnTexte = 5;

struct Composante {
  int horizontale;
  int verticale;
};

struct Cadre {
  QSize taille;
  bool progressif = false;
  std::vector<Composante> composantes;
};

/// One in four of these codes is that of a table.
bool EstCadre(quint32 marque) {
  return marque == premierCadre ||
         (marque > premierCadre && marque <= dernierCadre && (marque & 3U) != 0);
}

/// Without a length and a content.
bool EstNue(quint32 marque) {
  constexpr quint32 premiereReprise = 0xD0;
  constexpr quint32 derniereReprise = 0xD7;
  return marque <= 1 || (marque >= premiereReprise && marque <= derniereReprise);
}

/// Descriptions, colour profiles, comments: what is kept.
bool EstGarde(quint32 marque) {
  return marque == 0xE1 || marque == 0xE2 || marque == 0xFE;
}

std::optional<Cadre> LitCadre(LectureOctets& octets, quint32 marque) {
  constexpr quint32 composantesAuPlus = 4;
  Cadre cadre;
  cadre.progressif = (marque & 3U) == 2;
  octets.Saute(1);  // bits a sample
  const auto hauteur = static_cast<int>(octets.GrandBoutien(2));
  cadre.taille = {static_cast<int>(octets.GrandBoutien(2)), hauteur};
  const quint32 nombre = octets.GrandBoutien(1);
  for (quint32 i = 0; i < nombre && i < composantesAuPlus; ++i) {
    octets.Saute(1);
    const quint32 pas = octets.GrandBoutien(1);
    octets.Saute(1);
    cadre.composantes.push_back({static_cast<int>(pas >> 4U), static_cast<int>(pas & 0xFU)});
  }
  const bool pasJustes =
      std::all_of(cadre.composantes.begin(), cadre.composantes.end(), [](const Composante& c) {
        constexpr int pasAuPlus = 4;
        return std::clamp(c.horizontale, 1, pasAuPlus) == c.horizontale &&
               std::clamp(c.verticale, 1, pasAuPlus) == c.verticale;
      });
  return pasJustes && nombre <= composantesAuPlus && octets.Juste() ? std::optional(cadre)
                                                                    : std::nullopt;
}

/// Blocks of 8 by 8 that a decoder keeps of all components: whole groups of them.
qint64 Blocs(const Cadre& cadre) {
  qint64 h = 1;
  qint64 v = 1;
  for (const Composante& c : cadre.composantes) {
    h = std::max<qint64>(h, c.horizontale);
    v = std::max<qint64>(v, c.verticale);
  }
  constexpr qint64 cote = 8;
  const qint64 groupes = (qint64{cadre.taille.width()} / (cote * h) + 1) *
                         (qint64{cadre.taille.height()} / (cote * v) + 1);
  qint64 blocs = 0;
  for (const Composante& c : cadre.composantes) {
    blocs += groupes * c.horizontale * c.verticale;
  }
  return blocs;
}

/// Scans from here to the end of the file.
qint64 ComptePasses(QIODevice& fichier) {
  constexpr qint64 bloc = 65'536;
  qint64 passes = 0;
  for (QByteArray lus = fichier.read(bloc); !lus.isEmpty();) {
    const bool coupee = lus.endsWith('\xFF');
    passes += lus.count("\xFF\xDA");
    lus = fichier.read(bloc);
    passes += coupee && lus.startsWith('\xDA') ? 1 : 0;
  }
  return passes;
}

/// A picture in several scans is kept as what they fill in, before a single pixel is made.
std::optional<MesureImage> Mesure(const Cadre& cadre, qint64 textes, quint32 dansLaPasse,
                                  QIODevice& fichier) {
  MesureImage mesure{cadre.taille, octetsParPoint, textes * copiesDUnTexte,
                     Reduction::parHuitiemes};
  if (cadre.progressif || dansLaPasse < cadre.composantes.size()) {
    constexpr qint64 octetsDUnBloc = 128;
    const qint64 blocs = Blocs(cadre);
    mesure.ailleurs += blocs * octetsDUnBloc;
    if (mesure.ailleurs > memoireAuPlus ||
        blocs * (ComptePasses(fichier) + 1) > blocsParcourusAuPlus) {
      return std::nullopt;
    }
  }
  return mesure;
}

/// What comes behind the next bytes of 255. `lus` counts the bytes up to there.
quint32 MarqueSuivante(LectureOctets& octets, int& lus) {
  quint32 octet = 0;
  while (octet != tete && ++lus < octetsEntreAuPlus) {
    octet = octets.GrandBoutien(1);
  }
  while (octet == tete && ++lus < octetsEntreAuPlus) {
    octet = octets.GrandBoutien(1);
  }
  return octet == tete ? 0 : octet;
}

}  // namespace

std::optional<MesureImage> MesureJpeg(QIODevice& fichier) {
  LectureOctets octets(fichier);
  octets.Va(2);
  std::optional<Cadre> cadre;
  qint64 textes = 0;
  for (int lus = 0; lus < octetsEntreAuPlus && octets.Juste();) {
    const quint32 marque = MarqueSuivante(octets, lus);
    if (EstNue(marque)) {
      continue;
    }
    if (marque == finDImage) {
      break;
    }
    const qint64 place = octets.Place();
    const qint64 longueur = std::max<qint64>(octets.GrandBoutien(2), 2);
    textes += EstGarde(marque) ? longueur : 0;
    if (marque == debutDePasse) {
      const quint32 dansLaPasse = octets.GrandBoutien(1);
      return cadre ? Mesure(*cadre, textes, dansLaPasse, fichier) : std::nullopt;
    }
    if (EstCadre(marque) && !cadre) {
      cadre = LitCadre(octets, marque);
    }
    octets.Va(place + longueur);
  }
  return std::nullopt;
}

}  // namespace gastrelle
