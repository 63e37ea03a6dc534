// The tab "Trier" of the favourites' window: the favourites of a category, and the way to them.

#include <functional>
#include <utility>
#include <vector>

#include <QLabel>
#include <QListView>

#include "favoris/fenetre/FenetreFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class TrierLesFavoris : public FenetreFavoris {
 protected:
  /// Opens the tab with three favourites in "Artisans" (5): "Affineur" (16), "boucher" (17) and
  /// "Zinc" (18), and none in "Bio" (6).
  void OuvreSurTroisFavoris() {
    AjouteAffineur(b);
    b.AjouteFavori(Favori("boucher", 5));
    b.AjouteFavori(Favori("Zinc", 5));
    b.AjouteCategorie("Bio");
    Ouvre(5);
  }
  /// The same with the three listed and "boucher" selected.
  void OuvreSurLeBoucher() {
    OuvreSurTroisFavoris();
    Choisit(categories(), "Artisans");
    QTest::keyClick(&liste(), Qt::Key_Down);
    b.disque.OublieJournal();
  }
  QComboBox& categories() { return Le<QComboBox>("ComboCategorieTrier"); }
  QListView& liste() { return Le<QListView>("lstTriFavoris"); }
  int choisi() { return liste().currentIndex().data(Qt::UserRole).toInt(); }
  void DoubleClique(int rang) {
    const QPoint ou = liste().visualRect(liste().model()->index(rang, 0)).center();
    QTest::mouseClick(liste().viewport(), Qt::LeftButton, {}, ou);
    QTest::mouseDClick(liste().viewport(), Qt::LeftButton, {}, ou);
  }
  /// What can be seen of the page.
  QStringList Visibles() {
    QStringList vus;
    for (const char* nom :
         {"ComboCategorieTrier", "lstTriFavoris", "ImageCentre", "cmdActiver", "cmdAideTrier"}) {
      if (Le(nom).isVisible()) {
        vus << nom;
      }
    }
    return vus;
  }
  /// True if the caption of the list can be seen.
  bool legendeVisible() {
    for (const QLabel* etiquette : fenetre->findChildren<QLabel*>()) {
      if (etiquette->buddy() == &liste()) {
        return etiquette->isVisible();
      }
    }
    ADD_FAILURE() << "pas de légende";
    return false;
  }
  void AttendLImageSeule() {
    EXPECT_EQ(Visibles(), (QStringList{"ComboCategorieTrier", "ImageCentre", "cmdAideTrier"}));
    EXPECT_FALSE(legendeVisible());
    EXPECT_EQ(categories().currentIndex(), 0);
    EXPECT_EQ(categories().currentText(), "?");
    EXPECT_THAT(Textes(liste()), IsEmpty());
  }
  void AttendLesFavoris() {
    EXPECT_EQ(Visibles(),
              (QStringList{"ComboCategorieTrier", "lstTriFavoris", "cmdActiver", "cmdAideTrier"}));
    EXPECT_TRUE(legendeVisible());
    EXPECT_TRUE(aLeFocus("lstTriFavoris"));
    EXPECT_EQ(liste().currentIndex().row(), 0);
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// "boucher" is still selected among the favourites of its category, which wasn't read anew.
  void AttendLeBoucher() {
    EXPECT_EQ(onglet(), 5);
    EXPECT_EQ(categories().currentText(), "Artisans");
    EXPECT_EQ(Textes(liste()), (QStringList{"Affineur", "boucher", "Zinc"}));
    EXPECT_EQ(choisi(), 17);
    EXPECT_THAT(b.disque.journal(), IsEmpty());
  }
};

TEST_F(TrierLesFavoris, CommenceSansCategorieLImageSeule) {
  OuvreSurTroisFavoris();
  AttendLImageSeule();
  EXPECT_EQ(Textes(categories()), (QStringList{"?", "Artisans", "Bio", Fr("Catégorie 002"),
                                               Fr("Catégorie 003"), Fr("Catégorie 004")}));
  EXPECT_EQ(DonneesDe(categories()), (std::vector<int>{0, 5, 6, 2, 3, 4}));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(TrierLesFavoris, LePointDInterrogationPrecedeToutNom) {
  b.AjouteCategorie("!Avant");
  Ouvre(5);
  EXPECT_EQ(Textes(categories()).mid(0, 2), (QStringList{"?", "!Avant"}));
}

TEST_F(TrierLesFavoris, ListeLesFavorisDeLaCategorieDansLOrdreAlphabetique) {
  OuvreSurTroisFavoris();
  Choisit(categories(), "Artisans");
  AttendLesFavoris();
  EXPECT_EQ(Textes(liste()), (QStringList{"Affineur", "boucher", "Zinc"}));
  EXPECT_EQ(choisi(), 16);
  EXPECT_EQ(liste().model()->index(1, 0).data(Qt::UserRole).toInt(), 17);
  EXPECT_TRUE(Le("cmdActiver").isEnabled());
}

TEST_F(TrierLesFavoris, UneCategorieSansFavoriLeDitDansLaListe) {
  OuvreSurTroisFavoris();
  Choisit(categories(), "Bio");
  AttendLesFavoris();
  EXPECT_EQ(Textes(liste()), QStringList{Fr("Aucun favori mémorisé")});
  EXPECT_FALSE(Le("cmdActiver").isEnabled());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  Choisit(categories(), "Artisans");
  EXPECT_TRUE(Le("cmdActiver").isEnabled());
}

TEST_F(TrierLesFavoris, LaLigneQuiDitQuIlNYARienNeMeneNullePart) {
  OuvreSurTroisFavoris();
  Choisit(categories(), "Bio");
  DoubleClique(0);
  QTest::keyClick(&liste(), Qt::Key_Return);
  PrendLeClavier();
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 5);
  EXPECT_FALSE(FinVue());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(TrierLesFavoris, RevenirALaFenetreDonneLeClavierAuxCategories) {
  OuvreSurLeBoucher();
  EXPECT_TRUE(aLeFocus("lstTriFavoris"));
  fenetre->Active();
  EXPECT_TRUE(aLeFocus("ComboCategorieTrier"));
}

TEST_F(TrierLesFavoris, LAffichageCommenceParLaFlecheAuSablier) {
  OuvreSurLeBoucher();
  Clique(Le("cmdActiver"));
  EXPECT_EQ(b.pointeur.fleches, 1);
  EXPECT_FALSE(b.pointeur.sablier);
  EXPECT_EQ(numeroAffiche(), 17);
}

TEST_F(TrierLesFavoris, LePointDInterrogationRendLImageSansRienLire) {
  OuvreSurLeBoucher();
  Choisit(categories(), 0);
  AttendLImageSeule();
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(TrierLesFavoris, RevenirSurLOngletOuALaFenetreRepartSansCategorie) {
  OuvreSurLeBoucher();
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 5);
  AttendLImageSeule();
  Choisit(categories(), "Artisans");
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(onglet(), 5);
  AttendLImageSeule();
}

TEST_F(TrierLesFavoris, LaFicheDeTravailResteLeFavoriAffiche) {
  OuvreSurTroisFavoris();
  for (const char* triee : {"Artisans", "Bio", "Catégorie 003"}) {
    Choisit(categories(), Fr(triee));
    EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(FicheFavori(b, 16))) << triee;
  }
  CliqueOnglet(*fenetre, 1);
  EXPECT_EQ(favoriAffiche(), Affineur());
}

TEST_F(TrierLesFavoris, LeParcoursSArreteAuCompteEtNeLeReparePas) {
  OuvreSurTroisFavoris();
  b.module->bufFavori.nbActifs() = 15;
  Choisit(categories(), "Artisans");
  EXPECT_EQ(Textes(liste()), QStringList{"Affineur"});
  b.module->bufFavori.nbActifs() = 70;
  Choisit(categories(), "Artisans");
  EXPECT_EQ(Textes(liste()), (QStringList{"Affineur", "boucher", "Zinc"}));
  EXPECT_EQ(b.module->bufFavori.nbActifs(), 70);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(TrierLesFavoris, UnFavoriSupprimeNEstPasListe) {
  OuvreSurTroisFavoris();
  RecFavori parti = FicheFavori(b, 17);
  parti.actif = supprime;
  b.module->bufFavori.Ecrit(17, parti);
  Choisit(categories(), "Artisans");
  EXPECT_EQ(Textes(liste()), (QStringList{"Affineur", "Zinc"}));
}

TEST_F(TrierLesFavoris, LesFavorisSeLisentSansChercherLeurFichier) {
  OuvreSurTroisFavoris();
  b.dossier.Supprime("GLFV2.DAT");
  Choisit(categories(), "Artisans");
  EXPECT_THAT(b.disque.journal(), ElementsAre("longueur GLFV2.DAT", ParcourtFavoris(18)));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(TrierLesFavoris, UneLectureQuiEchoueFinitLeProgrammeSurLImage) {
  OuvreSurTroisFavoris();
  b.disque.EchoueSur("lit GLFV2.DAT", Panne::entreeSortie);
  ExigePointeurNormalAuxMessages();
  Choisit(categories(), "Artisans");
  AttendFinFatale();
  EXPECT_TRUE(b.module->erreurFatale);
  EXPECT_FALSE(liste().isVisible());
  EXPECT_TRUE(Le("ImageCentre").isVisible());
}

TEST_F(TrierLesFavoris, LeBoutonLeDoubleClicEtLesTouchesAffichentLeFavori) {
  OuvreSurTroisFavoris();
  PrendLeClavier();
  const std::vector<std::function<void()>> gestes{
      [&] { Clique(Le("cmdActiver")); }, [&] { DoubleClique(1); },
      [&] { QTest::keyClick(&liste(), Qt::Key_Return); },
      [&] { Frappe(Qt::Key_Return, Qt::ControlModifier); }};
  for (std::size_t i = 0; i < gestes.size(); ++i) {
    SCOPED_TRACE(i);
    CliqueOnglet(*fenetre, 5);
    Choisit(categories(), "Artisans");
    QTest::keyClick(&liste(), Qt::Key_Down);
    gestes[i]();
    AttendLaListe();
    EXPECT_EQ(numeroAffiche(), 17);
    EXPECT_EQ(favoriAffiche(), SansTexte("boucher", "Artisans"));
    Choisit(favoris(), 0);
  }
}

TEST_F(TrierLesFavoris, CtrlEntreeSansCategorieNeFaitRien) {
  OuvreSurTroisFavoris();
  PrendLeClavier();
  Frappe(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(onglet(), 5);
  AttendLImageSeule();
}

TEST_F(TrierLesFavoris, DeDeuxDuMemeNomLeBonSAffiche) {
  b.AjouteFavori(Favori("Affineur"), "Un");
  b.AjouteFavori(Favori("Affineur"), "Deux");
  Ouvre(5);
  for (const auto& [rang, adresse] : {std::pair(1, "Deux"), {0, "Un"}}) {
    CliqueOnglet(*fenetre, 5);
    Choisit(categories(), Fr("Catégorie 002"));
    DoubleClique(rang);
    EXPECT_EQ(numeroAffiche(), 16 + rang);
    EXPECT_EQ(TexteDe("txtAdresse"), adresse);
  }
}

TEST_F(TrierLesFavoris, UnFavoriQueLaListeNAPasFinitLeProgramme) {
  OuvreSurAffineur(5);
  RecFavori nouveau = Favori("Zinc", 5);
  nouveau.actif = vivant;
  b.module->bufFavori.Ecrit(17, nouveau);
  b.module->bufFavori.nbActifs() = 16;
  Choisit(categories(), "Artisans");
  QTest::keyClick(&liste(), Qt::Key_Down);
  ExigePointeurNormalAuxMessages();
  Clique(Le("cmdActiver"));
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_EQ(onglet(), 5);
  EXPECT_TRUE(b.module->erreurFatale);
}

TEST_F(TrierLesFavoris, UnClicSurUnOngletRefuseSonneEtLaisseLeTriTelQuIlEst) {
  OuvreSurLeBoucher();
  std::size_t sons = 0;
  for (const int refuse : {3, 4}) {
    SCOPED_TRACE(refuse);
    CliqueOnglet(*fenetre, refuse);
    AttendLeBoucher();
    EXPECT_THAT(b.son.joues, SizeIs(++sons));
  }
  EXPECT_EQ(b.son.joues.front(), (b.dossier.chemin() / "Exclamation").string());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(TrierLesFavoris, LesAutresOngletsSontPermis) {
  for (const int permis : {1, 2}) {
    Ouvre(5);
    CliqueOnglet(*fenetre, permis);
    EXPECT_EQ(onglet(), permis);
  }
  EXPECT_THAT(b.son.joues, IsEmpty());
}

TEST_F(TrierLesFavoris, LOngletDejaMontreNeChangeRien) {
  OuvreSurLeBoucher();
  CliqueOnglet(*fenetre, 5);
  AttendLeBoucher();
  EXPECT_THAT(b.son.joues, IsEmpty());
}

TEST_F(TrierLesFavoris, LesTouchesPassentLesOngletsRefusesSansUnSon) {
  OuvreSurTroisFavoris();
  PrendLeClavier();
  for (const auto& [touche, voisin] : {std::pair(Qt::Key_PageDown, 1), {Qt::Key_PageUp, 2}}) {
    CliqueOnglet(*fenetre, 5);
    Choisit(categories(), "Artisans");
    ASSERT_TRUE(aLeFocus("lstTriFavoris"));
    Frappe(touche, Qt::ControlModifier);
    EXPECT_EQ(onglet(), voisin);
  }
  EXPECT_THAT(b.son.joues, IsEmpty());
}

TEST_F(TrierLesFavoris, LAffichageDitLaCategorieEtSesFavoris) {
  OuvreSurLeBoucher();
  const auto vue = std::get<VueFavorisTries>(fenetre->VueCourante());
  EXPECT_EQ(vue.categorie, "Artisans");
  EXPECT_THAT(vue.favoris, ElementsAre("Affineur", "boucher", "Zinc"));
}

TEST_F(TrierLesFavoris, LAffichageDUneCategorieSansFavoriEnDitLaLigne) {
  OuvreSurTroisFavoris();
  Choisit(categories(), "Bio");
  const auto vue = std::get<VueFavorisTries>(fenetre->VueCourante());
  EXPECT_EQ(vue.categorie, "Bio");
  EXPECT_THAT(vue.favoris, ElementsAre(std::string("Aucun favori mémorisé"_1252)));
}

TEST_F(TrierLesFavoris, SansCategorieLAffichageNEnDitAucune) {
  OuvreSurTroisFavoris();
  const auto vue = std::get<VueFavorisTries>(fenetre->VueCourante());
  EXPECT_EQ(vue.categorie, std::nullopt);
  EXPECT_THAT(vue.favoris, IsEmpty());
}

TEST_F(TrierLesFavoris, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurLeBoucher();
  AttendSablier([&] { Choisit(categories(), "Artisans"); });
  AttendSablier([&] { Clique(Le("cmdActiver")); });
}

}  // namespace
}  // namespace gastrelle::essai
