// What every window with tabs owes its user: pages made on demand that nobody notices.
#include "doublures/FenetreEssai.h"
#include "fiches/FichesEssai.h"
#include "fiches/frmMenus.h"
#include "fiches/frmTrucs.h"
#include "fromages/frmFromages.h"
#include "recettes/frmRecettes.h"

namespace gastrelle::essai {
namespace {

template <class Fenetre>
class Onglets : public FenetreEssai<Fenetre> {
 protected:
  Onglets() {
    this->b.GarnitFromages();
    this->b.GarnitFiches(Donnees::GLM1);
    this->b.GarnitFiches(Donnees::GLT1);
  }
  QStringList Pages() {
    QStringList noms;
    const auto& cadres = *this->fenetre->template findChild<QStackedWidget*>();
    for (int i = 0; i < cadres.count(); ++i) {
      noms << cadres.widget(i)->objectName();
    }
    return noms;
  }
};

using Fenetres = testing::Types<frmRecettes, frmFromages, frmMenus, frmTrucs>;
TYPED_TEST_SUITE(Onglets, Fenetres);

TYPED_TEST(Onglets, UnePageSeFaitQuandOnYEntreEtUneFois) {
  this->Ouvre();
  EXPECT_EQ(this->Pages(), QStringList{"Frame1(1)"});
  CliqueOnglet(*this->fenetre, 2);
  CliqueOnglet(*this->fenetre, 1);
  CliqueOnglet(*this->fenetre, 2);
  EXPECT_EQ(this->Pages(), (QStringList{"Frame1(1)", "Frame1(2)"}));
}

TYPED_TEST(Onglets, AucunePageNAgranditLaFenetre) {
  this->Ouvre();
  const QSize moindre = this->fenetre->minimumSizeHint();
  const QSize naturelle = this->fenetre->sizeHint();
  const int dernier = this->template Le<QTabBar>("TabStrip1").count();
  for (int onglet = 2; onglet <= dernier; ++onglet) {
    CliqueOnglet(*this->fenetre, onglet);
    EXPECT_EQ(this->fenetre->minimumSizeHint(), moindre) << onglet;
    EXPECT_EQ(this->fenetre->sizeHint(), naturelle) << onglet;
  }
}

}  // namespace
}  // namespace gastrelle::essai
