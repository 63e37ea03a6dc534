// The tab "Trier" of the wines window, through its controls.

#include <utility>

#include <QListView>
#include <QTest>

#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class TrierLesVins : public FenetreVins {
 protected:
  /// Opens the tab with three wines in "Alpes" (29): "arbin" (566), "Abymes" (565) and
  /// "Zone" (567), and none in "Béarn" (30).
  void OuvreSurTroisVins() {
    AjouteAbymes(b);
    b.AjouteVin(Vin("arbin", 29));
    b.AjouteVin(Vin("Zone", 29));
    b.AjouteRegion("Béarn"_1252);
    Ouvre(5);
  }
  /// The same with the three wines listed and "arbin" selected.
  void OuvreSurArbin() {
    OuvreSurTroisVins();
    Choisit(regions(), "Alpes");
    QTest::keyClick(&liste(), Qt::Key_Down);
    b.disque.OublieJournal();
  }
  QComboBox& regions() { return Le<QComboBox>("ComboRegionVinTrier"); }
  QListView& liste() { return Le<QListView>("lstTriVin"); }
  int choisi() { return liste().currentIndex().data(Qt::UserRole).toInt(); }
  void DoubleClique(int rang) {
    const QPoint ou = liste().visualRect(liste().model()->index(rang, 0)).center();
    QTest::mouseClick(liste().viewport(), Qt::LeftButton, {}, ou);
    QTest::mouseDClick(liste().viewport(), Qt::LeftButton, {}, ou);
  }
  /// What can be seen of the page.
  QStringList Visibles() {
    QStringList vus;
    for (const char* nom : {"Label2(10)", "ComboRegionVinTrier", "Label2(11)", "lstTriVin",
                            "PictureCarte", "cmdActiver", "cmdMaCave", "cmdAideTrier"}) {
      if (Le(nom).isVisible()) {
        vus << nom;
      }
    }
    return vus;
  }
  QRect Place(const char* nom) { return {Le(nom).mapTo(fenetre.get(), QPoint()), Le(nom).size()}; }
  void AttendLaCarteSeule() {
    EXPECT_EQ(Visibles(),
              (QStringList{"Label2(10)", "ComboRegionVinTrier", "PictureCarte", "cmdAideTrier"}));
    EXPECT_EQ(regions().currentIndex(), 0);
    EXPECT_EQ(regions().currentText(), "?");
    EXPECT_THAT(Textes(liste()), IsEmpty());
  }
  void AttendLesVins() {
    EXPECT_EQ(Visibles(),
              (QStringList{"Label2(10)", "ComboRegionVinTrier", "Label2(11)", "lstTriVin",
                           "PictureCarte", "cmdActiver", "cmdMaCave", "cmdAideTrier"}));
    EXPECT_TRUE(aLeFocus("lstTriVin"));
    EXPECT_EQ(liste().currentIndex().row(), 0);
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// "arbin" is still selected among the wines of its region, which wasn't read anew.
  void AttendArbin() {
    EXPECT_EQ(onglet(), 5);
    EXPECT_EQ(regions().currentText(), "Alpes");
    EXPECT_EQ(Textes(liste()), (QStringList{"Abymes", "arbin", "Zone"}));
    EXPECT_EQ(choisi(), 566);
    EXPECT_THAT(b.disque.journal(), IsEmpty());
  }
  /// A wine of "Alpes" on file, selected here, which the list of all wines doesn't hold.
  void ChoisitUnVinInconnu() {
    OuvreSurAbymes(5);
    RecVin nouveau = Vin("Zone", 29);
    nouveau.actif = -1;
    b.module->bufVin.Ecrit(566, nouveau);
    b.module->bufVin.nbActifs() = 565;
    Choisit(regions(), "Alpes");
    QTest::keyClick(&liste(), Qt::Key_Down);
    ASSERT_EQ(choisi(), 566);
  }
};

TEST_F(TrierLesVins, CommenceSansRegionLaCarteSeule) {
  OuvreSurTroisVins();
  AttendLaCarteSeule();
  EXPECT_EQ(Textes(regions()).mid(0, 4),
            (QStringList{"?", "Alpes", Fr("Béarn"), Fr("Région 002")}));
  EXPECT_EQ(regions().count(), 30);
  EXPECT_EQ(regions().itemData(0).toInt(), 0);
  EXPECT_EQ(regions().itemData(1).toInt(), 29);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(TrierLesVins, LePointDInterrogationPrecedeToutNomDeRegion) {
  b.AjouteRegion("!Avant");
  Ouvre(5);
  EXPECT_EQ(Textes(regions()).mid(0, 2), (QStringList{"?", "!Avant"}));
}

TEST_F(TrierLesVins, ListeLesVinsDeLaRegionDansLOrdreAlphabetique) {
  OuvreSurTroisVins();
  Choisit(regions(), "Alpes");
  AttendLesVins();
  EXPECT_EQ(Textes(liste()), (QStringList{"Abymes", "arbin", "Zone"}));
  EXPECT_EQ(choisi(), 565);
  EXPECT_EQ(liste().model()->index(1, 0).data(Qt::UserRole).toInt(), 566);
  EXPECT_TRUE(Le("cmdActiver").isEnabled());
  EXPECT_TRUE(Le("cmdMaCave").isEnabled());
}

TEST_F(TrierLesVins, LaCarteTientLaPlaceDeLaListePuisSeMetASaDroite) {
  OuvreSurTroisVins();
  QApplication::processEvents();
  const QRect seule = Place("PictureCarte");
  Choisit(regions(), "Alpes");
  QApplication::processEvents();
  EXPECT_EQ(seule.left(), Place("lstTriVin").left());
  EXPECT_GT(Place("PictureCarte").left(), Place("lstTriVin").right());
  EXPECT_EQ(seule.right(), Place("PictureCarte").right());
  Choisit(regions(), 0);
  QApplication::processEvents();
  EXPECT_EQ(Place("PictureCarte"), seule);
}

TEST_F(TrierLesVins, UneRegionSansVinLeDitDansLaListe) {
  OuvreSurTroisVins();
  Choisit(regions(), Fr("Béarn"));
  AttendLesVins();
  EXPECT_EQ(Textes(liste()), QStringList{Fr("Aucun vin mémorisé")});
  EXPECT_EQ(choisi(), 0);
  EXPECT_FALSE(Le("cmdActiver").isEnabled());
  EXPECT_FALSE(Le("cmdMaCave").isEnabled());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  Choisit(regions(), "Alpes");
  EXPECT_TRUE(Le("cmdActiver").isEnabled());
  EXPECT_TRUE(Le("cmdMaCave").isEnabled());
}

TEST_F(TrierLesVins, LaLigneQuiDitQuIlNYARienNeMeneNullePart) {
  OuvreSurTroisVins();
  Choisit(regions(), Fr("Béarn"));
  DoubleClique(0);
  QTest::keyClick(&liste(), Qt::Key_Return);
  EXPECT_EQ(onglet(), 5);
  EXPECT_FALSE(FinVue());
}

TEST_F(TrierLesVins, LePointDInterrogationRendLaCarteSansRienLire) {
  OuvreSurArbin();
  Choisit(regions(), 0);
  AttendLaCarteSeule();
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(TrierLesVins, RevenirSurLOngletOuALaFenetreRepartSansRegion) {
  OuvreSurArbin();
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 5);
  AttendLaCarteSeule();
  Choisit(regions(), "Alpes");
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(onglet(), 5);
  AttendLaCarteSeule();
}

TEST_F(TrierLesVins, LaFicheDeTravailResteSurLeDernierVinLu) {
  OuvreSurTroisVins();
  EXPECT_EQ(Rogne(b.module->bufVin.courant().nomVin.brut()), "Abymes");
  Choisit(regions(), Fr("Béarn"));
  EXPECT_EQ(Octets(b.module->bufVin.courant()), Octets(FicheVin(b, 567)));
  CliqueOnglet(*fenetre, 1);
  EXPECT_EQ(vinAffiche(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
  EXPECT_EQ(Octets(b.module->bufVin.courant()), Octets(FicheVin(b, 567)));
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(Octets(b.module->bufVin.courant()), Octets(FicheVin(b, 565)));
}

TEST_F(TrierLesVins, LeParcoursSArreteAuCompteEtNeLeReparePas) {
  OuvreSurTroisVins();
  b.module->bufVin.nbActifs() = 564;
  Choisit(regions(), "Alpes");
  EXPECT_EQ(Textes(liste()), QStringList{"Abymes"});
  EXPECT_EQ(Octets(b.module->bufVin.courant()), Octets(FicheVin(b, 565)));
  b.module->bufVin.nbActifs() = 700;
  Choisit(regions(), "Alpes");
  EXPECT_EQ(Textes(liste()), (QStringList{"Abymes", "arbin", "Zone"}));
  EXPECT_EQ(b.module->bufVin.nbActifs(), 700);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(TrierLesVins, UnVinSupprimeNEstPasListe) {
  OuvreSurTroisVins();
  RecVin parti = FicheVin(b, 566);
  parti.actif = 0;
  b.module->bufVin.Ecrit(566, parti);
  Choisit(regions(), "Alpes");
  EXPECT_EQ(Textes(liste()), (QStringList{"Abymes", "Zone"}));
}

TEST_F(TrierLesVins, LesVinsSeLisentSansChercherLeurFichier) {
  OuvreSurTroisVins();
  b.dossier.Supprime("GLV2.DAT");
  Choisit(regions(), "Alpes");
  EXPECT_THAT(b.disque.journal(), ElementsAre("longueur GLV2.DAT", ParcourtVins(567)));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(TrierLesVins, UneLectureQuiEchoueFinitLeProgramme) {
  OuvreSurTroisVins();
  b.disque.EchoueSur("lit GLV2.DAT", Panne::entreeSortie);
  ExigePointeurNormalAuxMessages();
  Choisit(regions(), "Alpes");
  AttendFinFatale();
  EXPECT_FALSE(liste().isVisible());
}

TEST_F(TrierLesVins, LeBoutonAfficheLeVinSelectionne) {
  OuvreSurArbin();
  Clique(Le("cmdActiver"));
  AttendLaListe();
  EXPECT_EQ(numeroAffiche(), 566);
  EXPECT_EQ(vinAffiche(), (QStringList{"arbin", "Alpes", ""}));
}

TEST_F(TrierLesVins, UnDoubleClicAfficheLeVin) {
  OuvreSurArbin();
  DoubleClique(2);
  AttendLaListe();
  EXPECT_EQ(vins().currentText(), "Zone");
}

TEST_F(TrierLesVins, EntreeAfficheLeVinSelectionne) {
  OuvreSurArbin();
  QTest::keyClick(&liste(), Qt::Key_Return);
  AttendLaListe();
  EXPECT_EQ(vins().currentText(), "arbin");
}

TEST_F(TrierLesVins, MaCaveOuvreLesBouteillesDuVinSelectionne) {
  OuvreSurTroisVins();
  Choisit(regions(), "Alpes");
  Clique(Le("cmdMaCave"));
  EXPECT_EQ(onglet(), 6);
  EXPECT_EQ(numeroAffiche(), 565);
  EXPECT_EQ(TextesDe({"txtVinCave", "txtRegionCave", "txtSaisieBlanc", "txtSaisieRouge"}),
            (QStringList{"Abymes", "Alpes", "6", "2"}));
  EXPECT_TRUE(aLeFocus("txtSaisieBlanc"));
  EXPECT_THAT(b.son.joues, IsEmpty());
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(TrierLesVins, UneListeDoubleeMontreLaPremiereDesDeuxEntrees) {
  OuvreSurTroisVins();
  CliqueOnglet(*fenetre, 2);
  Tape(Le("txtSaisieNomVin"), "Chignin");
  Clique(Le("cmdValideAjouter"));
  CliqueOnglet(*fenetre, 5);
  Choisit(regions(), "Alpes");
  EXPECT_EQ(Textes(liste()), (QStringList{"Abymes", "arbin", "Chignin", "Zone"}));
  QTest::keyClick(&liste(), Qt::Key_End);
  Clique(Le("cmdActiver"));
  EXPECT_EQ(vins().currentText(), "Zone");
  EXPECT_EQ(vins().currentIndex(), vins().count() - 2);
}

TEST_F(TrierLesVins, UnVinQueLaListeNAPasFinitLeProgramme) {
  ChoisitUnVinInconnu();
  ExigePointeurNormalAuxMessages();
  Clique(Le("cmdActiver"));
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_EQ(onglet(), 5);
  EXPECT_TRUE(b.module->erreurFatale);
}

TEST_F(TrierLesVins, UnVinQueLaListeNAPasNAPasDeCaveNonPlus) {
  ChoisitUnVinInconnu();
  Clique(Le("cmdMaCave"));
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_EQ(onglet(), 5);
}

TEST_F(TrierLesVins, UnClicSurUnOngletRefuseSonneEtLaisseLeTriTelQuIlEst) {
  OuvreSurArbin();
  std::size_t sons = 0;
  for (const int refuse : {3, 4, 6}) {
    SCOPED_TRACE(refuse);
    CliqueOnglet(*fenetre, refuse);
    AttendArbin();
    EXPECT_THAT(b.son.joues, SizeIs(++sons));
  }
  EXPECT_EQ(b.son.joues.front(), (b.dossier.chemin() / "Exclamation").string());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(TrierLesVins, LesAutresOngletsSontPermis) {
  for (const int permis : {1, 2, 7}) {
    Ouvre(5);
    CliqueOnglet(*fenetre, permis);
    EXPECT_EQ(onglet(), permis);
  }
  EXPECT_THAT(b.son.joues, IsEmpty());
}

TEST_F(TrierLesVins, LesTouchesPassentLesOngletsRefusesSansUnSon) {
  OuvreSurTroisVins();
  fenetre->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  for (const auto& [touche, voisin] : {std::pair(Qt::Key_PageDown, 7), {Qt::Key_PageUp, 2}}) {
    CliqueOnglet(*fenetre, 5);
    Choisit(regions(), "Alpes");
    ASSERT_TRUE(aLeFocus("lstTriVin"));
    Frappe(touche, Qt::ControlModifier);
    EXPECT_EQ(onglet(), voisin);
  }
  EXPECT_THAT(b.son.joues, IsEmpty());
}

TEST_F(TrierLesVins, CtrlEntreeAfficheCeQuiSeVoitSeulement) {
  OuvreSurTroisVins();
  fenetre->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 5);
  Choisit(regions(), Fr("Béarn"));
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 5);
  Choisit(regions(), "Alpes");
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  AttendLaListe();
  EXPECT_EQ(vins().currentText(), "Abymes");
}

TEST_F(TrierLesVins, LAffichageDitLaRegionEtSesVins) {
  OuvreSurArbin();
  const auto vue = std::get<VueVinsTries>(fenetre->VueCourante());
  EXPECT_EQ(vue.region, "Alpes");
  EXPECT_THAT(vue.vins, ElementsAre("Abymes", "arbin", "Zone"));
}

TEST_F(TrierLesVins, LAffichageDUneRegionSansVinEnDitLaLigne) {
  OuvreSurTroisVins();
  Choisit(regions(), Fr("Béarn"));
  const auto vue = std::get<VueVinsTries>(fenetre->VueCourante());
  EXPECT_EQ(vue.region, "Béarn"_1252);
  EXPECT_THAT(vue.vins, ElementsAre(std::string("Aucun vin mémorisé"_1252)));
}

TEST_F(TrierLesVins, SansRegionLAffichageNEnDitAucune) {
  OuvreSurTroisVins();
  const auto vue = std::get<VueVinsTries>(fenetre->VueCourante());
  EXPECT_EQ(vue.region, std::nullopt);
  EXPECT_THAT(vue.vins, IsEmpty());
}

TEST_F(TrierLesVins, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurArbin();
  AttendSablier([&] { Choisit(regions(), "Alpes"); });
  AttendSablier([&] { Clique(Le("cmdActiver")); });
}

}  // namespace
}  // namespace gastrelle::essai
