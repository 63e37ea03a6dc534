// The page of presentation, as the build lays it into the program's folder.

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "shell/MenusCadre.h"
#include "shell/frmAbout.h"

namespace gastrelle::essai {
namespace {

class Presentation : public testing::Test {
 protected:
  void SetUp() override {
    QFile fichier(FICHIER_PRESENTATION);
    ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
    page = QString::fromUtf8(fichier.readAll());
    QXmlStreamReader lecture(page);
    while (!lecture.atEnd()) {
      lecture.readNext();
      if (lecture.isCharacters()) {
        texte += lecture.text();
      } else if (lecture.isStartElement()) {
        for (const QXmlStreamAttribute& attribut : lecture.attributes()) {
          attributs << attribut.name().toString() + u'=' + attribut.value().toString();
        }
      }
    }
    EXPECT_FALSE(lecture.hasError()) << lecture.errorString().toStdString();
    texte = texte.simplified();
  }

  QString page;
  QString texte;          ///< as it is read
  QStringList attributs;  ///< "name=value" of every element
};

TEST_F(Presentation, EstRemplie) {
  EXPECT_FALSE(page.contains(QRegularExpression("@[A-Z_]+@")));
  EXPECT_TRUE(page.contains("<svg"));
}

TEST_F(Presentation, NeDemandeRienAilleurs) {
  for (const QString& attribut : attributs) {
    EXPECT_FALSE(attribut.startsWith("src=")) << attribut.toStdString();
  }
  EXPECT_FALSE(page.contains("<link"));
  EXPECT_FALSE(page.contains("<script"));
  EXPECT_FALSE(page.contains("url("));
  EXPECT_FALSE(page.contains("@import"));
}

TEST_F(Presentation, DitCeQueDitLaBoiteAPropos) {
  const Bibliotheque b;
  const frmAbout apropos(*b.module, nullptr);
  for (const char* nom : {"lblTitle", "lblDescription", "lblCopyright"}) {
    const QString attendu = Texte(Trouve(apropos, nom));
    EXPECT_TRUE(QString(texte).replace(QChar::Nbsp, u' ').contains(attendu))
        << attendu.toStdString();
  }
  EXPECT_TRUE(texte.contains("version " VERSION_ATTENDUE));
}

TEST_F(Presentation, NommeLesNeufFenetres) {
  int fenetres = 0;
  for (const EntreeMenu& entree : EntreesMenus()) {
    if (entree.cochable && *entree.touche != '\0') {
      ++fenetres;
      EXPECT_TRUE(texte.contains(QString::fromUtf16(entree.titre).remove(u'&'))) << entree.nom;
    }
  }
  EXPECT_EQ(fenetres, 9);
}

TEST_F(Presentation, AUneSectionDeContact) {
  EXPECT_TRUE(attributs.contains("id=contact"));
  EXPECT_TRUE(texte.contains("Contact"));
}

}  // namespace
}  // namespace gastrelle::essai
