// The recipes window over headers that count wrong, and the number of recipes that it announces.

#include "doublures/Entetes.h"
#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Comptes : public FenetreRecettes {
 protected:
  /// Four recipes in "Potages", and a header that counts one.
  void PrepareUnCompteTropBas() {
    for (const char* titre : {"A", "B", "C"}) {
      b.AjouteRecette(2, titre);
    }
    PoseCompte(b, "GLR2.stp", 1);
  }
  QString Annonce(int onglet) {
    return Texte(Le(("txtAnnonce(" + std::to_string(onglet - 1) + ")").c_str()));
  }
};

TEST_F(Comptes, UnCompteTropBasNeMontreQueCeQuIlCompteEtNEcritRien) {
  PrepareUnCompteTropBas();
  Ouvre();
  Choisit(familles(), 0);
  EXPECT_EQ(Textes(recettes()), QStringList{Fr("Velouté")});
  CliqueOnglet(*fenetre, 5);
  EXPECT_EQ(Texte(Le("lblNbreRecette")), "Les 1 recettes");
  CliqueOnglet(*fenetre, 1);
  Choisit(familles(), 0);
  EXPECT_EQ(Textes(recettes()), QStringList{Fr("Velouté")});
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(Fiche(1).actif, 1);
}

TEST_F(Comptes, UneRecetteAjouteeHorsDuCompteFinitLeProgrammeApresSonEcriture) {
  PrepareUnCompteTropBas();
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Clique(Le("cmdValideAjouter"));
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR2.DAT 750+150", "écrit GLR2.DAT 0+150"));
  EXPECT_EQ(Rogne(Fiche(6).nomRecette.brut()), "Soupe");
  EXPECT_EQ(Fiche(1).actif, 2);
}

TEST_F(Comptes, UneFamilleAjouteeHorsDuCompteFinitLeProgrammeApresSonEcriture) {
  b.AjouteFamille("Desserts");
  PoseCompte(b, "GLR1.stp", 1);
  Ouvre(2);
  Clique(Le("Option1(0)"));
  Tape(Le("txtSaisieFamille"), "Poissons");
  Clique(Le("cmdValideAjouter"));
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR1.DAT 390+130", "écrit GLR1.DAT 0+130"));
  EXPECT_EQ(NomFamille(4), "Poissons");
  EXPECT_EQ(FicheFamille(1).actif, 2);
}

TEST_F(Comptes, UneFamilleSupprimeeEntreDeuxAutresLaisseLeursNumerosAuxTroisListes) {
  b.AjouteFamille("Desserts");
  EffaceFamille(b, b.AjouteFamille("Poissons"));
  b.AjouteFamille("Viandes");
  PoseCompte(b, "GLR1.stp", 3);
  OuvreEtParcourt();
  for (const char* nom : {"ComboFamilles", "ComboFamillesAjouter", "ComboFamillesModifier"}) {
    EXPECT_EQ(Textes(Le<QComboBox>(nom)), (QStringList{"Desserts", "Potages", "Viandes"})) << nom;
    EXPECT_THAT(DonneesDe(Le<QComboBox>(nom)), ElementsAre(3, 2, 5)) << nom;
  }
}

TEST_F(Comptes, LAnnonceSuitUnAjout) {
  OuvreEtParcourt();
  CliqueOnglet(*fenetre, 2);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Clique(Le("cmdValideAjouter"));
  for (int onglet = 1; onglet <= 5; ++onglet) {
    EXPECT_EQ(Annonce(onglet), "2\nrecettes") << onglet;
  }
}

TEST_F(Comptes, LAnnonceDitZeroQuandUneFamilleEmporteLaDerniereRecette) {
  b.AjouteFamille("Desserts");
  OuvreEtParcourt();
  Deplace(2, 3);
  Choisit(familles(), Fr("Desserts"));
  CliqueOnglet(*fenetre, 4);
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdSupprimer"));
  EXPECT_EQ(onglet(), 1);
  for (int onglet = 1; onglet <= 5; ++onglet) {
    EXPECT_EQ(Annonce(onglet), "0\nrecettes") << onglet;
  }
}

}  // namespace
}  // namespace gastrelle::essai
