// The lists: their order, their item data, the event that a choice fires.

#include <QAbstractItemModelTester>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/ComboListe.h"
#include "controles/ListeChoix.h"
#include "controles/ListePartagee.h"
#include "data/Texte1252.h"
#include "doublures/Ecran.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

std::vector<std::int32_t> Numeros(const Liste& entrees) {
  std::vector<std::int32_t> numeros;
  for (const EntreeListe& entree : entrees) {
    numeros.push_back(entree.numero);
  }
  return numeros;
}

class Modele : public testing::Test {
 protected:
  ModeleListe modele{Ordre::alphabetique};
  QAbstractItemModelTester verifie{&modele, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(Modele, TrieSansCasseNiAccent) {
  modele.Ajoute({{std::string("côté"_1252), 1},
                 {"COTE", 2},
                 {std::string("côte"_1252), 3},
                 {std::string("coté"_1252), 4},
                 {"cotes", 5},
                 {std::string("cœur"_1252), 6},
                 {"cobalt", 7}});
  EXPECT_THAT(Numeros(modele.entrees()), ElementsAre(7, 6, 2, 4, 3, 1, 5));
}

TEST_F(Modele, UneEntreeSeuleSePlaceApresSesEgales) {
  modele.Ajoute({{"a", 1}, {"b", 2}, {"b", 3}, {"c", 4}});
  EXPECT_EQ(modele.Ajoute(EntreeListe{"B", 9}), 3);
  EXPECT_THAT(Numeros(modele.entrees()), ElementsAre(1, 2, 3, 9, 4));
}

TEST_F(Modele, UneSecondeCopieSeRangeApresLaPremiere) {
  modele.Ajoute({{"a", 1}, {"b", 2}});
  modele.Ajoute({{"a", 1}, {"b", 2}});
  EXPECT_THAT(Numeros(modele.entrees()), ElementsAre(1, 1, 2, 2));
  EXPECT_EQ(modele.IndiceDe(2), 2);
}

TEST_F(Modele, LEpingleeResteEnTete) {
  modele.Epingle("?");
  modele.Ajoute({{"!", 2}, {"a", 3}});
  modele.Ajoute(EntreeListe{"  ", 4});
  EXPECT_EQ(modele.entrees().front().texte, "?");
  EXPECT_EQ(modele.IndiceDe(0), std::nullopt);
  modele.Vide();
  EXPECT_EQ(modele.rowCount(), 0);
}

TEST_F(Modele, SansTriGardeLOrdreDInsertion) {
  ModeleListe enOrdre(Ordre::insertion);
  enOrdre.Ajoute({{"z", 1}, {"a", 2}});
  enOrdre.Ajoute(EntreeListe{"m", 3});
  EXPECT_THAT(Numeros(enOrdre.entrees()), ElementsAre(1, 2, 3));
}

TEST_F(Modele, DitTexteEtDonnee) {
  modele.Ajoute(Liste{{std::string("Épices"_1252), 7}});
  EXPECT_EQ(modele.index(0).data(), Fr("Épices"));
  EXPECT_EQ(modele.index(0).data(Qt::UserRole), 7);
}

class Combo : public testing::Test {
 protected:
  Combo() {
    combo.surChoix = [this] { choix.push_back(combo.currentIndex()); };
    combo.show();
    combo.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&combo));
    combo.setFocus();
  }
  ~Combo() override { combo.hidePopup(); }

  /// The entry in the open list that Return would choose; -1 while it is closed.
  int Vise() const { return combo.view()->isVisible() ? combo.view()->currentIndex().row() : -1; }
  void GarnitDe(int nombre) {
    Liste entrees;
    for (int i = 0; i < nombre; ++i) {
      entrees.push_back({"Recette " + std::to_string(1000 + i), i});
    }
    combo.Ajoute(std::move(entrees));
  }

  ComboListe combo{"ComboEssai", Ordre::alphabetique};
  std::vector<int> choix;
};

TEST_F(Combo, RemplirNeChoisitRien) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_TRUE(choix.empty());
}

TEST_F(Combo, UneEntreeSeuleDansUneListeVideNEstPasChoisie) {
  combo.Ajoute(EntreeListe{"a", 1});
  EXPECT_EQ(combo.currentIndex(), -1);
}

TEST_F(Combo, LeChoixDuProgrammeDeclencheLEvenementMemeLeMeme) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  combo.Choisit(1);
  combo.Choisit(1);
  EXPECT_THAT(choix, ElementsAre(1, 1));
}

TEST_F(Combo, LeChoixDeLUtilisateurDeclencheLEvenementMemeLeMeme) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  essai::Choisit(combo, 1);
  essai::Choisit(combo, 1);
  EXPECT_THAT(choix, ElementsAre(1, 1));
}

TEST_F(Combo, MontrerNeDeclencheRien) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  combo.Montre(0);
  EXPECT_TRUE(choix.empty());
  EXPECT_EQ(combo.NumeroChoisi(), 1);
}

TEST_F(Combo, ChoisirHorsDeLaListeNeChoisitRien) {
  combo.Choisit(0);
  combo.Choisit(-1);
  EXPECT_TRUE(choix.empty());
}

TEST_F(Combo, LaDonneeSansChoixEstUnePanne) {
  EXPECT_THROW((void)combo.NumeroChoisi(), ErreurExecution);
}

TEST_F(Combo, UneDonneeIntrouvableEstUnePanneDeFichier) {
  combo.Ajoute(Liste{{"a", 1}});
  try {
    combo.ChoisitNumero(2);
    FAIL();
  } catch (const ErreurExecution& erreur) {
    EXPECT_EQ(erreur.numero(), 53);
  }
}

TEST_F(Combo, CompareSansCasseEtSansBlancs) {
  combo.Ajoute({{std::string("Épices"_1252), 1}, {"b", 2}});
  combo.Montre(1);
  EXPECT_TRUE(combo.ContientTexte(" ÉPICES"_1252));
  EXPECT_FALSE(combo.ContientTexte("épices"_1252, combo.currentIndex()));
  EXPECT_FALSE(combo.ContientTexte("epices"));
}

TEST_F(Combo, LesFlechesOuvrentEtSePromenentEntreeChoisit) {
  combo.Ajoute({{"a", 1}, {"b", 2}, {"c", 3}});
  for (const Qt::Key entree : {Qt::Key_Return, Qt::Key_Enter}) {
    choix.clear();
    combo.Montre(0);
    Frappe(Qt::Key_Down);
    EXPECT_EQ(Vise(), 1);
    Frappe(Qt::Key_Down);
    EXPECT_EQ(Vise(), 2);
    EXPECT_EQ(combo.currentIndex(), 0);
    EXPECT_TRUE(choix.empty());
    Frappe(entree);
    EXPECT_EQ(Vise(), -1);
    EXPECT_THAT(choix, ElementsAre(2));
  }
}

TEST_F(Combo, ToucheParToucheCeQueFaitUneListeFermee) {
  struct Cas {
    Qt::Key touche;
    Qt::KeyboardModifiers avec;
    int vise;  ///< -1: the list stays closed
  };
  GarnitDe(60);
  for (const Cas& cas : std::initializer_list<Cas>{{Qt::Key_Up, {}, 29},
                                                   {Qt::Key_Down, {}, 31},
                                                   {Qt::Key_Home, {}, 0},
                                                   {Qt::Key_End, {}, 59},
                                                   {Qt::Key_Space, {}, 30},
                                                   {Qt::Key_F4, {}, 30},
                                                   {Qt::Key_Down, Qt::AltModifier, 30},
                                                   {Qt::Key_Up, Qt::AltModifier, 30},
                                                   {Qt::Key_Return, {}, -1},
                                                   {Qt::Key_Escape, {}, -1},
                                                   {Qt::Key_Delete, {}, -1},
                                                   {Qt::Key_Down, Qt::ControlModifier, -1},
                                                   {Qt::Key_PageDown, Qt::ControlModifier, -1},
                                                   {Qt::Key_R, Qt::ControlModifier, -1}}) {
    SCOPED_TRACE(cas.touche);
    combo.Montre(30);
    Frappe(cas.touche, cas.avec);
    EXPECT_EQ(Vise(), cas.vise);
    combo.hidePopup();
    EXPECT_EQ(combo.currentIndex(), 30);
  }
  Frappe(Qt::Key_PageDown);
  EXPECT_GT(Vise(), 40);
  Frappe(Qt::Key_PageUp);
  EXPECT_LT(Vise(), 40);
  EXPECT_TRUE(choix.empty());
}

TEST_F(Combo, EchappeLaisseToutCommeAvant) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  combo.Montre(0);
  Frappe(Qt::Key_Down);
  Frappe(Qt::Key_Escape);
  EXPECT_EQ(Vise(), -1);
  EXPECT_EQ(combo.currentIndex(), 0);
  EXPECT_TRUE(choix.empty());
  EXPECT_TRUE(combo.hasFocus());
}

TEST_F(Combo, LesLettresOuvrentEtCherchentDeja) {
  combo.Ajoute({{"Veau", 1}, {"Potages", 2}, {std::string("Œufs"_1252), 3}, {"Viandes", 4}});
  Frappe("vi");
  EXPECT_EQ(combo.itemText(Vise()), "Viandes");
  EXPECT_TRUE(choix.empty());
  Frappe(Qt::Key_Escape);
  EXPECT_EQ(combo.currentIndex(), -1);
}

TEST_F(Combo, LesLettresPuisEntreeChoisissent) {
  combo.Ajoute({{"Potages", 1}, {std::string("Œufs"_1252), 2}});
  Frappe("oe");
  Frappe(Qt::Key_Return);
  EXPECT_EQ(combo.currentText(), Fr("Œufs"));
  EXPECT_EQ(choix.size(), 1U);
}

TEST_F(Combo, UneListeVideNeSOuvrePas) {
  for (const Qt::Key touche : {Qt::Key_Down, Qt::Key_Space, Qt::Key_A}) {
    Frappe(touche);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
}

TEST_F(Combo, LaMoletteFaitDefilerLaPageEtNeChoisitRien) {
  QScrollArea zone;
  auto* page = new QWidget;
  page->setFixedSize(200, 2000);
  auto* liste = new ComboListe("ComboDePage", Ordre::insertion, page);
  liste->Ajoute({{"a", 1}, {"b", 2}, {"c", 3}});
  liste->Montre(1);
  zone.setWidget(page);
  zone.resize(300, 300);
  zone.show();
  liste->setFocus();
  Roule(*liste, -1);
  EXPECT_EQ(liste->currentIndex(), 1);
  EXPECT_GT(zone.verticalScrollBar()->value(), 0);
  Roule(*liste, 1);
  EXPECT_EQ(liste->currentIndex(), 1);
  EXPECT_EQ(zone.verticalScrollBar()->value(), 0);
}

TEST_F(Combo, MontreVingtRangeesQuiOntDeLAir) {
  GarnitDe(60);
  combo.showPopup();
  const QAbstractItemView& vue = *combo.view();
  const int rangee = vue.visualRect(vue.model()->index(0, 0)).height();
  EXPECT_GE(rangee, vue.fontMetrics().height() + 6);
  EXPECT_EQ(vue.viewport()->height() / rangee, 20);
}

TEST_F(Combo, LaListeOuverteALaLargeurDeSonTitreLePlusLong) {
  combo.setFixedWidth(120);
  combo.Ajoute({{"i", 1},
                {std::string(60, 'i'), 2},
                {std::string(40, 'W'), 3},
                {std::string("Un titre d'une longueur moyenne à vrai dire"_1252), 4}});
  combo.showPopup();
  const QAbstractItemView& vue = *combo.view();
  for (int i = 0; i < combo.count(); ++i) {
    EXPECT_GE(vue.viewport()->width(), vue.sizeHintForIndex(vue.model()->index(i, 0)).width()) << i;
  }
  const int etroite = vue.fontMetrics().horizontalAdvance(std::string(40, 'W').c_str());
  EXPECT_LT(vue.viewport()->width(), etroite + 40);
  combo.hidePopup();
  combo.Vide();
  combo.Ajoute(Liste{{"i", 1}});
  combo.showPopup();
  EXPECT_LE(vue.viewport()->width(), 120);
}

TEST_F(Combo, LaListeOuverteTientDansLEcranEtDitLesTitresCoupes) {
  const std::string trop(400, 'W');
  combo.Ajoute({{"court", 1}, {trop, 2}});
  combo.showPopup();
  QAbstractItemView& vue = *combo.view();
  EXPECT_LE(vue.window()->width(), combo.screen()->geometry().width());
  const auto dit = [&](int i) {
    return Infobulle(*vue.viewport(), vue.visualRect(vue.model()->index(i, 0)).center());
  };
  EXPECT_EQ(dit(1).toStdString(), trop);
  EXPECT_EQ(dit(0), "");
}

TEST_F(Combo, LaListeFermeeDitSonTitreSIlEstCoupe) {
  combo.setFixedWidth(120);
  combo.Ajoute(
      {{"court", 1}, {std::string("Un très long titre qui ne tient pas dans sa boîte"_1252), 2}});
  const auto dit = [&] { return Infobulle(combo, combo.rect().center()); };
  combo.Montre(1);
  EXPECT_EQ(dit(), Fr("Un très long titre qui ne tient pas dans sa boîte"));
  combo.Montre(0);
  EXPECT_EQ(dit(), "");
  combo.Montre(1);
  combo.setToolTip("Choisir");
  EXPECT_EQ(dit(), "Choisir");
}

class Partage : public testing::Test {
 protected:
  ListePartagee partagee;
  ComboListe une{"ComboUne", Ordre::alphabetique};
  ComboListe autre{"ComboAutre", Ordre::alphabetique};
};

TEST_F(Partage, MontreLesMemesEntreesDansChaqueListe) {
  partagee.Suit(une);
  partagee.Suit(autre);
  partagee.Remplace({{"b", 2}, {"a", 3}});
  EXPECT_THAT(Numeros(une.entrees()), ElementsAre(3, 2));
  EXPECT_THAT(Numeros(autre.entrees()), ElementsAre(3, 2));
}

TEST_F(Partage, UneListeQuiVientPlusTardPrendLesEntreesDuMoment) {
  partagee.Suit(une);
  partagee.Remplace({{"a", 1}, {"b", 2}});
  une.Vide();  // not the first list is the source
  partagee.Suit(autre);
  EXPECT_THAT(Numeros(autre.entrees()), ElementsAre(1, 2));
}

TEST_F(Partage, RienNEstChoisiApresUnRemplacementEtAucunEvenementNePart) {
  int choix = 0;
  une.surChoix = [&] { ++choix; };
  partagee.Suit(une);
  partagee.Remplace({{"a", 1}});
  une.Montre(0);
  partagee.Remplace({{"b", 2}, {"c", 3}});
  EXPECT_EQ(une.currentIndex(), -1);
  EXPECT_EQ(choix, 0);
  EXPECT_THAT(Numeros(une.entrees()), ElementsAre(2, 3));
}

TEST_F(Partage, UneListeGardeSonEntreeEpingleeEnTete) {
  partagee.Suit(une, "?");
  partagee.Suit(autre);
  for (const char* nom : {"1er cru", "Alsace"}) {
    partagee.Remplace(Liste{{nom, 2}});
    EXPECT_EQ(Textes(une), (QStringList{"?", nom}));
    EXPECT_EQ(Textes(autre), QStringList{nom});
  }
}

class Choix : public testing::Test {
 protected:
  Choix() {
    liste.surChoix = [this] { ++choix; };
    liste.surDoubleClic = [this] { ++doubles; };
    liste.resize(200, 200);
    liste.show();
  }

  ListeChoix liste{"lstEssai", Ordre::alphabetique};
  int choix = 0;
  int doubles = 0;
};

TEST_F(Choix, ChoisitParLeProgrammeLaSourisEtLeClavier) {
  liste.Ajoute({{"a", 1}, {"b", 2}, {"c", 3}});
  liste.Choisit(0);
  QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                    liste.visualRect(liste.model()->index(1, 0)).center());
  QTest::keyClick(&liste, Qt::Key_Down);
  EXPECT_EQ(choix, 3);
  EXPECT_EQ(liste.NumeroChoisi(), 3);
}

TEST_F(Choix, LaMemeEntreeChoisieDeNouveauNEstPasUnChoix) {
  liste.Ajoute({{"a", 1}, {"b", 2}});
  liste.Choisit(1);
  liste.Choisit(1);
  EXPECT_EQ(choix, 1);
}

TEST_F(Choix, LeDoubleClicSurUneEntreeSeul) {
  liste.Ajoute(Liste{{"a", 1}});
  const QPoint ou = liste.visualRect(liste.model()->index(0, 0)).center();
  for (const QPoint point : {ou, QPoint(100, 150)}) {
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, point);
  }
  EXPECT_EQ(doubles, 1);
}

TEST_F(Choix, EntreeFaitCommeLeDoubleClic) {
  liste.Ajoute({{"a", 1}, {"b", 2}});
  QTest::keyClick(&liste, Qt::Key_Return);
  EXPECT_EQ(doubles, 0);  // nothing is chosen
  liste.Choisit(1);
  QTest::keyClick(&liste, Qt::Key_Return);
  QTest::keyClick(&liste, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(doubles, 2);
  QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                    liste.visualRect(liste.model()->index(0, 0)).center());
  EXPECT_EQ(doubles, 2);
}

TEST_F(Choix, LesLettresCherchentCommeOnTrie) {
  const Liste entrees{{std::string("Bœuf"_1252), 1},
                      {std::string("Bouchées"_1252), 2},
                      {std::string("Île"_1252), 3}};
  for (const char* mot : {"boeuf", "ile", "bouchees"}) {
    ListeChoix autre("lstAutre", Ordre::alphabetique);
    autre.Ajoute(entrees);
    autre.Choisit(0);
    Tape(autre, mot);
    EXPECT_EQ(LettresDeBase(autre.entrees()[static_cast<std::size_t>(autre.indice())].texte), mot);
  }
}

TEST_F(Choix, UnTitreCoupeSeLitEntierSaufOuUneInfobulleEstDite) {
  liste.setFixedWidth(100);
  liste.Ajoute({{"court", 1}, {"un titre bien trop long pour tenir", 2}});
  const auto dit = [&](int i) {
    return Infobulle(*liste.viewport(), liste.visualRect(liste.model()->index(i, 0)).center());
  };
  EXPECT_EQ(dit(1), "un titre bien trop long pour tenir");
  EXPECT_EQ(dit(0), "");
  liste.setToolTip("Double clic");
  EXPECT_NE(dit(1), "un titre bien trop long pour tenir");
}

TEST_F(Choix, SansChoixLaDonneeEstUnePanne) {
  EXPECT_THROW((void)liste.NumeroChoisi(), ErreurExecution);
}

}  // namespace
}  // namespace gastrelle::essai
