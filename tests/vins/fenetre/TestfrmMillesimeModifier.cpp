// The tab "Modifier" of the vintage chart, through its controls.

#include "vins/fenetre/FenetreMillesime.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string modifier = "Modifier";

class ModifierUnMillesime : public FenetreMillesime {
 protected:
  /// Opens the tab on a year: 1934 is graded 0, 1, 2, 3, 4, 5, 0, 1, 2.
  void OuvreSur(int annee) {
    Ouvre();
    CliqueAnnee(annee);
    CliqueOnglet(*fenetre, 3);
    b.disque.OublieJournal();
  }
  /// Opens the tab on 1928 with these values on file, 1929 ungraded behind it.
  void OuvreAvec(const Classement& classement) {
    b.dossier.Ecrit("GLMV.DAT", Octets(Fiche(classement)) + AnneesVides(1));
    Ouvre(3);
  }
};

TEST_F(ModifierUnMillesime, MontreLesDegresDeLAnneeChoisie) {
  OuvreSur(1934);
  EXPECT_EQ(TexteDe("lblMillesimeModifier"), Fr("Millésime : 1934"));
  EXPECT_THAT(Choisies(modifier), ElementsAre(5, 0, 1, 2, 3, 4, 5, 0, 1));
  EXPECT_EQ(TexteDe("txtAnnonce(2)"), Fr("95\nmillésimes"));
  EXPECT_EQ(b.module->contexteActif, 53);
  EXPECT_EQ(Focus(), "OptionBordeauxRougesModifier(5)");
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ModifierUnMillesime, LitLAnneeEnEntrant) {
  Ouvre();
  CliqueAnnee(1934);
  b.disque.OublieJournal();
  CliqueOnglet(*fenetre, 3);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("longueur GLMV.DAT", "existe GLMV.DAT", "lit GLMV.DAT 108+18"));
}

TEST_F(ModifierUnMillesime, EcritLesDegresASaPlace) {
  OuvreSur(1934);
  std::string attendu = b.dossier.Lit("GLMV.DAT");
  attendu.replace(6 * longueurAnnee, longueurAnnee, Octets(Fiche({5, 1, 2, 3, 4, 5, 0, 1, 0})));
  Clique(Option(0, 4, modifier));
  Clique(Option(8, 5, modifier));
  Clique(Le("cmdValideModifier"));
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLMV.DAT 108+18"));
  EXPECT_EQ(b.dossier.Lit("GLMV.DAT"), attendu);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ModifierUnMillesime, RevientALaListeDuMemeCruSurLaMemeAnneeEnHaut) {
  Ouvre();
  Choisit(crus(), 5);
  CliqueAnnee(1950);
  CliqueOnglet(*fenetre, 3);
  Clique(Option(5, 2, modifier));
  Clique(Le("cmdValideModifier"));
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(crus().currentIndex(), 5);
  EXPECT_EQ(Selection(), QStringList{"1950"});
  EXPECT_EQ(RangeeDuHaut(), 23);
  EXPECT_EQ(Rangee(23), (QStringList{"1950", "", "", "x", "", ""}));
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(TexteDe("lblMillesimeModifier"), Fr("Millésime : 1950"));
  EXPECT_EQ(Choisies(modifier)[5], 2);
}

TEST_F(ModifierUnMillesime, SansRienChangerLaMemeAnneeEstReecrite) {
  OuvreSur(1934);
  const std::string avant = b.dossier.Lit("GLMV.DAT");
  Clique(Le("cmdValideModifier"));
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLMV.DAT 108+18"));
  EXPECT_EQ(b.dossier.Lit("GLMV.DAT"), avant);
}

TEST_F(ModifierUnMillesime, ReinitialiserRevientACeQuiAEteLu) {
  OuvreSur(1934);
  Clique(Option(0, 0, modifier));
  Clique(Option(3, 5, modifier));
  b.dossier.Ecrit("GLMV.DAT", AnneesVides(95));  // it isn't read again
  b.disque.OublieJournal();
  Clique(Le("cmdEffacerModifier"));
  EXPECT_THAT(Choisies(modifier), ElementsAre(5, 0, 1, 2, 3, 4, 5, 0, 1));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(ModifierUnMillesime, RevenirSurLOngletAbandonneCeQuiEstChoisi) {
  OuvreSur(1934);
  Clique(Option(0, 0, modifier));
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 3);
  EXPECT_THAT(Choisies(modifier), ElementsAre(5, 0, 1, 2, 3, 4, 5, 0, 1));
}

TEST_F(ModifierUnMillesime, RevenirALaFenetreRelitLAnnee) {
  OuvreSur(1934);
  Clique(Option(0, 0, modifier));
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(onglet(), 3);
  EXPECT_THAT(Choisies(modifier), ElementsAre(5, 0, 1, 2, 3, 4, 5, 0, 1));
}

TEST_F(ModifierUnMillesime, UneValeurHorsDeLEchelleNAAucunBouton) {
  OuvreAvec({-1, 6, 32767, -32768, 0, 1, 5, 0, 0});
  EXPECT_THAT(Choisies(modifier), ElementsAre(-1, -1, -1, -1, 5, 0, 4, 5, 5));
  EXPECT_EQ(Focus(), "OptionBordeauxRougesModifier(0)");
}

TEST_F(ModifierUnMillesime, UneValeurHorsDeLEchelleNePrendRienDUneAutreAnnee) {
  b.dossier.Ecrit("GLMV.DAT", Octets(Fiche({3, 3, 3, 3, 3, 3, 3, 3, 3})) + Octets(Fiche({9})));
  Ouvre(3);
  CliqueOnglet(*fenetre, 1);
  CliqueAnnee(1929);
  CliqueOnglet(*fenetre, 3);
  EXPECT_THAT(Choisies(modifier), ElementsAre(-1, 5, 5, 5, 5, 5, 5, 5, 5));
}

TEST_F(ModifierUnMillesime, UneValeurHorsDeLEchelleResteTantQuOnNeChoisitRien) {
  OuvreAvec({-1, 6, 0, 0, 0, 0, 0, 0, 0});
  Clique(Option(1, 0, modifier));
  Clique(Le("cmdValideModifier"));
  EXPECT_EQ(OctetsAnnee(b, 1), Octets(Fiche({-1, 1, 0, 0, 0, 0, 0, 0, 0})));
}

TEST_F(ModifierUnMillesime, ReinitialiserOteAussiUnBoutonChoisiHorsDeLEchelle) {
  OuvreAvec({-1, 0, 0, 0, 0, 0, 0, 0, 0});
  Clique(Option(0, 3, modifier));
  Clique(Le("cmdEffacerModifier"));
  EXPECT_EQ(Choisies(modifier)[0], -1);
  Clique(Option(0, 1, modifier));
  Clique(Option(0, 2, modifier));
  EXPECT_EQ(Choisies(modifier)[0], 2);  // one only, as before
}

TEST_F(ModifierUnMillesime, ChaqueBoutonDitCruDegreEtAnnee) {
  OuvreSur(1934);
  EXPECT_EQ(Dit(Option(2, 1, modifier), QAccessible::Name),
            Fr("Bourgognes rouges : Année moyenne, 1934"));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Option(2, 1, modifier))->role(),
            QAccessible::RadioButton);
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(&Option(2, 1, modifier))->state().checked);
}

TEST_F(ModifierUnMillesime, LeClavierSuffitPourReclasserUneAnnee) {
  OuvreActive();
  Frappe("1934");
  Frappe(Qt::Key_PageUp, Qt::ControlModifier);
  ASSERT_EQ(onglet(), 3);
  Frappe(Qt::Key_Down);
  Frappe(Qt::Key_Down);
  EXPECT_EQ(Focus(), "OptionBourgognesRougesModifier(1)");
  Frappe(Qt::Key_Right);
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(Selection(), QStringList{"1934"});
  EXPECT_EQ(OctetsAnnee(b, 7), Octets(Fiche({0, 1, 3, 3, 4, 5, 0, 1, 2})));
}

TEST_F(ModifierUnMillesime, UneEcritureQuiEchoueFinitLeProgramme) {
  for (const Maniere maniere : {Maniere::rienFait, Maniere::moitieEcrite}) {
    b.Redemarre();
    b.messages.vus.clear();
    fenetre.reset();
    OuvreSur(1934);
    b.disque.EchoueALaNiemeEcriture(1, Panne::disquePlein, maniere);
    Clique(Le("cmdValideModifier"));
    AttendFinFatale();
    EXPECT_EQ(OctetsAnnee(b, 8), Octets(Fiche({1, 2, 3, 4, 5, 0, 1, 2, 3})));
    b.disque.Guerit();
  }
}

TEST_F(ModifierUnMillesime, LeFichierDisparuFinitLeProgrammeEnEntrant) {
  Ouvre();
  b.dossier.Supprime("GLMV.DAT");
  ExigePointeurNormalAuxMessages();
  CliqueOnglet(*fenetre, 3);
  AttendFinFatale(Donnees::GLMV);
}

TEST_F(ModifierUnMillesime, LeFichierDisparuFinitLeProgrammeEnValidant) {
  OuvreSur(1934);
  b.dossier.Supprime("GLMV.DAT");
  Clique(Le("cmdValideModifier"));
  AttendFinFatale(Donnees::GLMV);
}

TEST_F(ModifierUnMillesime, UneLectureQuiEchoueFinitLeProgramme) {
  Ouvre();
  b.disque.EchoueSur("lit GLMV.DAT", Panne::entreeSortie);
  CliqueOnglet(*fenetre, 3);
  AttendFinFatale();
}

TEST_F(ModifierUnMillesime, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSur(1934);
  AttendSablier([&] { Clique(Le("cmdValideModifier")); });
}

}  // namespace
}  // namespace gastrelle::essai
