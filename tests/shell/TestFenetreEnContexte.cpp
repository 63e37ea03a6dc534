// Which window the commands of the frame are about: the one that the context tells of, whatever the
// frame has in front.

#include "doublures/CadreVrai.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class FenetreEnContexte : public CadreVrai {
 protected:
  /// The recipes are minimised in front of a minimised shopping list, which is then activated where
  /// it is: the context is still that of the recipes.
  void ActiveLesCoursesReduites() {
    OuvreGarni();
    Choisit("mnuViewMesCourses");
    Sous("frmCourses").showMinimized();
    Choisit("mnuViewRecettes");
    recettes().showMinimized();
    enfants().setActiveSubWindow(&Sous("frmCourses"));
    QApplication::processEvents();
    ASSERT_TRUE(Sous("frmCourses").isMinimized());
    ASSERT_EQ(enfants().activeSubWindow(), &Sous("frmCourses"));
    ASSERT_EQ(b.module->contexteActif, 11);
  }
};

TEST_F(FenetreEnContexte, CEstLaSienneQuiSImprime) {
  ActiveLesCoursesReduites();
  Choisit("mnuFilePrint");
  ASSERT_THAT(b.imprimantes.travaux, SizeIs(1));
  const auto lignes = b.imprimantes.travaux[0].ToutesLignes();
  EXPECT_THAT(lignes, Contains(HasSubstr("Recette : ")));
  EXPECT_THAT(lignes, Not(Contains(HasSubstr("Achats"))));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(FenetreEnContexte, CEstLaSienneQuiSEnvoie) {
  ActiveLesCoursesReduites();
  Choisit("mnuEditEnvoyerNotePad");
  EXPECT_THAT(b.association.cibles, ElementsAre((b.dossier.chemin() / "recette.txt").string()));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(FenetreEnContexte, SansElleRienNeSImprime) {
  OuvreGarni();
  Choisit("mnuWindowClose");
  ASSERT_EQ(b.module->contexteActif, 0);
  Entree("mnuFilePrint").setEnabled(true);
  Choisit("mnuFilePrint");
  EXPECT_EQ(b.imprimantes.demandes, 0);
  EXPECT_FALSE(b.pointeur.sablier);
}

}  // namespace
}  // namespace gastrelle::essai
