// Sixty recipes as pages, word processors, mails and telephones give them, pasted by the keyboard
// into the real boxes.

#include <memory>
#include <string>

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>
#include <gtest/gtest.h>

#include "controles/BoitesTexte.h"
#include "controles/Conversion.h"
#include "data/Limites.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

constexpr int nombreDeCollages = 60;

QByteArray LitFichier(const QString& nom) {
  QFile fichier(QDir(QStringLiteral(DOSSIER_COLLAGES)).filePath(nom));
  EXPECT_TRUE(fichier.open(QIODevice::ReadOnly)) << nom.toStdString();
  return fichier.readAll();
}

QStringList Fichiers() {
  return QDir(QStringLiteral(DOSSIER_COLLAGES)).entryList({"*.txt"}, QDir::Files, QDir::Name);
}

/// What the box shows after Ctrl+V.
template <class Boite>
std::string Collee(const QString& texte, int limite) {
  QApplication::clipboard()->setText(texte);
  Boite boite("txtEssai", limite);
  boite.show();
  boite.setFocus();
  QTest::keyClick(&boite, Qt::Key_V, Qt::ControlModifier);
  return boite.Texte();
}

/// A text with escapes as those of JSON.
QString SansEchappement(QByteArray texte) {
  texte.replace('"', "\\\"");
  return QJsonDocument::fromJson("[\"" + texte + "\"]").array().first().toString();
}

TEST(Collages, SontSoixanteEtNAucunPointDInterrogation) {
  EXPECT_EQ(Fichiers().size(), nombreDeCollages);
  for (const QString& nom : Fichiers()) {
    EXPECT_FALSE(LitFichier(nom).contains('?')) << nom.toStdString();
  }
}

TEST(Collages, NePerdentPasUnCaractereDansUneBoiteDePlusieursLignes) {
  for (const QString& nom : Fichiers()) {
    const std::string colle = Collee<ZoneTexte>(QString::fromUtf8(LitFichier(nom)), limiteTexte);
    EXPECT_GT(colle.size(), 300U) << nom.toStdString();
    EXPECT_EQ(colle.find('?'), std::string::npos) << nom.toStdString() << '\n' << VersUtf8(colle);
  }
}

TEST(Collages, NeChangentPlusCollesUneSecondeFois) {
  for (const QString& nom : Fichiers()) {
    const std::string colle = Collee<ZoneTexte>(QString::fromUtf8(LitFichier(nom)), limiteTexte);
    EXPECT_EQ(Collee<ZoneTexte>(VersEcran(colle), limiteTexte), colle) << nom.toStdString();
  }
}

TEST(Collages, DonnentUnTitreDeLeurPremiereLigne) {
  for (const QString& nom : Fichiers()) {
    const QByteArray texte = LitFichier(nom).replace('\r', '\n');
    const QString titre = QString::fromUtf8(texte.left(texte.indexOf('\n')));
    const std::string colle = Collee<LigneTexte>(titre, limiteNom);
    EXPECT_FALSE(colle.empty()) << nom.toStdString();
    EXPECT_EQ(colle.find('?'), std::string::npos) << nom.toStdString() << ' ' << VersUtf8(colle);
  }
}

TEST(Collages, SontEcritsCommeUnFrancaisLesEcrirait) {
  int rangs = 0;
  for (const QByteArray& rang : LitFichier("attendus.tsv").trimmed().split('\n')) {
    const QList<QByteArray> champs = rang.split('\t');
    ASSERT_EQ(champs.size(), 3) << rang.toStdString();
    const QString source = QString::fromUtf8(LitFichier(champs[0]));
    ASSERT_TRUE(source.contains(SansEchappement(champs[1]))) << rang.toStdString();
    const QString colle = VersQt(Collee<ZoneTexte>(source, limiteTexte));
    EXPECT_TRUE(colle.contains(SansEchappement(champs[2]))) << rang.toStdString();
    ++rangs;
  }
  EXPECT_GT(rangs, 150);
}

TEST(Collages, GardentLeursLignes) {
  const auto lignes = [](const char* fichier) {
    return VersQt(Collee<ZoneTexte>(QString::fromUtf8(LitFichier(fichier)), limiteTexte))
        .split("\r\n")
        .size();
  };
  EXPECT_EQ(lignes("37-mac-iles-flottantes.txt"), 14);      // CR alone
  EXPECT_EQ(lignes("48-tableur-creme-de-cassis.txt"), 14);  // LF
  EXPECT_EQ(lignes("40-tableur-sirop-de-menthe.txt"), 13);  // CR LF
  EXPECT_EQ(lignes("03-word-boeuf-bourguignon.txt"), 17);  // with line breaks of the word processor
}

TEST(Collages, RecollentUnMotCoupeEnFinDeLigne) {
  const std::string colle = Collee<ZoneTexte>(
      QString::fromUtf8(LitFichier("20-pdf-souffle-au-fromage.txt")), limiteTexte);
  EXPECT_NE(colle.find("laissez tiédir, puis"_1252), std::string::npos);
}

}  // namespace
}  // namespace gastrelle::essai
