#include "shell/RechercheAide.h"

#include <algorithm>
#include <array>

#include <QTextDocument>

namespace gastrelle {
namespace {

/// A letter without its accent, and what is looked for in its place.
struct Variantes {
  char16_t lettre;
  const char16_t* motif;
};

constexpr std::array<Variantes, 9> variantes{{
    {u'a', u"[aàâä]"},
    {u'c', u"[cç]"},
    {u'e', u"[eéèêë]"},
    {u'i', u"[iîï]"},
    {u'o', u"[oôö]"},
    {u'u', u"[uùûü]"},
    {u'y', u"[yÿ]"},
    {u'œ', u"(?:œ|oe)"},
    {u'\'', u"['’]"},
}};

QString MotifDe(QChar c) {
  const QChar lettre = QString(c).normalized(QString::NormalizationForm_D).at(0).toLower();
  const auto* trouvee = std::find_if(variantes.begin(), variantes.end(),
                                     [&](const Variantes& v) { return QChar(v.lettre) == lettre; });
  return trouvee == variantes.end() ? QRegularExpression::escape(QString(c))
                                    : QString::fromUtf16(trouvee->motif);
}

QRegularExpression MotifDuMot(QString mot) {
  mot.replace(QStringLiteral("oe"), QStringLiteral("œ"), Qt::CaseInsensitive);
  QString motif;
  for (const QChar c : mot) {
    motif += MotifDe(c);
  }
  return QRegularExpression(motif, QRegularExpression::CaseInsensitiveOption);
}

bool TousDans(const std::vector<QRegularExpression>& motifs, const QString& texte) {
  return std::all_of(motifs.begin(), motifs.end(), [&](const QRegularExpression& motif) {
    return motif.match(texte).hasMatch();
  });
}

}  // namespace

RechercheAide::RechercheAide(const FichierAide& fichier) {
  for (const ChapitreAide& chapitre : fichier.sommaire()) {
    for (const PageAide& page : chapitre.pages) {
      QTextDocument document;
      document.setHtml(FichierAide::Html(page.sujet));
      pages_.push_back({page, document.toPlainText()});
    }
  }
}

std::vector<PageAide> RechercheAide::Cherche(const QString& texte) const {
  const std::vector<QRegularExpression> motifs = Expressions(texte);
  std::vector<PageAide> trouvees;
  if (motifs.empty()) {
    return trouvees;
  }
  for (const PageLue& lue : pages_) {
    if (TousDans(motifs, lue.page.titre + u'\n' + lue.texte)) {
      trouvees.push_back(lue.page);
    }
  }
  std::stable_partition(trouvees.begin(), trouvees.end(), [&](const PageAide& page) {
    return std::any_of(motifs.begin(), motifs.end(), [&](const QRegularExpression& motif) {
      return motif.match(page.titre).hasMatch();
    });
  });
  return trouvees;
}

std::vector<QRegularExpression> RechercheAide::Expressions(const QString& texte) {
  std::vector<QRegularExpression> motifs;
  for (const QString& mot : texte.simplified().split(u' ', Qt::SkipEmptyParts)) {
    motifs.push_back(MotifDuMot(mot));
  }
  return motifs;
}

}  // namespace gastrelle
