#include "impression/PagesLues.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include <QRegularExpression>
#include <QXmlStreamReader>

#include "impression/ServeurImpression.h"

namespace gastrelle::essai {
namespace {

double Nombre(const QXmlStreamReader& lecteur, const char* attribut) {
  return lecteur.attributes().value(QLatin1String(attribut)).toDouble();
}

LigneLue Mot(QXmlStreamReader& lecteur, int page) {
  LigneLue mot{page,
               Nombre(lecteur, "xMin"),
               Nombre(lecteur, "yMin"),
               Nombre(lecteur, "xMax"),
               Nombre(lecteur, "yMax"),
               {}};
  mot.texte = lecteur.readElementText().simplified();
  return mot;
}

/// Words of one height of one page are one line.
std::vector<LigneLue> Lignes(std::vector<LigneLue> mots) {
  const auto place = [](const LigneLue& m) {
    return std::tuple(m.page, std::lround(m.haut), m.gauche);
  };
  std::sort(mots.begin(), mots.end(),
            [&](const LigneLue& a, const LigneLue& b) { return place(a) < place(b); });
  std::vector<LigneLue> lignes;
  for (const LigneLue& mot : mots) {
    if (lignes.empty() || lignes.back().page != mot.page ||
        std::abs(lignes.back().haut - mot.haut) > 1) {
      lignes.push_back(mot);
      continue;
    }
    lignes.back().texte += u' ' + mot.texte;
    lignes.back().droite = mot.droite;
    lignes.back().bas = std::max(lignes.back().bas, mot.bas);
  }
  return lignes;
}

QStringList Polices(const QString& pdf) {
  static const QRegularExpression marque(QStringLiteral("^[A-Z]{6}\\+"));
  QStringList polices;
  const QStringList lignes =
      ServeurImpression::Commande("pdffonts", {pdf}).split(u'\n', Qt::SkipEmptyParts).mid(2);
  for (const QString& ligne : lignes) {
    const QStringList mots = ligne.simplified().split(u' ');
    // The last five words are: "yes no yes 33 0".
    const bool presente = mots.value(mots.size() - 5) == QLatin1String("yes");
    polices.append(QString(mots.first()).remove(marque) +
                   QLatin1String(presente ? "" : " absente"));
  }
  return polices;
}

}  // namespace

DocumentLu LitDocument(const QString& pdf) {
  DocumentLu document;
  std::vector<LigneLue> mots;
  QXmlStreamReader lecteur(ServeurImpression::Commande("pdftotext", {"-bbox", pdf, "-"}));
  while (!lecteur.atEnd()) {
    if (lecteur.readNext() != QXmlStreamReader::StartElement) {
      continue;
    }
    if (lecteur.name() == QLatin1String("page")) {
      ++document.pages;
      document.largeur = Nombre(lecteur, "width");
      document.hauteur = Nombre(lecteur, "height");
    } else if (lecteur.name() == QLatin1String("word")) {
      mots.push_back(Mot(lecteur, document.pages - 1));
    }
  }
  document.lignes = Lignes(std::move(mots));
  document.polices = Polices(pdf);
  return document;
}

}  // namespace gastrelle::essai
