// The help topics of the windows as they stand in the real frame: each one has its page.

#include "controles/Touches.h"
#include "doublures/CadreVrai.h"
#include "shell/FichierAide.h"

namespace gastrelle::essai {
namespace {

class SujetsDAide : public CadreVrai {
 protected:
  SujetsDAide() {
    b.GarnitFromages();
    b.GarnitFiches(Donnees::GLM1);
    b.GarnitFiches(Donnees::GLT1);
  }

  /// Opens a window and goes through all of its tabs. Returns the topics of its pages.
  QStringList Sujets(const char* entree, const char* nom) {
    Choisit(entree);
    const QWidget& fenetre = Le(nom);
    QStringList sujets;
    for (int onglet = 1; onglet <= Trouve<QTabBar>(fenetre, "TabStrip1").count(); ++onglet) {
      CliqueOnglet(fenetre, onglet);
      const QWidget& page = Trouve(fenetre, ("Frame1(" + std::to_string(onglet) + ")").c_str());
      EXPECT_EQ(fenetre.property(proprieteSujet), page.property(proprieteSujet)) << onglet;
      sujets << page.property(proprieteSujet).toString();
    }
    return sujets;
  }
};

TEST_F(SujetsDAide, ChaqueOngletDeChaqueFenetreALeSienEtSaPage) {
  Ouvre();
  QStringList sujets{cadre->property(proprieteSujet).toString()};
  sujets << Sujets("mnuViewRecettes", "frmRecettes") << Sujets("mnuViewFromages", "frmFromages")
         << Sujets("mnuViewMenus", "frmMenus") << Sujets("mnuViewTermesTrucsAstuces", "frmTrucs");
  EXPECT_EQ(sujets.size(), 1 + 5 + 5 + 4 + 4);
  EXPECT_EQ(sujets.removeDuplicates(), 0);
  // Whatever else bears a topic, inside a page or beside it.
  for (const QWidget* controle : cadre->findChildren<QWidget*>()) {
    if (controle->property(proprieteSujet).isValid()) {
      sujets << controle->property(proprieteSujet).toString();
    }
  }
  const auto fichier = FichierAide::Ouvre(QStringLiteral(FICHIER_AIDE));
  ASSERT_NE(fichier, nullptr);
  for (const QString& sujet : sujets) {
    EXPECT_TRUE(fichier->Contient(sujet)) << sujet.toStdString();
  }
}

TEST_F(SujetsDAide, SeulsLesFromagesOntUneLigneDansLaBandeDuLogo) {
  Ouvre();
  Sujets("mnuViewRecettes", "frmRecettes");
  Sujets("mnuViewFromages", "frmFromages");
  EXPECT_TRUE(Le("frmRecettes").findChildren<QWidget*>("lblLigneLogo").isEmpty());
  EXPECT_EQ(Le("frmFromages").findChildren<QWidget*>("lblLigneLogo").size(), 5);
}

}  // namespace
}  // namespace gastrelle::essai
