// The help topics of the windows as they stand in the real frame: each one has its page.

#include "controles/Touches.h"
#include "doublures/CadreVrai.h"
#include "doublures/ToutesFenetres.h"
#include "shell/FichierAide.h"

namespace gastrelle::essai {
namespace {

class SujetsDAide : public CadreVrai {
 protected:
  /// Opens a window and goes through all of its tabs. Returns the topics of its pages.
  QStringList Sujets(const LigneEssai& ligne) {
    Choisit(ligne.entree);
    QWidget& fenetre = Le(ligne.nom);
    QStringList sujets;
    auto* hote = dynamic_cast<FenetreOnglets*>(&fenetre);
    for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
      if (hote != nullptr) {
        hote->MontreOnglet(onglet);
        const QWidget& page = Trouve(fenetre, ("Frame1(" + std::to_string(onglet) + ")").c_str());
        EXPECT_EQ(fenetre.property(proprieteSujet), page.property(proprieteSujet)) << onglet;
      }
      sujets << fenetre.property(proprieteSujet).toString();
    }
    return sujets;
  }
};

TEST_F(SujetsDAide, ChaqueOngletDeChaqueFenetreALeSienEtSaPage) {
  OuvreGarni();
  QStringList sujets{cadre->property(proprieteSujet).toString()};
  qsizetype attendus = 1;
  for (const LigneEssai& ligne : ToutesLesFenetres()) {
    sujets << Sujets(ligne);
    attendus += ligne.onglets();
  }
  EXPECT_EQ(sujets.size(), attendus);
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
  OuvreGarni();
  for (const LigneEssai& ligne : ToutesLesFenetres()) {
    Sujets(ligne);
    const bool fromages = std::string_view(ligne.nom) == "frmFromages";
    EXPECT_EQ(Le(ligne.nom).findChildren<QWidget*>("lblLigneLogo").size(),
              fromages ? ligne.onglets() : 0)
        << ligne.nom;
  }
}

}  // namespace
}  // namespace gastrelle::essai
