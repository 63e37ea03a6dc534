// The tab "Ajouter" of the vintage chart, and the years that can't be added.

#include "vins/fenetre/FenetreMillesime.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* refus =
    "On ne peut ajouter une année au delà\r\nde celle de l'année système en cours.";

class AjouterUnMillesime : public FenetreMillesime {
 protected:
  void AttendRefus() {
    AttendMessage(refus, Icone::critique);
    EXPECT_EQ(onglet(), 1);
    EXPECT_TRUE(Le("Frame1(1)").isVisible());
    EXPECT_EQ(b.module->contexteActif, 51);
    EXPECT_THAT(b.son.joues, IsEmpty());
    EXPECT_THAT(b.disque.changements(), IsEmpty());
  }
  /// One button in each area: 0 to 5, then again.
  void ChoisitUnPartout() {
    for (std::size_t cru = 0; cru < nomsOptions.size(); ++cru) {
      Clique(Option(cru, static_cast<int>(cru % 6)));
    }
  }
};

TEST_F(AjouterUnMillesime, OffreLAnneeSuivanteSansRienDeClasse) {
  Ouvre(2);
  EXPECT_EQ(TexteDe("lblMillesime"), Fr("Millésime : 2023"));
  EXPECT_THAT(Choisies(), Each(5));
  EXPECT_EQ(TexteDe("txtAnnonce(1)"), Fr("95\nmillésimes"));
  EXPECT_EQ(b.module->contexteActif, 52);
  EXPECT_EQ(Focus(), "OptionBordeauxRouges(5)");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(AjouterUnMillesime, EcritLesNeufDegresALaFin) {
  Ouvre(2);
  const std::string avant = b.dossier.Lit("GLMV.DAT");
  ChoisitUnPartout();
  b.disque.OublieJournal();
  Clique(Le("cmdValideAjouter"));
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLMV.DAT 1710+18"));
  EXPECT_EQ(b.disque.journal().front(), "existe GLMV.DAT");
  EXPECT_EQ(b.dossier.Lit("GLMV.DAT"), avant + Octets(Fiche({1, 2, 3, 4, 5, 0, 1, 2, 3})));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(AjouterUnMillesime, SansRienChoisirLAnneeNEstPasClassee) {
  Ouvre(2);
  Clique(Le("cmdValideAjouter"));
  EXPECT_EQ(OctetsAnnee(b, 96), AnneesVides(1));
  EXPECT_EQ(Rangee(96), (QStringList{"2023", "", "", "", "", ""}));
}

TEST_F(AjouterUnMillesime, RevientALaListeSurLAnneeNeuveDuPremierCru) {
  Ouvre();
  Choisit(crus(), 6);
  CliqueOnglet(*fenetre, 2);
  Clique(Option(0, 4));
  Clique(Le("cmdValideAjouter"));
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(crus().currentIndex(), 0);
  EXPECT_EQ(grille().model()->rowCount(), 96);
  EXPECT_EQ(Rangee(96), (QStringList{"2023", "", "", "", "", "x"}));
  EXPECT_EQ(Selection(), QStringList{"2023"});
  EXPECT_TRUE(grille().viewport()->rect().contains(grille().visualRect(grille().currentIndex())));
  EXPECT_EQ(grille().verticalScrollBar()->value(), grille().verticalScrollBar()->maximum());
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), Fr("96\nmillésimes"));
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(TexteDe("lblMillesimeModifier"), Fr("Millésime : 2023"));
}

TEST_F(AjouterUnMillesime, LePremierCruEstReluDeuxFois) {
  Ouvre(2);
  Clique(Le("cmdValideAjouter"));
  const auto& journal = b.disque.journal();
  EXPECT_EQ(std::count(journal.begin(), journal.end(), "lit GLMV.DAT 0+18"), 2);
}

TEST_F(AjouterUnMillesime, UneAnneeAlaFois) {
  Ouvre();
  for (const char* annee : {"2023", "2024", "2025"}) {
    CliqueOnglet(*fenetre, 2);
    EXPECT_EQ(TexteDe("lblMillesime"), Fr("Millésime : ") + annee);
    Clique(Le("cmdValideAjouter"));
    EXPECT_EQ(Selection(), QStringList{annee});
  }
  b.disque.OublieJournal();
  CliqueOnglet(*fenetre, 2);
  AttendRefus();
}

TEST_F(AjouterUnMillesime, CtrlEntreeValide) {
  OuvreActive(2);
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(Selection(), QStringList{"2023"});
}

TEST_F(AjouterUnMillesime, RevenirRemetToutANonClasse) {
  Ouvre(2);
  ChoisitUnPartout();
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  EXPECT_THAT(Choisies(), Each(5));
}

TEST_F(AjouterUnMillesime, RevenirALaFenetreRemetToutANonClasse) {
  Ouvre(2);
  ChoisitUnPartout();
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(onglet(), 2);
  EXPECT_THAT(Choisies(), Each(5));
}

TEST_F(AjouterUnMillesime, LAnneeEnCoursEstRefuseeMemeLe31Decembre) {
  Date(2023, 12, 31);
  Ouvre(2);
  AttendRefus();
}

TEST_F(AjouterUnMillesime, LAnneeSAjouteDesLeMoisDeJanvierSuivant) {
  Date(2024, 1, 1);
  Ouvre(2);
  EXPECT_EQ(onglet(), 2);
  EXPECT_EQ(TexteDe("lblMillesime"), Fr("Millésime : 2023"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(AjouterUnMillesime, UneCarteQuiDepasseLAnneeEnCoursEstRefusee) {
  Date(2010, 6, 1);
  Ouvre(2);
  AttendRefus();
}

TEST_F(AjouterUnMillesime, LeRefusVientAussiDeLOngletModifierEtMontreLaListe) {
  Date(2023, 12, 31);
  Ouvre();
  CliqueAnnee(1990);
  CliqueOnglet(*fenetre, 3);
  CliqueOnglet(*fenetre, 2);
  AttendRefus();
  EXPECT_EQ(Selection(), QStringList{"1990"});
}

TEST_F(AjouterUnMillesime, PendantLeMessageRienNAEncoreChange) {
  Date(2023, 12, 31);
  Ouvre(3);
  b.pointeur.Sablier();
  bool vu = false;
  b.messages.pendant = [&] {
    vu = true;
    EXPECT_TRUE(Le("Frame1(3)").isVisible());
    EXPECT_EQ(b.module->contexteActif, 53);
    EXPECT_FALSE(b.pointeur.sablier);
  };
  CliqueOnglet(*fenetre, 2);
  EXPECT_TRUE(vu);
  EXPECT_EQ(onglet(), 1);
}

TEST_F(AjouterUnMillesime, LeRefusVientAussiDuClavier) {
  Date(2023, 12, 31);
  OuvreActive();
  Frappe(Qt::Key_PageDown, Qt::ControlModifier);
  AttendRefus();
  Frappe(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 3);
}

TEST_F(AjouterUnMillesime, LaDateEstCelleDuMomentDuClic) {
  Date(2023, 12, 31);
  Ouvre(2);
  EXPECT_EQ(onglet(), 1);
  Date(2024, 1, 1);
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(onglet(), 2);
}

TEST_F(AjouterUnMillesime, CEstLaGrilleQuiCompteLesAnneesPasLeFichier) {
  Date(2024, 3, 1);
  Ouvre();
  b.dossier.Ecrit("GLMV.DAT", AnneesVides(200));
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(onglet(), 2);
  EXPECT_EQ(TexteDe("lblMillesime"), Fr("Millésime : 2023"));
  EXPECT_EQ(TexteDe("txtAnnonce(1)"), Fr("200\nmillésimes"));
  Clique(Le("cmdValideAjouter"));
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLMV.DAT 3600+18"));
}

TEST_F(AjouterUnMillesime, LesFlechesChoisissentDansUnCruEtPassentDUnCruALAutre) {
  OuvreActive(2);
  Frappe(Qt::Key_Left);
  EXPECT_EQ(Focus(), "OptionBordeauxRouges(4)");
  EXPECT_TRUE(Option(0, 4).isChecked());
  Frappe(Qt::Key_Left);
  Frappe(Qt::Key_Right);
  EXPECT_TRUE(Option(0, 4).isChecked());
  Frappe(Qt::Key_Down);
  EXPECT_EQ(Focus(), "OptionBordeauxBlancs(5)");
  Frappe(Qt::Key_Up);
  EXPECT_EQ(Focus(), "OptionBordeauxRouges(4)");
  Frappe(Qt::Key_Up);  // the first one
  EXPECT_EQ(Focus(), "OptionBordeauxRouges(4)");
  EXPECT_THAT(Choisies(), ElementsAre(4, 5, 5, 5, 5, 5, 5, 5, 5));
}

TEST_F(AjouterUnMillesime, LesFlechesNeSortentPasDesNeufCrus) {
  OuvreActive(2);
  for (int i = 0; i < 12; ++i) {
    Frappe(Qt::Key_Down);
  }
  EXPECT_EQ(Focus(), "OptionCrusDuBeaujolais(5)");
  for (int i = 0; i < 8; ++i) {
    Frappe(Qt::Key_Left);
  }
  EXPECT_EQ(Focus(), "OptionCrusDuBeaujolais(0)");
  EXPECT_THAT(Choisies(), ElementsAre(5, 5, 5, 5, 5, 5, 5, 5, 0));
}

TEST_F(AjouterUnMillesime, LaToucheTabVaDUnCruALAutreParLeBoutonChoisi) {
  OuvreActive(2);
  Clique(Option(1, 2));
  Option(0, 5).setFocus();
  Frappe(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "OptionBordeauxBlancs(2)");
  Frappe(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "OptionBourgognesRouges(5)");
  Frappe(Qt::Key_Backtab);
  EXPECT_EQ(Focus(), "OptionBordeauxBlancs(2)");
}

TEST_F(AjouterUnMillesime, LaCleDesVignoblesMeneAuBoutonChoisiDuPremier) {
  OuvreActive(2);
  Clique(Option(0, 1));
  Le("cmdAideAjouter").setFocus();
  Frappe(Qt::Key_B, Qt::AltModifier);
  EXPECT_EQ(Focus(), "OptionBordeauxRouges(1)");
  EXPECT_TRUE(Option(0, 1).isChecked());
}

TEST_F(AjouterUnMillesime, TouteLaCaseDUnBoutonSeClique) {
  Ouvre(2);
  QAbstractButton& option = Option(3, 2);
  EXPECT_GE(option.width(), 60);
  QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(option.width() - 2, 1));
  EXPECT_TRUE(option.isChecked());
}

TEST_F(AjouterUnMillesime, ChaqueBoutonDitCruDegreEtAnnee) {
  Ouvre(2);
  EXPECT_EQ(Dit(Option(0, 0), QAccessible::Name), Fr("Bordeaux rouges : Petite année, 2023"));
  EXPECT_EQ(Dit(Option(4, 4), QAccessible::Name),
            Fr("Crus des Côtes du Rhône : Exceptionnel, 2023"));
  EXPECT_EQ(Dit(Option(8, 5), QAccessible::Name), Fr("Crus du Beaujolais : Non classé, 2023"));
  Clique(Le("cmdValideAjouter"));
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(Dit(Option(5, 3), QAccessible::Name), Fr("Alsace : Grande année, 2024"));
}

TEST_F(AjouterUnMillesime, UneEcritureQuiEchoueFinitLeProgramme) {
  for (const Maniere maniere : {Maniere::rienFait, Maniere::moitieEcrite}) {
    b.Redemarre();
    b.messages.vus.clear();
    fenetre.reset();
    Ouvre(2);
    const std::string avant = b.dossier.Lit("GLMV.DAT");
    b.disque.EchoueALaNiemeEcriture(1, Panne::disquePlein, maniere);
    Clique(Le("cmdValideAjouter"));
    AttendFinFatale();
    EXPECT_EQ(b.dossier.Lit("GLMV.DAT").substr(0, avant.size()), avant);
    b.disque.Guerit();
  }
}

TEST_F(AjouterUnMillesime, LeFichierDisparuFinitLeProgrammeSansRienEcrire) {
  Ouvre(2);
  b.dossier.Supprime("GLMV.DAT");
  ExigePointeurNormalAuxMessages();
  Clique(Le("cmdValideAjouter"));
  AttendFinFatale(Donnees::GLMV);
}

TEST_F(AjouterUnMillesime, LeSablierEstLaDesLePremierAppelDuDisque) {
  Ouvre(2);
  AttendSablier([&] { Clique(Le("cmdValideAjouter")); });
}

}  // namespace
}  // namespace gastrelle::essai
