// The pages of the help: all there, all reachable, all links whole.

#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include "shell/Aide.h"
#include "shell/FichierAide.h"

namespace gastrelle::essai {
namespace {

class PagesDAide : public testing::Test {
 protected:
  void SetUp() override {
    fichier = FichierAide::Ouvre(QStringLiteral(FICHIER_AIDE));
    ASSERT_NE(fichier, nullptr);
    for (const ChapitreAide& chapitre : fichier->sommaire()) {
      for (const PageAide& page : chapitre.pages) {
        pages.push_back(page);
      }
    }
  }

  std::unique_ptr<FichierAide> fichier;
  std::vector<PageAide> pages;
};

TEST_F(PagesDAide, LeSommaireCommenceParLAccueil) {
  EXPECT_EQ(pages.front().sujet, sujetAccueil);
}

TEST_F(PagesDAide, TousLesSujetsDuProgrammeOntLeurPage) {
  for (const char* sujet :
       {"accueil", "aide", "cadre", "clavier", "lecture", "saisie", "recettes-liste",
        "recettes-ajouter", "recettes-modifier", "recettes-supprimer", "recettes-alpha",
        "visualisateur", "preferences"}) {
    EXPECT_TRUE(fichier->Contient(sujet)) << sujet;
  }
}

TEST_F(PagesDAide, LeTitreDeChaquePageEstCeluiDuSommaire) {
  for (const PageAide& page : pages) {
    EXPECT_TRUE(FichierAide::Html(page.sujet).contains("<h1>" + page.titre + "</h1>"))
        << page.sujet.toStdString();
  }
}

TEST_F(PagesDAide, TousLesLiensMenentAUnePage) {
  const QRegularExpression lien(QStringLiteral("href=\"([^\"]+)\\.html(?:#([^\"]+))?\""));
  for (const PageAide& page : pages) {
    auto liens = lien.globalMatch(FichierAide::Html(page.sujet));
    while (liens.hasNext()) {
      const QRegularExpressionMatch trouve = liens.next();
      const QString vers = trouve.captured(1);
      const QString paragraphe = trouve.captured(2);
      EXPECT_TRUE(fichier->Contient(vers))
          << page.sujet.toStdString() << ": " << vers.toStdString();
      EXPECT_TRUE(paragraphe.isEmpty() || FichierAide::ContientAncre(vers, paragraphe))
          << page.sujet.toStdString() << ": " << trouve.captured().toStdString();
    }
  }
}

TEST_F(PagesDAide, UneAncreNEstQuUneFoisDansSaPage) {
  for (const PageAide& page : pages) {
    QStringList ancres = FichierAide::Ancres(page.sujet);
    EXPECT_EQ(ancres.removeDuplicates(), 0) << page.sujet.toStdString();
  }
}

TEST_F(PagesDAide, ToutesLesPagesSontAuSommaire) {
  const QString racine = u':' + QFileInfo(FichierAide::Adresse("x").path()).path();
  QDirIterator fichiers(racine, {"*.html"});
  std::size_t nombre = 0;
  for (; fichiers.hasNext(); ++nombre) {
    EXPECT_TRUE(fichier->Contient(QFileInfo(fichiers.next()).completeBaseName()))
        << fichiers.fileName().toStdString();
  }
  EXPECT_EQ(nombre, pages.size());
}

TEST_F(PagesDAide, AucunBlancSecableDevantUnSigneDouble) {
  const QRegularExpression secable(QStringLiteral("[ \\n][;:!?»]"));
  for (const PageAide& page : pages) {
    const auto trouve = secable.match(FichierAide::Html(page.sujet));
    EXPECT_FALSE(trouve.hasMatch()) << page.sujet.toStdString();
  }
}

}  // namespace
}  // namespace gastrelle::essai
