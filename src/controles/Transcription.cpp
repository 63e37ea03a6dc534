#include "controles/Transcription.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "controles/TableTranscription.h"
#include "data/TableCaracteres.h"

namespace gastrelle {
namespace {

constexpr char32_t barreDeFraction = 0x2044;
constexpr char32_t barreDeDivision = 0x2215;
constexpr char32_t moinsHaut = 0x207B;
constexpr char32_t touche = 0x20E3;  // a key cap around the digit before
constexpr char32_t debutHaut = 0x80;

template <class Table>
constexpr bool EstRangee(const Table& table) {
  return std::is_sorted(table.begin(), table.end(), [](const auto& gauche, const auto& droite) {
    return gauche.dernier < droite.premier;
  });
}
static_assert(EstRangee(ecritures) && EstRangee(suitesNombres) && EstRangee(suitesLettres));

/// The row of a table that tells of a character, or null.
template <class Table>
const typename Table::value_type* Rangee(const Table& table, char32_t code) {
  const auto* place = std::partition_point(table.data(), table.data() + table.size(),
                                           [&](const auto& rang) { return rang.dernier < code; });
  const bool trouvee = place != table.data() + table.size() && place->premier <= code;
  return trouvee ? place : nullptr;
}

/// Invisible, but for the line break and the tab.
bool EstInvisible(char32_t code) {
  const QChar::Category genre = QChar::category(code);
  return (genre == QChar::Other_Control && code != U'\n' && code != U'\t') ||
         genre == QChar::Other_Format;
}

bool EstIntact(char32_t code) {
  return OctetDe(code) >= 0 && !EstInvisible(code);
}

/// Pieces of a text that don't run into their neighbours as letters and digits do.
enum class Genre { simple, fraction, exposant, indice, detache };

Genre GenreDe(char32_t code) {
  if (EstIntact(code)) {
    return Genre::simple;
  }
  if (Rangee(suitesNombres, code) != nullptr) {
    return Genre::detache;
  }
  switch (QChar::decompositionTag(code)) {
    case QChar::Fraction:
      return Genre::fraction;
    case QChar::Super:
      return Genre::exposant;
    case QChar::Sub:
      return Genre::indice;
    case QChar::Circle:
      return Genre::detache;
    case QChar::Compat:  // a number with its full stop or in parentheses
      return QChar::category(code) == QChar::Number_Other ? Genre::detache : Genre::simple;
    default:
      return Genre::simple;
  }
}

QString Normalise(const std::u32string& points, QString::NormalizationForm forme) {
  return QString::fromStdU32String(points).normalized(forme);
}

QString Ecrit(const std::u32string& points, bool& perte);

/// What the tables say of a character.
std::optional<QString> SelonTables(char32_t code) {
  if (const Ecriture* ecriture = Rangee(ecritures, code)) {
    return QString::fromUtf16(ecriture->texte.data(),
                              static_cast<qsizetype>(ecriture->texte.size()));
  }
  if (const Suite* suite = Rangee(suitesNombres, code)) {
    return QString::number(suite->debut + static_cast<int>(code - suite->premier));
  }
  if (const Suite* suite = Rangee(suitesLettres, code)) {
    return QString(
        QChar(static_cast<char16_t>(suite->debut + static_cast<int>(code - suite->premier))));
  }
  return std::nullopt;
}

/// A control character is nothing, but for those that stand for a Windows-1252 byte of their
/// number.
QString DeControle(char32_t code) {
  const bool octet = code >= debutHaut && code < unicodeDe1252.size();
  const char16_t signe = octet ? unicodeDe1252[code] : u'\0';
  return octet && EstIntact(signe) ? QString(QChar(signe)) : QString();
}

/// The letter with those of its accents that the code page holds together, up to the first one that
/// it doesn't. Nothing if the letter itself is lost.
std::optional<QString> BaseDeGrappe(const std::u32string& grappe) {
  if (!QChar::isLetter(grappe.front())) {
    return std::nullopt;
  }
  const std::u32string detail = Normalise(grappe, QString::NormalizationForm_D).toStdU32String();
  std::optional<QString> lettre;
  for (std::size_t longueur = 1; longueur <= detail.size(); ++longueur) {
    const QString compose = Normalise(detail.substr(0, longueur), QString::NormalizationForm_C);
    if (compose.size() != 1 || !EstIntact(compose.front().unicode())) {
      break;
    }
    lettre = compose;
  }
  return lettre;
}

/// A character with the marks that stand on it.
QString EcritGrappe(const std::u32string& grappe, bool& perte) {
  const char32_t code = grappe.front();
  if (const auto ecriture = SelonTables(code)) {
    return *ecriture;
  }
  if (EstInvisible(code)) {
    return DeControle(code);
  }
  if (EstIntact(code)) {
    return QChar(static_cast<char16_t>(code));
  }
  if (QChar::isMark(code)) {
    return {};
  }
  const std::u32string forme = Normalise(grappe, QString::NormalizationForm_KC).toStdU32String();
  if (forme != grappe) {
    return Ecrit(forme, perte);
  }
  if (const auto lettre = BaseDeGrappe(grappe)) {
    return *lettre;
  }
  if (QChar::isSpace(code)) {
    return QStringLiteral(" ");
  }
  perte = true;
  return QStringLiteral("?");
}

std::size_t FinGrappe(const std::u32string& points, std::size_t debut) {
  const auto marque = [](char32_t code) { return QChar::isMark(code); };
  const auto suite = points.begin() + static_cast<std::ptrdiff_t>(debut) + 1;
  return static_cast<std::size_t>(std::find_if_not(suite, points.end(), marque) - points.begin());
}

QString Ecrit(const std::u32string& points, bool& perte) {
  QString texte;
  for (std::size_t debut = 0, fin = 0; debut < points.size(); debut = fin) {
    fin = FinGrappe(points, debut);
    texte += EcritGrappe(points.substr(debut, fin - debut), perte);
  }
  return texte;
}

bool EstChiffre(char32_t code, QChar::Decomposition place) {
  return QChar::decompositionTag(code) == place && QChar::digitValue(code) >= 0;
}

/// Where raised digits end that begin at `debut`, with the minus before them.
std::size_t FinChiffresHauts(const std::u32string& points, std::size_t debut) {
  const auto haut = [](char32_t code) {
    return EstChiffre(code, QChar::Super) || code == moinsHaut;
  };
  const auto premier = points.begin() + static_cast<std::ptrdiff_t>(debut);
  return static_cast<std::size_t>(std::find_if_not(premier, points.end(), haut) - points.begin());
}

/// What raised digits are by what follows them at `fin`: the numerator of a fraction, an exponent,
/// or digits that the code page holds as they are.
Genre GenreDesChiffresHauts(const std::u32string& points, std::size_t debut, std::size_t fin) {
  const char32_t barre = fin < points.size() ? points[fin] : U'\0';
  const char32_t suite = fin + 1 < points.size() ? points[fin + 1] : U'\0';
  const bool fraction =
      (barre == barreDeFraction && QChar::digitValue(suite) >= 0) ||
      ((barre == U'/' || barre == barreDeDivision) && EstChiffre(suite, QChar::Sub));
  if (fraction) {
    return Genre::fraction;
  }
  const auto premier = points.begin() + static_cast<std::ptrdiff_t>(debut);
  const auto dernier = points.begin() + static_cast<std::ptrdiff_t>(fin);
  return std::all_of(premier, dernier, EstIntact) ? Genre::simple : Genre::exposant;
}

/// A text as it is put together, piece by piece.
class Redaction {
 public:
  void Ajoute(const QString& morceau, Genre genre) {
    if (morceau.isEmpty()) {
      genre_ = genre == Genre::detache ? genre : genre_;
      return;
    }
    if (!texte_.isEmpty()) {
      texte_ += Separation(morceau.front(), genre);
    }
    texte_ += morceau;
    genre_ = genre;
  }
  [[nodiscard]] const QString& texte() const { return texte_; }

 private:
  /// What keeps a piece from running into the one before.
  [[nodiscard]] QString Separation(QChar suivant, Genre genre) const {
    const QChar dernier = texte_.back();
    if (genre_ == Genre::detache || genre == Genre::detache) {
      const bool mots = dernier.isLetterOrNumber() && suivant.isLetterOrNumber();
      const bool rang = dernier == u'.' && suivant.isDigit();  // "1." before a quantity
      return mots || rang ? QStringLiteral(" ") : QString();
    }
    if (genre == genre_ && genre != Genre::fraction) {
      return {};
    }
    const bool chiffres = dernier.isNumber() && suivant.isNumber();
    const bool puissance = suivant.isDigit() || suivant == u'-';
    if (genre == Genre::exposant && dernier.isDigit() && puissance) {
      return QStringLiteral("^");
    }
    return chiffres ? QStringLiteral(" ") : QString();
  }

  QString texte_;
  Genre genre_ = Genre::simple;
};

/// A picture keeps its neighbours apart, as a key cap around a digit does.
Genre GenreDe(const std::u32string& grappe, const QString& ecriture) {
  const char32_t code = grappe.front();
  const bool image = ecriture.isEmpty() && !EstInvisible(code) && !QChar::isMark(code);
  return image || grappe.find(touche) != std::u32string::npos ? Genre::detache : GenreDe(code);
}

Transcription TranscritPoints(const std::u32string& points) {
  Redaction redaction;
  bool perte = false;
  for (std::size_t debut = 0, fin = 0; debut < points.size(); debut = fin) {
    fin = FinChiffresHauts(points, debut);
    if (fin > debut) {
      const Genre genre = GenreDesChiffresHauts(points, debut, fin);
      const std::u32string hauts = points.substr(debut, fin - debut);
      redaction.Ajoute(
          genre == Genre::simple
              ? QString::fromStdU32String(hauts)
              : Ecrit(Normalise(hauts, QString::NormalizationForm_KC).toStdU32String(), perte),
          genre);
      continue;
    }
    fin = FinGrappe(points, debut);
    const std::u32string grappe = points.substr(debut, fin - debut);
    const QString ecriture = EcritGrappe(grappe, perte);
    redaction.Ajoute(ecriture, GenreDe(grappe, ecriture));
  }
  return {redaction.texte(), perte};
}

}  // namespace

Transcription Transcrit(const QString& texte) {
  const bool intact =
      std::all_of(texte.begin(), texte.end(), [](QChar c) { return EstIntact(c.unicode()); });
  if (intact) {
    return {texte, false};
  }
  QString compose = texte.normalized(QString::NormalizationForm_C);
  compose.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  // A word that a line's end cuts at a soft hyphen is whole again.
  compose.remove(QStringLiteral("\u00AD\n"));
  return TranscritPoints(compose.toStdU32String());
}

Transcription Compose(const QString& texte) {
  const std::u32string points = texte.normalized(QString::NormalizationForm_C).toStdU32String();
  Transcription resultat;
  resultat.texte.reserve(static_cast<qsizetype>(points.size()));
  for (const char32_t code : points) {
    const bool tient = OctetDe(code) >= 0;
    resultat.perte = resultat.perte || !tient;
    resultat.texte += tient ? QChar(static_cast<char16_t>(code)) : QChar(u'?');
  }
  return resultat;
}

bool SeRange(const QString& texte) {
  return std::all_of(texte.begin(), texte.end(), [](QChar c) { return OctetDe(c.unicode()) >= 0; });
}

}  // namespace gastrelle
