// The base of every child window: what it owes the frame, its refusals and questions, its sizes.

#include <QMdiArea>
#include <QMdiSubWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/BoitesTexte.h"
#include "controles/FenetreEnfant.h"
#include "doublures/Bibliotheque.h"
#include "doublures/CadreEssai.h"
#include "doublures/Ecran.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr DescriptionFenetre notes{
    .nom = "frmEssai", .titre = u"Essai", .vue = EntreeVue::mesNotes, .logo = "logo-menus"};
constexpr DescriptionFenetre cachable{.nom = "frmEssai",
                                      .titre = u"Essai",
                                      .vue = EntreeVue::mesNotes,
                                      .logo = "logo-menus",
                                      .razReduite = true,
                                      .seCache = true,
                                      .taille = {40, 20},
                                      .moindre = {30, 10}};

/// A window without tabs that puts its content away before it leaves.
class frmEssai final : public FenetreEnfant {
 public:
  frmEssai(Module1& module, CadreEssai& cadre, const DescriptionFenetre& description)
      : FenetreEnfant(module, cadre, description), cadreEssai_(cadre) {}

  void RangeSaisie() override {
    ++sorties;
    quittesAvant = cadreEssai_.quittes.size();
  }

  int sorties = 0;
  std::size_t quittesAvant =
      99;  ///< how often the frame had been left when the content was put away

 private:
  CadreEssai& cadreEssai_;
};

class SansOnglet : public testing::Test {
 protected:
  void Ouvre(const DescriptionFenetre& description = notes) {
    fenetre = new frmEssai(*b.module, cadre, description);
    contour = new QMdiSubWindow;
    contour->setWidget(fenetre);
    enfants.addSubWindow(contour);
    enfants.show();
    contour->show();
  }

  Bibliotheque b;
  CadreEssai cadre{*b.module};
  QMdiArea enfants;
  frmEssai* fenetre = nullptr;
  QMdiSubWindow* contour = nullptr;
};

TEST_F(SansOnglet, PrendSonNomEtSonTitreDeSaDescription) {
  Ouvre();
  EXPECT_EQ(fenetre->objectName(), "frmEssai");
  EXPECT_EQ(fenetre->windowTitle(), "Essai");
}

TEST_F(SansOnglet, PoseSonSeulContexteASonActivation) {
  Ouvre();
  b.pointeur.Sablier();
  fenetre->Active();
  EXPECT_EQ(cadre.cochee, EntreeVue::mesNotes);
  EXPECT_THAT(cadre.contextes, ElementsAre(90));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(SansOnglet, ReduiteNePoseRienEtNeQuitteRien) {
  Ouvre();
  contour->showMinimized();
  fenetre->Active();
  fenetre->Desactive();
  fenetre->QuandReduite();
  EXPECT_THAT(cadre.contextes, IsEmpty());
  EXPECT_THAT(cadre.quittes, IsEmpty());
  EXPECT_EQ(fenetre->sorties, 0);
}

TEST_F(SansOnglet, RendLeCadreEnSeReduisantSiSaDescriptionLeVeut) {
  Ouvre(cachable);
  fenetre->QuandReduite();
  EXPECT_THAT(cadre.quittes, ElementsAre(EntreeVue::mesNotes));
}

TEST_F(SansOnglet, RangeSaSaisieAvantDeRendreLeCadre) {
  Ouvre();
  fenetre->Desactive();
  EXPECT_EQ(fenetre->sorties, 1);
  EXPECT_EQ(fenetre->quittesAvant, 0U);
  EXPECT_THAT(cadre.quittes, ElementsAre(EntreeVue::mesNotes));
}

TEST_F(SansOnglet, SeFermeParSaCroixEnRangeantSaSaisie) {
  Ouvre();
  EXPECT_TRUE(contour->close());
  EXPECT_EQ(fenetre->sorties, 1);
  EXPECT_EQ(fenetre->quittesAvant, 0U);
  EXPECT_THAT(cadre.quittes, ElementsAre(EntreeVue::mesNotes));
}

TEST_F(SansOnglet, FermeeElleEstDejaQuittee) {
  Ouvre();
  contour->close();
  fenetre->Desactive();
  EXPECT_EQ(fenetre->sorties, 1);
  EXPECT_THAT(cadre.quittes, SizeIs(1));
}

TEST_F(SansOnglet, SeCacheParSaCroixSiSaDescriptionLeVeut) {
  Ouvre(cachable);
  EXPECT_FALSE(contour->close());
  EXPECT_FALSE(contour->isVisible());
  EXPECT_EQ(fenetre->sorties, 1);
  EXPECT_THAT(cadre.quittes, ElementsAre(EntreeVue::mesNotes));
  contour->show();
  EXPECT_TRUE(fenetre->isVisible());
}

TEST_F(SansOnglet, LeProgrammeDechargeMemeUneFenetreCachee) {
  Ouvre(cachable);
  contour->close();
  contour->setAttribute(Qt::WA_DeleteOnClose);
  const QPointer reste(contour);
  fenetre->Decharge();
  EXPECT_EQ(fenetre->sorties, 2);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(reste.isNull());
}

TEST_F(SansOnglet, NeMontreNiVueNiEnregistrementDElleMeme) {
  Ouvre();
  EXPECT_TRUE(std::holds_alternative<std::monostate>(fenetre->VueCourante()));
  EXPECT_EQ(PanneDe([&] { fenetre->MontreEnregistrement(2); }), Panne::fichierIntrouvable);
}

TEST_F(SansOnglet, ASaTailleAElle) {
  Ouvre(cachable);
  const int lettre = fenetre->fontMetrics().averageCharWidth();
  const int ligne = fenetre->fontMetrics().lineSpacing();
  EXPECT_EQ(fenetre->sizeHint(), QSize(40 * lettre, 20 * ligne));
  EXPECT_EQ(fenetre->minimumSizeHint(), QSize(30 * lettre, 10 * ligne));
  auto* page = new QVBoxLayout(fenetre);
  auto* haute = new QWidget;
  haute->setMinimumHeight(30 * ligne);
  page->setContentsMargins(0, 0, 0, 0);
  page->addWidget(haute);
  haute->show();
  EXPECT_EQ(fenetre->minimumSizeHint(), QSize(30 * lettre, 30 * ligne));
}

TEST_F(SansOnglet, RefuseParUnMessageEtRendLeFocus) {
  Ouvre();
  LigneTexte boite("txtEssai", 10, fenetre);
  boite.show();
  b.pointeur.Sablier();
  fenetre->Refuse("Non.", &boite);
  EXPECT_THAT(b.messages.vus, ElementsAre(MessageVu{"Non.", Icone::information, "Gastrelle 2005"}));
  EXPECT_EQ(fenetre->focusWidget(), &boite);
  EXPECT_FALSE(b.pointeur.sablier);
  EXPECT_EQ(b.messages.bips, 0);
  fenetre->RefuseAvecBip("Non.", nullptr);
  EXPECT_EQ(b.messages.bips, 1);
}

TEST_F(SansOnglet, EffaceDesSaisiesVidesSansRienDemander) {
  Ouvre();
  LigneTexte ligne("txtLigne", 10, fenetre);
  ZoneTexte zone("txtZone", 10, fenetre);
  EXPECT_TRUE(fenetre->EffaceSaisies({&ligne, &zone}));
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(SansOnglet, DemandeAvantDEffacerCeQuiEstSaisi) {
  Ouvre();
  LigneTexte ligne("txtLigne", 10, fenetre);
  ZoneTexte zone("txtZone", 10, fenetre);
  zone.PoseTexte("a");
  b.messages.reponses = {Reponse::non, Reponse::oui};
  EXPECT_FALSE(fenetre->EffaceSaisies({&ligne, &zone}));
  EXPECT_EQ(zone.Texte(), "a");
  EXPECT_TRUE(fenetre->EffaceSaisies({&ligne, &zone}));
  EXPECT_EQ(zone.Texte(), "");
  const std::string question(DepuisUtf8("Effacer la saisie : êtes-sur sûr ?"));
  EXPECT_THAT(b.messages.questions, ElementsAre(question, question));
  EXPECT_EQ(b.messages.choix, Choix::ouiNon);
}

}  // namespace
}  // namespace gastrelle::essai
