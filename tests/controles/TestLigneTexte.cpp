// The text box of one line.

#include <algorithm>
#include <array>

#include <QClipboard>
#include <QTest>
#include <gtest/gtest.h>

#include "controles/BoitesEssai.h"
#include "doublures/EcranVirtuel.h"
#include "doublures/ServicesEssai.h"
#include "shell/CommandesEdition.h"

namespace gastrelle::essai {
namespace {

class Ligne : public Boites<LigneTexte> {
 protected:
  static constexpr std::array deuxLignes{"a\nb", "a\r\nb", "a\tb"};

  void AttendSansSigneDeCommande() {
    const std::string texte = boite->Texte();
    EXPECT_TRUE(texte.starts_with('a') && texte.ends_with('b')) << texte;
    EXPECT_TRUE(std::none_of(texte.begin(), texte.end(), [](char c) { return c > 0 && c < ' '; }))
        << testing::PrintToString(texte);
  }
  void CommandeColler(const QString& texte) {
    QApplication::clipboard()->setText(texte);
    MessagesEssai messages;
    Edite(Edition::coller, boite.get(), messages);
    EXPECT_EQ(messages.bips, 0);
  }

  const QString creme = Fr("cre\u0300me");
};

TEST_F(Ligne, UnCollageNYLaisseNiFinDeLigneNiTabulation) {
  for (const char* texte : deuxLignes) {
    Montre(sansLimite);
    Colle(texte);
    AttendSansSigneDeCommande();
  }
}

TEST_F(Ligne, UnCheminGardeLeNomDuFichier) {
  Montre(sansLimite);
  boite->RendChemin();
  Colle(Fr("/a\u00ADb·1\u202Fc.jpg"));
  EXPECT_EQ(boite->Texte(),
            "/a\xAD"
            "b\xB7"
            "1?c.jpg");
}

TEST_F(Ligne, UneSaisieNeChangeQueCeQuiEstSaisi) {
  Montre(sansLimite);
  boite->PoseTexte("a\xAD\x0Bz");
  boite->end(false);
  Tape(*boite, Fr("e\u0301⅓"));
  EXPECT_EQ(boite->Texte(),
            "a\xAD\x0Bz\xE9"
            "1/3");
}

TEST_F(Ligne, LaCommandeCollerNYLaisseNiFinDeLigneNiTabulation) {
  for (const char* texte : deuxLignes) {
    Montre(sansLimite);
    CommandeColler(texte);
    AttendSansSigneDeCommande();
  }
}

TEST_F(Ligne, UnAccentDecomposeNeCompteQuAvecSaLettre) {
  Montre(5);
  Colle(creme);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
  Montre(5);
  CommandeColler(creme);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
  Montre(5);
  QApplication::clipboard()->setText(creme);
  QTest::keyClick(boite.get(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
}

TEST_F(Ligne, LeBoutonDuMilieuColleCommeLeClavier) {
  QClipboard& pressePapiers = *QApplication::clipboard();
  if (!pressePapiers.supportsSelection()) {
    if (!EcranVirtuel::Possible()) {
      GTEST_SKIP() << "il manque Xvfb";
    }
    EXPECT_EQ(RejoueSurEcranVirtuel("Ligne.LeBoutonDuMilieuColleCommeLeClavier"), 0);
    return;
  }
  Montre(5);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(boite.get()));
  pressePapiers.setText(creme, QClipboard::Selection);
  QTest::mouseClick(boite.get(), Qt::MiddleButton);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
  boite->RendLectureSeule();
  QTest::mouseClick(boite.get(), Qt::MiddleButton);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
}

TEST_F(Ligne, UnAccentDecomposeAuDelaDeLaLimiteSeCoupeAvecSaLettre) {
  Montre(5);
  Colle(Fr("crepe\u0301"));
  EXPECT_EQ(boite->Texte(), "crepé"_1252);
  Montre(4);
  Colle(Fr("crepe\u0301"));
  EXPECT_EQ(boite->Texte(), "crep");
}

TEST_F(Ligne, CtrlVNeChangeRienEnLectureSeule) {
  Montre(sansLimite);
  boite->PoseTexte("soupe");
  boite->RendLectureSeule();
  QApplication::clipboard()->setText("x");
  QTest::keyClick(boite.get(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(boite->Texte(), "soupe");
}

}  // namespace
}  // namespace gastrelle::essai
