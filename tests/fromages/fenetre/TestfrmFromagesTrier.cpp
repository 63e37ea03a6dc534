// The tab "Trier" of the cheeses window, through its controls.

#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "fromages/fenetre/FenetreFromages.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class TrierLesFromages : public FenetreFromages {
 protected:
  /// Opens the tab with two goat's cheeses, "Banon" (124) and "Valençay" (125), and no ewe's.
  void OuvreAvecDeuxChevres() {
    b.AjouteFromage(Fromage("Valençay"_1252, "Berry", 2));
    b.AjouteFromage(Fromage("banon", "Provence", 2));
    b.AjouteFromage(Fromage("Sans lait"));
    Ouvre(5);
  }
  QComboBox& lait() { return Le<QComboBox>("ComboLaitTrier"); }
  QListView& liste() { return Le<QListView>("List1"); }
  void DoubleClique(int rang) {
    const QPoint ou = liste().visualRect(liste().model()->index(rang, 0)).center();
    QTest::mouseClick(liste().viewport(), Qt::LeftButton, {}, ou);
    QTest::mouseDClick(liste().viewport(), Qt::LeftButton, {}, ou);
  }
  /// The pictures that can be seen.
  QStringList Images() {
    QStringList vues;
    for (const char* nom :
         {"PictureSouris", "PictureAnimal(0)", "PictureAnimal(1)", "PictureAnimal(2)"}) {
      if (Le(nom).isVisible()) {
        vues << nom;
      }
    }
    return vues;
  }
  void AttendPageDeDepart() {
    EXPECT_FALSE(liste().isVisible());
    EXPECT_THAT(Textes(liste()), IsEmpty());
    EXPECT_FALSE(Le("cmdActiver").isVisible());
    EXPECT_EQ(Images(), QStringList{"PictureSouris"});
    EXPECT_TRUE(aLeFocus("ComboLaitTrier"));
  }
};

TEST_F(TrierLesFromages, CommenceSansLaitChoisi) {
  OuvreAvecDeuxChevres();
  EXPECT_EQ(Textes(lait()), (QStringList{"?", "Vache", Fr("Chèvre"), "Brebis"}));
  EXPECT_EQ(lait().currentText(), "?");
  AttendPageDeDepart();
}

TEST_F(TrierLesFromages, LaSourisAttendEnHautAuMilieuSousLaListe) {
  Ouvre(5);
  fenetre->resize(1200, 900);
  QApplication::processEvents();
  const QImage page = Le("PictureSouris").grab().toImage();
  QRect dessin;
  for (int y = 0; y < page.height(); ++y) {
    for (int x = 0; x < page.width(); ++x) {
      if (page.pixel(x, y) != page.pixel(0, page.height() - 1)) {
        dessin |= QRect(x, y, 1, 1);
      }
    }
  }
  EXPECT_LT(dessin.top(), 20);
  EXPECT_NEAR(dessin.center().x(), page.width() / 2, 20);
  EXPECT_GT(dessin.height(), 200);
}

TEST_F(TrierLesFromages, LaSourisRapetisseAvecLaPageSansSeDeformer) {
  Ouvre(5);
  fenetre->resize(340, 250);
  QApplication::processEvents();
  QWidget& souris = Le("PictureSouris");
  const QImage image = souris.grab().toImage();
  int gauche = image.width();
  int droite = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != image.pixel(0, image.height() - 1)) {
        gauche = std::min(gauche, x);
        droite = std::max(droite, x);
      }
    }
  }
  EXPECT_LT(souris.height(), 200);
  EXPECT_NEAR(droite - gauche, souris.height() * 1.2, souris.height() * 0.25);
  EXPECT_EQ(qobject_cast<QScrollArea*>(Le("Frame1(5)").parentWidget()->parentWidget())
                ->verticalScrollBar()
                ->maximum(),
            0);
}

TEST_F(TrierLesFromages, ListeLesFromagesDuLaitDansLOrdreAlphabetique) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  EXPECT_TRUE(liste().isVisible());
  EXPECT_EQ(Textes(liste()), (QStringList{"banon", Fr("Valençay")}));
  EXPECT_EQ(liste().model()->index(0, 0).data(Qt::UserRole).toInt(), 125);
  EXPECT_EQ(liste().currentIndex().row(), 0);
  EXPECT_TRUE(Le("cmdActiver").isVisible());
  EXPECT_EQ(Images(), QStringList{"PictureAnimal(1)"});
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(TrierLesFromages, ChaqueLaitASonAnimal) {
  b.AjouteFromage(Fromage("Ossau-iraty", "", 3));
  Ouvre(5);
  Choisit(lait(), 1);
  EXPECT_EQ(Images(), QStringList{"PictureAnimal(0)"});
  EXPECT_EQ(liste().model()->rowCount(), 122);
  Choisit(lait(), 3);
  EXPECT_EQ(Images(), QStringList{"PictureAnimal(2)"});
  EXPECT_EQ(Textes(liste()), QStringList{"Ossau-iraty"});
}

TEST_F(TrierLesFromages, UnLaitSansFromageLeDitEtRevientAuDepart) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  ExigePointeurNormalAuxMessages();
  Choisit(lait(), 3);
  AttendMessage("Aucun fromage mémorisé", Icone::aucune);
  AttendPageDeDepart();
  EXPECT_EQ(lait().currentText(), "Brebis");
}

TEST_F(TrierLesFromages, SansLaitRienNEstListeMemeUnFromageSansLait) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  Choisit(lait(), 0);
  AttendPageDeDepart();
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(TrierLesFromages, RevenirSurLOngletRepartSansLait) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 5);
  EXPECT_EQ(lait().currentText(), "?");
  AttendPageDeDepart();
}

TEST_F(TrierLesFromages, LeTriLaisseLeFromageAffiche) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 1);
  EXPECT_EQ(Rogne(b.module->bufFromage.courant().nomFromage.brut()), "banon");
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(Texte(Le("ComboLaitModifier")), Fr("Chèvre"));
}

TEST_F(TrierLesFromages, LeTriRepareLeCompte) {
  Ouvre(5);
  b.module->bufFromage.nbActifs() = 130;
  Choisit(lait(), 1);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLF1.DAT 0+208"));
  EXPECT_EQ(FicheFromage(b, 1).actif, 122);
}

TEST_F(TrierLesFromages, UneReparationQuiEchoueEstIgnoree) {
  Ouvre(5);
  b.module->bufFromage.nbActifs() = 130;
  b.disque.EchoueSur("écrit", Panne::disquePlein);
  Choisit(lait(), 1);
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(liste().model()->rowCount(), 122);
}

TEST_F(TrierLesFromages, UneLectureQuiEchoueFinitLeProgramme) {
  Ouvre(5);
  b.disque.EchoueSur("lit GLF1.DAT", Panne::entreeSortie);
  Choisit(lait(), 1);
  AttendFinFatale();
}

TEST_F(TrierLesFromages, LeBoutonAfficheLeFromageChoisi) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  QTest::keyClick(&liste(), Qt::Key_Down);
  Clique(Le("cmdActiver"));
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(fromages().currentData().toInt(), 124);
  EXPECT_EQ(Champs("ComboFromages", "").mid(0, 3),
            (QStringList{Fr("Valençay"), "Berry", Fr("Chèvre")}));
  EXPECT_TRUE(aLeFocus("txtRegion"));
}

TEST_F(TrierLesFromages, UnDoubleClicAfficheLeFromage) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  DoubleClique(1);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(fromages().currentText(), Fr("Valençay"));
}

TEST_F(TrierLesFromages, EntreeAfficheLeFromageChoisi) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  QTest::keyClick(&liste(), Qt::Key_Down);
  QTest::keyClick(&liste(), Qt::Key_Return);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(fromages().currentText(), Fr("Valençay"));
}

TEST_F(TrierLesFromages, CtrlEntreeAfficheCeQuiSeVoitSeulement) {
  OuvreAvecDeuxChevres();
  fenetre->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 5);
  Choisit(lait(), 2);
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(fromages().currentText(), "banon");
}

TEST_F(TrierLesFromages, UnFromageQueLaListeNAPasNAfficheRien) {
  OuvreAvecDeuxChevres();
  RecFromage cache = Fromage("Rocamadour", "", 2);
  cache.actif = -1;
  b.module->bufFromage.Ecrit(127, cache);
  b.module->bufFromage.nbActifs() = 126;
  Choisit(lait(), 2);
  DoubleClique(1);
  EXPECT_EQ(onglet(), 5);
  EXPECT_FALSE(FinVue());
}

TEST_F(TrierLesFromages, LAffichageDitLeLaitEtSesFromages) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  const auto vue = std::get<VueFromagesTries>(fenetre->VueCourante());
  EXPECT_EQ(vue.lait, "Chèvre"_1252);
  EXPECT_THAT(vue.fromages, ElementsAre("banon", std::string("Valençay"_1252)));
}

TEST_F(TrierLesFromages, SansLaitChoisiLAffichageNEnDitAucun) {
  Ouvre(5);
  const auto vue = std::get<VueFromagesTries>(fenetre->VueCourante());
  EXPECT_EQ(vue.lait, std::nullopt);
  EXPECT_THAT(vue.fromages, IsEmpty());
}

TEST_F(TrierLesFromages, LesInfobullesDisentQuoiFaire) {
  Ouvre(5);
  EXPECT_EQ(Le("List1").toolTip(), Fr("Double-clic pour afficher la sélection"));
  EXPECT_EQ(Le("cmdActiver").toolTip(), Fr("Afficher le fromage sélectionné"));
}

TEST_F(TrierLesFromages, RevenirALaFenetreRepartSansLait) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(onglet(), 5);
  EXPECT_EQ(lait().currentText(), "?");
  AttendPageDeDepart();
}

TEST_F(TrierLesFromages, UnOngletRefuseLaisseLeTriTelQuIlEst) {
  OuvreAvecDeuxChevres();
  Choisit(lait(), 2);
  QTest::keyClick(&liste(), Qt::Key_Down);
  b.disque.OublieJournal();
  for (const int refuse : {3, 4}) {
    CliqueOnglet(*fenetre, refuse);
    EXPECT_EQ(lait().currentText(), Fr("Chèvre"));
    EXPECT_TRUE(liste().isVisible());
    EXPECT_EQ(Textes(liste()), (QStringList{"banon", Fr("Valençay")}));
    EXPECT_EQ(liste().currentIndex().row(), 1);
    EXPECT_TRUE(Le("cmdActiver").isVisible());
    EXPECT_EQ(Images(), QStringList{"PictureAnimal(1)"});
  }
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(TrierLesFromages, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreAvecDeuxChevres();
  AttendSablier([&] { Choisit(lait(), 2); });
}

TEST_F(TrierLesFromages, LeTriLitLesFromagesSansDemanderSIlsSontLa) {
  Ouvre(5);
  b.dossier.Supprime("GLF1.DAT");
  Choisit(lait(), 1);
  EXPECT_THAT(b.disque.journal(), Each(Not(StartsWith("existe"))));
  EXPECT_EQ(liste().model()->rowCount(), 122);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
