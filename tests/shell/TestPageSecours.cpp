// The page that is read after an accident, as the build lays it into the program's folder: for a
// browser, since the help needs a program that starts.

#include <memory>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTextDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/FichierAide.h"

namespace gastrelle::essai {
namespace {

constexpr const char* pageSecours = DOSSIER_PROGRAMME "/secours.html";

/// What the first group of a pattern takes in, each time that the pattern stands in a page.
QStringList Captures(const QString& page, const char* motif) {
  QStringList captures;
  auto trouves = QRegularExpression(QString::fromLatin1(motif)).globalMatch(page);
  while (trouves.hasNext()) {
    captures << trouves.next().captured(1);
  }
  return captures;
}

QStringList Adresses(const QString& page) {
  return Captures(page, "href=\"([^\"]*)\"");
}

/// The words of a page, one blank between two.
QString Mots(const QString& html) {
  QTextDocument document;
  document.setHtml(html);
  return document.toPlainText().simplified();
}

class PageSecours : public testing::Test {
 protected:
  void SetUp() override {
    page = Lue(pageSecours);
    aide = FichierAide::Ouvre(QStringLiteral(FICHIER_AIDE));
    ASSERT_NE(aide, nullptr);
  }

  static QString Lue(const char* chemin) {
    QFile fichier(QString::fromUtf8(chemin));
    EXPECT_TRUE(fichier.open(QIODevice::ReadOnly)) << chemin;
    QStringDecoder decodeur(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString lue = decodeur.decode(fichier.readAll());
    EXPECT_FALSE(decodeur.hasError()) << chemin;
    return lue;
  }

  QString page;
  std::unique_ptr<FichierAide> aide;
};

TEST_F(PageSecours, EstEnFrancaisEtLeDit) {
  EXPECT_TRUE(page.contains("<html lang=\"fr\">"));
  EXPECT_TRUE(page.contains("<meta charset=\"utf-8\">"));
  EXPECT_TRUE(page.contains("<h1>Après un accident</h1>"));
}

TEST_F(PageSecours, DitMotPourMotCeQueDitLAide) {
  const QString mots = Mots(page);
  EXPECT_GT(mots.size(), 1000);
  EXPECT_EQ(mots, Mots(FichierAide::Html(QStringLiteral("secours"))));
}

TEST_F(PageSecours, NAPasDeLienQuiNeMeneNullePart) {
  const QStringList ancres = Captures(page, "<a name=\"([^\"]*)\"");
  const QStringList adresses = Adresses(page);
  EXPECT_FALSE(adresses.isEmpty());
  for (const QString& adresse : adresses) {
    EXPECT_TRUE(adresse.startsWith(u'#') && ancres.contains(adresse.mid(1)))
        << adresse.toStdString();
  }
}

TEST_F(PageSecours, SeLitSansAucunAutreFichier) {
  for (const char* dehors : {"<link", "<script", "<img", "src=", "url(", "@import", "style.css"}) {
    EXPECT_FALSE(page.contains(QLatin1String(dehors))) << dehors;
  }
  EXPECT_TRUE(page.contains("<style>"));
  EXPECT_FALSE(page.contains(QRegularExpression("@[A-Z_]+@|\\$[a-z]")));
}

TEST_F(PageSecours, EstNommeeParLesPagesQuiPeuventYMener) {
  for (const char* sujet : {"nettoyage", "vider", "reinitialiser", "donnees", "cadre", "secours"}) {
    EXPECT_TRUE(Mots(FichierAide::Html(QString::fromLatin1(sujet))).contains("secours.html"))
        << sujet;
  }
}

TEST_F(PageSecours, LesLiensDeLaPresentationMenentAUnFichierDuDossier) {
  QStringList fichiers;
  for (const QString& adresse : Adresses(Lue(FICHIER_PRESENTATION))) {
    if (!adresse.contains(u':')) {
      fichiers << adresse;
      EXPECT_TRUE(QFileInfo(QStringLiteral(DOSSIER_PROGRAMME "/") + adresse).isFile())
          << adresse.toStdString();
    }
  }
  EXPECT_TRUE(fichiers.contains("secours.html"));
}

}  // namespace
}  // namespace gastrelle::essai
