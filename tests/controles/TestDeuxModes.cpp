// A page in two modes: what each enables, empties and gives the focus to.

#include <QTest>
#include <gtest/gtest.h>

#include "controles/BoitesTexte.h"
#include "controles/DeuxModes.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

class Modes : public testing::Test {
 protected:
  Modes() {
    auto* rangee = new QVBoxLayout(&page);
    for (QWidget* controle : std::initializer_list<QWidget*>{options[0], options[1], nom, texte}) {
      rangee->addWidget(controle, 0, Qt::AlignLeft);
    }
    texte->PoseTexte("un texte");
    page.show();
    page.setFocus();
  }
  void Cree(std::optional<std::size_t> debut = 1) {
    modes.emplace(options,
                  Mode{.controles = {nom},
                       .focus = nom,
                       .vides = {texte},
                       .surChoix = [this] { journal << "premier " + texte->toPlainText(); }},
                  Mode{.controles = {texte}, .surChoix = [this] { journal << "second"; }}, debut);
  }

  QWidget page;
  std::array<QRadioButton*, 2> options{new QRadioButton("Le nom"), new QRadioButton("Le texte")};
  LigneTexte* nom = new LigneTexte("txtNom", sansLimite);
  ZoneTexte* texte = new ZoneTexte("txtTexte", sansLimite);
  QStringList journal;
  std::optional<DeuxModes> modes;
};

TEST_F(Modes, CommencentParLeSecondSansRienDeCeQuUnChoixAmene) {
  Cree();
  EXPECT_FALSE(modes->premier());
  EXPECT_TRUE(options[1]->isChecked());
  EXPECT_FALSE(nom->isEnabled());
  EXPECT_TRUE(texte->isEnabled());
  EXPECT_EQ(journal, QStringList{});
}

TEST_F(Modes, CommencentParLePremierSansRienDeCeQuUnChoixAmene) {
  Cree(0);
  EXPECT_TRUE(modes->premier());
  EXPECT_TRUE(nom->isEnabled());
  EXPECT_EQ(texte->Texte(), "un texte");
  EXPECT_EQ(journal, QStringList{});
  EXPECT_NE(page.focusWidget(), nom);
}

TEST_F(Modes, UnClicEchangeLesControlesVideEtDonneLeFocus) {
  Cree();
  Clique(*options[0]);
  EXPECT_TRUE(modes->premier());
  EXPECT_TRUE(nom->isEnabled());
  EXPECT_FALSE(texte->isEnabled());
  EXPECT_EQ(texte->Texte(), "");
  EXPECT_EQ(journal, QStringList{"premier "});  // emptied before
  EXPECT_EQ(page.focusWidget(), nom);
}

TEST_F(Modes, SansFocusDonneLeClavierResteAOptions) {
  Cree(0);
  Clique(*options[1]);
  EXPECT_EQ(journal, QStringList{"second"});
  EXPECT_EQ(page.focusWidget(), options[1]);
}

TEST_F(Modes, ChoisirParLeCodeAmeneCeQuUnClicAmene) {
  Cree();
  modes->Choisit(0);
  modes->Choisit(0);
  EXPECT_EQ(journal, QStringList{"premier "});
  EXPECT_EQ(page.focusWidget(), nom);
}

TEST_F(Modes, SAppliquentDeNouveauSurDemande) {
  Cree(0);
  modes->Applique();
  EXPECT_EQ(journal, QStringList{"premier "});
  EXPECT_EQ(texte->Texte(), "");
  EXPECT_EQ(page.focusWidget(), nom);
}

TEST_F(Modes, SansDebutAucuneOptionNEstPriseEtLeSecondVaut) {
  Cree(std::nullopt);
  EXPECT_FALSE(options[0]->isChecked() || options[1]->isChecked());
  EXPECT_FALSE(modes->premier());
  EXPECT_FALSE(nom->isEnabled());
  modes->Choisit(1);
  EXPECT_TRUE(options[1]->isChecked());
}

TEST_F(Modes, UnModeInterditNeSePrendPas) {
  Cree();
  modes->Permet(0, false);
  EXPECT_FALSE(modes->Permis(0));
  EXPECT_TRUE(modes->Permis(1));
  QTest::mouseClick(options[0], Qt::LeftButton);
  EXPECT_FALSE(modes->premier());
}

}  // namespace
}  // namespace gastrelle::essai
