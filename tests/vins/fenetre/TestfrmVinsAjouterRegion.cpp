// The tab "Ajouter" of the wines window: its two options, and a new region.

#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class AjouterUneRegion : public FenetreVins {
 protected:
  /// Opens the tab on "Une région d'origine".
  void OuvreSurLaRegion() {
    OuvreSurAbymes(2);
    Clique(Le("Option1(0)"));
  }
  void Ajoute(const QString& nom) {
    Tape(Le("txtSaisieRegion"), nom);
    Clique(Le("cmdValideAjouter"));
  }
  /// Fills the boxes of both options that can be filled, and chooses another region.
  void SaisitUnVin() {
    Tape(Le("txtSaisieNomVin"), "Chignin");
    Tape(Le("txtSaisieNoteAjouter"), "Vif");
    Choisit(Le<QComboBox>("ComboRegionVinAjouter"), 2);
  }
  void AttendPageVide() {
    EXPECT_EQ(TextesDe({"txtSaisieRegion", "txtSaisieNomVin", "txtSaisieNoteAjouter"}),
              (QStringList{"", "", ""}));
    EXPECT_EQ(Le<QComboBox>("ComboRegionVinAjouter").currentIndex(), 0);
  }
  QStringList actifs() {
    return Actifs({"Option1(0)", "Option1(1)", "txtSaisieRegion", "txtSaisieNomVin",
                   "ComboRegionVinAjouter", "txtSaisieNoteAjouter", "cmdValideAjouter",
                   "cmdEffacerAjouter"});
  }
  void AttendOptionRegion() {
    AttendPageVide();
    EXPECT_TRUE(estCoche("Option1(0)"));
    EXPECT_EQ(actifs(), (QStringList{"Option1(0)", "Option1(1)", "txtSaisieRegion",
                                     "cmdValideAjouter", "cmdEffacerAjouter"}));
    EXPECT_TRUE(aLeFocus("txtSaisieRegion"));
  }
  void AttendOptionVin() {
    AttendPageVide();
    EXPECT_TRUE(estCoche("Option1(1)"));
    EXPECT_EQ(actifs(),
              (QStringList{"Option1(0)", "Option1(1)", "txtSaisieNomVin", "ComboRegionVinAjouter",
                           "txtSaisieNoteAjouter", "cmdValideAjouter", "cmdEffacerAjouter"}));
    EXPECT_TRUE(aLeFocus("txtSaisieNomVin"));
  }
};

TEST_F(AjouterUneRegion, LOngletSOuvreSurUnVin) {
  OuvreSurAbymes(2);
  AttendOptionVin();
}

TEST_F(AjouterUneRegion, LOptionRegionVideLeVinEtLeFerme) {
  OuvreSurAbymes(2);
  SaisitUnVin();
  Clique(Le("Option1(0)"));
  AttendOptionRegion();
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(AjouterUneRegion, LOptionVinVideLaRegionEtLaFerme) {
  OuvreSurLaRegion();
  Tape(Le("txtSaisieRegion"), "Jura");
  Clique(Le("Option1(1)"));
  AttendOptionVin();
}

TEST_F(AjouterUneRegion, LesFlechesPassentDUneOptionALAutre) {
  OuvreSurAbymes(2);
  Tape(Le("txtSaisieNomVin"), "Chignin");
  fenetre->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  Le("Option1(1)").setFocus();
  Frappe(Qt::Key_Left);
  AttendPageVide();
  EXPECT_TRUE(estCoche("Option1(0)"));
  EXPECT_TRUE(Le("txtSaisieRegion").isEnabled());
}

TEST_F(AjouterUneRegion, LOptionDejaChoisieNeVideRien) {
  OuvreSurLaRegion();
  Tape(Le("txtSaisieRegion"), "Jura");
  Clique(Le("Option1(0)"));
  EXPECT_EQ(TexteDe("txtSaisieRegion"), "Jura");
}

TEST_F(AjouterUneRegion, LOngletGardeSonOptionEtOublieLaSaisie) {
  OuvreSurLaRegion();
  Tape(Le("txtSaisieRegion"), "Jura");
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  AttendOptionRegion();
  Clique(Le("Option1(1)"));
  SaisitUnVin();
  fenetre->Desactive();
  fenetre->Active();
  AttendOptionVin();
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(AjouterUneRegion, EntreDansLesCinqListesASaPlace) {
  AjouteAbymes(b);
  OuvreEtParcourt();
  CliqueOnglet(*fenetre, 2);
  Clique(Le("Option1(0)"));
  Ajoute(Fr("  Béarn "));
  for (const char* nom : {"ComboRegionVinAjouter", "ComboRegionVinModifier(0)",
                          "ComboRegionVinModifier(1)", "ComboRegionSupprimer"}) {
    auto& liste = Le<QComboBox>(nom);
    EXPECT_EQ(liste.count(), 29) << nom;
    EXPECT_EQ(Textes(liste).mid(0, 3), (QStringList{"Alpes", Fr("Béarn"), Fr("Région 002")}));
    EXPECT_EQ(liste.itemData(1).toInt(), 30) << nom;
  }
  auto& trier = Le<QComboBox>("ComboRegionVinTrier");
  EXPECT_EQ(trier.count(), 30);
  EXPECT_EQ(Textes(trier).mid(0, 3), (QStringList{"?", "Alpes", Fr("Béarn")}));
}

TEST_F(AjouterUneRegion, EcritLaRegionPuisLEntete) {
  OuvreSurLaRegion();
  b.disque.OublieJournal();
  Ajoute(Fr("  Béarn "));
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV1.DAT", "longueur GLV1.DAT", EcritRegion(30), EcritRegion(1),
                          "longueur GLV1.DAT", ParcourtRegions(30)));
  RecRegion attendue;
  attendue.actif = -1;
  attendue.nomRegion = "Béarn"_1252;
  EXPECT_EQ(Octets(FicheRegion(b, 30)), Octets(attendue));
  EXPECT_EQ(b.dossier.Lit("GLV1.DAT").size(), 30U * 66U);
  EXPECT_EQ(FicheRegion(b, 1).actif, 29);
}

TEST_F(AjouterUneRegion, RevientALaListeOuLeVinResteLeMeme) {
  OuvreSurAbymes();
  Choisit(vins(), 5);
  CliqueOnglet(*fenetre, 2);
  Clique(Le("Option1(0)"));
  const QStringList avant = vinAffiche();
  Ajoute("Jura");
  AttendLaListe();
  EXPECT_EQ(vinAffiche(), avant);
  EXPECT_EQ(numeroAffiche(), 6);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  CliqueOnglet(*fenetre, 2);
  AttendOptionRegion();
}

TEST_F(AjouterUneRegion, UnNomVideBipeSansMessage) {
  OuvreSurLaRegion();
  b.disque.OublieJournal();
  Le("cmdValideAjouter").setFocus();
  Ajoute("   ");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(TexteDe("txtSaisieRegion"), "");
  EXPECT_TRUE(aLeFocus("txtSaisieRegion"));
  AttendRienDeFait(2);
}

TEST_F(AjouterUneRegion, UneRegionQuiExisteEstRefuseeAvecUnBipQuelleQueSoitLaCasse) {
  OuvreSurLaRegion();
  b.disque.OublieJournal();
  ExigePointeurNormalAuxMessages();
  Ajoute(Fr(" RÉGION 002 "));
  AttendMessage("Cette région existe déjà !");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(TexteDe("txtSaisieRegion"), Fr("RÉGION 002"));
  EXPECT_TRUE(aLeFocus("txtSaisieRegion"));
  AttendRienDeFait(2);
}

TEST_F(AjouterUneRegion, LeRefusPrecedeLaRechercheDuFichier) {
  OuvreSurLaRegion();
  b.dossier.Supprime("GLV1.DAT");
  Ajoute("alpes");
  AttendMessage("Cette région existe déjà !");
  EXPECT_FALSE(FinVue());
}

TEST_F(AjouterUneRegion, UneRegionQuiVientDEtreAjouteeEstRefusee) {
  OuvreSurLaRegion();
  Ajoute("Jura");
  CliqueOnglet(*fenetre, 2);
  Ajoute("jura");
  AttendMessage("Cette région existe déjà !");
}

TEST_F(AjouterUneRegion, SoixanteDixLettresSeTapentEtSoixanteQuatreRestent) {
  OuvreSurLaRegion();
  Tape(Le("txtSaisieRegion"), QString(70, 'r'));
  EXPECT_EQ(TexteDe("txtSaisieRegion"), QString(70, 'r'));
  Clique(Le("cmdValideAjouter"));
  EXPECT_EQ(NomRegion(b, 30), std::string(64, 'r'));
  CliqueOnglet(*fenetre, 2);
  EXPECT_GE(Le<QComboBox>("ComboRegionVinAjouter").findText(QString(64, 'r')), 0);
}

TEST_F(AjouterUneRegion, DeuxRegionsEgalesSurSoixanteQuatreLettresPassentEtSeLisentPareilles) {
  OuvreSurLaRegion();
  Ajoute(QString(64, 'r') + "un");
  CliqueOnglet(*fenetre, 2);
  Ajoute(QString(64, 'r') + "deux");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(Octets(FicheRegion(b, 31)), Octets(FicheRegion(b, 30)));
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(Textes(Le<QComboBox>("ComboRegionVinAjouter")).count(QString(64, 'r')), 2);
  Ajoute(QString(64, 'R'));
  AttendMessage("Cette région existe déjà !");
}

TEST_F(AjouterUneRegion, LaBoitePrendCentVingtHuitLettres) {
  OuvreSurLaRegion();
  Tape(Le("txtSaisieRegion"), QString(130, 'r'));
  EXPECT_EQ(TexteDe("txtSaisieRegion"), QString(128, 'r'));
}

TEST_F(AjouterUneRegion, SonFichierDisparuFinitLeProgramme) {
  OuvreSurLaRegion();
  b.dossier.Supprime("GLV1.DAT");
  ExigePointeurNormalAuxMessages();
  Ajoute("Jura");
  AttendFinFatale(Donnees::GLV1);
  EXPECT_EQ(onglet(), 2);
}

TEST_F(AjouterUneRegion, UneRelectureQuiEchoueFinitLeProgrammeApresLEcriture) {
  OuvreSurLaRegion();
  b.disque.EchoueSur("lit GLV1.DAT", Panne::entreeSortie);
  Ajoute("Jura");
  AttendFinFatale();
  EXPECT_EQ(onglet(), 2);
  EXPECT_EQ(NomRegion(b, 30), "Jura");
}

TEST_F(AjouterUneRegion, FinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      2, 2, PrepareAbymes,
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option1(0)"));
        Tape(Trouve(uneFenetre, "txtSaisieRegion"), "Jura");
        Clique(Trouve(uneFenetre, "cmdValideAjouter"));
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(autre.dossier.Lit("GLV1.DAT").size(), (n > 1 ? 30U : 29U) * 66U);
        EXPECT_EQ(FicheRegion(autre, 1).actif, 28);
      });
}

TEST_F(AjouterUneRegion, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurLaRegion();
  AttendSablier([&] { Ajoute("Jura"); });
}

}  // namespace
}  // namespace gastrelle::essai
