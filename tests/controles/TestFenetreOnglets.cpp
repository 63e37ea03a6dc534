// The base of the windows with tabs, where the windows of the program take its defaults: a window
// that refuses in its own way and lands elsewhere, a tab shown unasked.

#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/PageOnglet.h"
#include "doublures/Bibliotheque.h"
#include "doublures/CadreEssai.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PageEssai final : public PageOnglet {
 public:
  explicit PageEssai(const PlaceOnglet& place) : PageOnglet(place), numero_(place.numero) {}

  void Entre() override { setProperty("entrees", property("entrees").toInt() + 1); }
  [[nodiscard]] Vue VueCourante() const override { return VueMenu{std::to_string(numero_), {}}; }

 private:
  int numero_;
};

class frmEssai;

constexpr DescriptionFenetre fenetreEssai{
    .nom = "frmEssai", .titre = u"Essai", .vue = EntreeVue::millesimes, .logo = "logo-menus"};
constexpr std::array<DescriptionOnglet, 3> onglets{{
    {u"Un", u"Le premier", u"Entête un", u"Logo un", "un", CreePage<frmEssai, PageEssai>},
    {u"Deux", u"Le deuxième", u"Entête deux", u"Logo deux", "deux", CreePage<frmEssai, PageEssai>},
    {u"Trois", u"Le dernier", u"Entête trois", u"Logo trois", "trois",
     CreePage<frmEssai, PageEssai>},
}};
constexpr std::array<ChangementRefuse, 1> refus{{{2, 3}}};
constexpr JeuOnglets jeu{.onglets = onglets, .refus = refus, .ligneDuLogo = true};

/// Refuses its second tab with a message and goes to the first one, if it is told to.
class frmEssai final : public FenetreOnglets {
 public:
  frmEssai(Module1& module, gastrelle::Cadre& cadre)
      : FenetreOnglets(module, cadre, fenetreEssai, jeu) {}

  bool deuxInterdit = false;

 protected:
  std::string Annonce() override { return "7\r\nessais"; }
  bool PermetOnglet(int vers) override {
    if (vers == 2 && deuxInterdit) {
      module().services.messages.Informe("Pas encore.", Icone::critique);
      ChoisitOnglet(1);
      return false;
    }
    return FenetreOnglets::PermetOnglet(vers);
  }
};

class AvecOnglets : public testing::Test {
 protected:
  AvecOnglets() {
    fenetre.show();
    fenetre.Active();
    cadre.contextes.clear();
  }
  int Affiche() {
    EXPECT_EQ(Trouve<QTabBar>(fenetre, "TabStrip1").currentIndex() + 1, fenetre.ongletCourant());
    const auto vue = std::get<VueMenu>(fenetre.VueCourante());
    EXPECT_EQ(vue.titre, std::to_string(fenetre.ongletCourant()));
    EXPECT_TRUE(Page(fenetre.ongletCourant()).isVisible());
    return fenetre.ongletCourant();
  }
  QWidget& Page(int onglet) {
    return Trouve(fenetre, ("Frame1(" + std::to_string(onglet) + ")").c_str());
  }

  Bibliotheque b;
  CadreEssai cadre{*b.module};
  frmEssai fenetre{*b.module, cadre};
};

TEST_F(AvecOnglets, LaTablePermetOuRefuseParLeSon) {
  CliqueOnglet(fenetre, 2);
  EXPECT_EQ(Affiche(), 2);
  CliqueOnglet(fenetre, 3);
  EXPECT_EQ(Affiche(), 2);
  EXPECT_THAT(b.son.joues, ElementsAre((b.dossier.chemin() / "Exclamation").string()));
  EXPECT_THAT(cadre.contextes, ElementsAre(52));
}

TEST_F(AvecOnglets, UneFenetreRefuseASaFaconEtVaAilleurs) {
  CliqueOnglet(fenetre, 3);
  fenetre.deuxInterdit = true;
  CliqueOnglet(fenetre, 2);
  EXPECT_EQ(Affiche(), 1);
  EXPECT_EQ(b.messages.vus.size(), 1U);
  EXPECT_THAT(b.son.joues, IsEmpty());
  EXPECT_THAT(cadre.contextes, ElementsAre(53, 51));
}

TEST_F(AvecOnglets, UnRefusDepuisLOngletDArriveeNYRentrePasUneSecondeFois) {
  fenetre.deuxInterdit = true;
  CliqueOnglet(fenetre, 2);
  EXPECT_EQ(Affiche(), 1);
  EXPECT_THAT(cadre.contextes, IsEmpty());
  EXPECT_EQ(Page(1).property("entrees").toInt(), 1);
}

TEST_F(AvecOnglets, LeProgrammeMontreUnOngletQuUnClicSeVerraitRefuser) {
  CliqueOnglet(fenetre, 2);
  fenetre.MontreOnglet(3);
  EXPECT_EQ(Affiche(), 3);
  fenetre.deuxInterdit = true;
  fenetre.MontreOnglet(2);
  EXPECT_EQ(Affiche(), 2);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.son.joues, IsEmpty());
  EXPECT_THAT(cadre.contextes, ElementsAre(52, 53, 52));
}

TEST_F(AvecOnglets, MontrerLOngletAfficheNeFaitRien) {
  fenetre.MontreOnglet(1);
  EXPECT_EQ(Affiche(), 1);
  EXPECT_THAT(cadre.contextes, IsEmpty());
}

TEST_F(AvecOnglets, LAnnonceSeLitSurChaquePageFaite) {
  CliqueOnglet(fenetre, 3);
  for (const char* nom : {"txtAnnonce(0)", "txtAnnonce(2)"}) {
    EXPECT_EQ(Texte(Trouve(fenetre, nom)), "7\nessais") << nom;
  }
  EXPECT_EQ(fenetre.findChild<QWidget*>("txtAnnonce(1)"), nullptr);
}

TEST_F(AvecOnglets, LaLigneDuLogoSuitLeJeuDOnglets) {
  EXPECT_EQ(Texte(Trouve(Page(1), "lblLigneLogo")), "Logo un");
  EXPECT_EQ(Texte(Trouve(Page(1), "Label1")), Fr("Entête un"));
}

}  // namespace
}  // namespace gastrelle::essai
