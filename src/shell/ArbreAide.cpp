#include "shell/ArbreAide.h"

#include <QBuffer>
#include <QRegularExpression>

#include "images/LectureOctets.h"

namespace gastrelle {
namespace {

constexpr quint32 fichiersAuPlus = 200;
constexpr qint64 fichierAuPlus = 32'768;
/// A dozen tables inside each other are still laid out at once; each one more doubles the time.
constexpr int tableauxAuPlus = 12;

constexpr quint32 marqueDossier = 2;
constexpr qint64 longueurNoeud = 14;

struct Tete {
  qint64 arbre;
  qint64 donnees;
  qint64 noms;
};

bool LitTete(LectureOctets& octets, Tete& tete) {
  const bool genre = octets.Prend(4) == "qres" && octets.GrandBoutien(4) == 1;
  tete = {octets.GrandBoutien(4), octets.GrandBoutien(4), octets.GrandBoutien(4)};
  return genre && octets.Juste();
}

/// What nothing of the help needs and what lays out for minutes: cells that span others, styles of
/// their own, sizes beyond any page.
constexpr const char* demesure =
    "(col|row)span|style\\s*=|<\\s*style|[0-9]{5}|[0-9]{4}(%|px|pt|em|ex|cm|mm|in|pc)";

bool PageSimple(const QByteArray& page) {
  static const QRegularExpression tableau(QStringLiteral("<\\s*table"),
                                          QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression refuse(QLatin1String(demesure),
                                         QRegularExpression::CaseInsensitiveOption);
  const QString texte = QString::fromUtf8(page);
  return texte.count(tableau) <= tableauxAuPlus && !texte.contains(refuse);
}

/// A name has its length in letters before it, and a number by which it is found.
bool NomEntier(LectureOctets& octets, const QByteArray& tous, qint64 place) {
  constexpr qint64 longueurNombre = 4;
  octets.Va(place);
  const qint64 longueur = 2 * qint64{octets.GrandBoutien(2)};
  return octets.Juste() && place + 2 + longueurNombre + longueur <= tous.size();
}

bool FichierEntier(LectureOctets& octets, const QByteArray& tous, qint64 place) {
  octets.Va(place);
  const qint64 longueur = octets.GrandBoutien(4);
  return octets.Juste() && longueur <= fichierAuPlus && octets.Place() + longueur <= tous.size() &&
         PageSimple(tous.mid(octets.Place(), longueur));
}

/// A node of the tree: where its name is, no mark, its language, where its bytes are.
bool NoeudSain(LectureOctets& octets, const QByteArray& tous, const Tete& tete, qint64 place) {
  octets.Va(place);
  const qint64 nom = octets.GrandBoutien(4);
  const quint32 marques = octets.GrandBoutien(2);
  octets.Saute(4);
  const qint64 donnees = octets.GrandBoutien(4);
  return octets.Juste() && marques == 0 && NomEntier(octets, tous, tete.noms + nom) &&
         FichierEntier(octets, tous, tete.donnees + donnees);
}

}  // namespace

bool ArbreSain(const QByteArray& octets) {
  QBuffer tampon;
  tampon.setData(octets);
  tampon.open(QIODevice::ReadOnly);
  LectureOctets lecture(tampon);
  Tete tete{};
  if (!LitTete(lecture, tete)) {
    return false;
  }
  lecture.Va(tete.arbre + 4);  // the root has no name
  const bool dossier = lecture.GrandBoutien(2) == marqueDossier;
  const quint32 nombre = lecture.GrandBoutien(4);
  const qint64 premier = tete.arbre + longueurNoeud * lecture.GrandBoutien(4);
  bool sain = dossier && nombre <= fichiersAuPlus && lecture.Juste();
  for (quint32 i = 0; sain && i < nombre; ++i) {
    sain = NoeudSain(lecture, octets, tete, premier + i * longueurNoeud);
  }
  return sain;
}

}  // namespace gastrelle
