// The tab "Modifier" of the favourites' window: its two options, and a category's new name.

#include <QLineEdit>

#include "favoris/fenetre/FenetreFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ModifierUneCategorie : public FenetreFavoris {
 protected:
  /// Opens the tab on "Une catégorie": the first one, "Artisans".
  void OuvreSurLaCategorie() {
    OuvreSurAffineur(3);
    Clique(Le("Option2(0)"));
    b.disque.OublieJournal();
  }
  QComboBox& categories() { return Le<QComboBox>("ComboCategorieModifier"); }
  QComboBox& sienne() { return Le<QComboBox>("ComboCategorie1Modifier"); }
  QWidget& nom() { return Le("txtCategorieModifier"); }
  void Valide() { Clique(Le("cmdValideModifier")); }
  void Renomme(const QString& nouveau) {
    Remplace(nom(), nouveau);
    Valide();
  }
  /// The page's boxes of a favourite, as the first tab shows it.
  QStringList favoriRepris() {
    return TextesDe({"txtNomFavoriModifier", "ComboCategorie1Modifier", "txtAdresseModifier",
                     "txtTelephoneModifier", "txtFaxModifier", "txtEmailModifier", "txtWebModifier",
                     "txtNoteModifier"});
  }
  QStringList actifs() {
    return Actifs({"Option2(0)", "Option2(1)", "ComboCategorieModifier", "txtCategorieModifier",
                   "ComboCategorie1Modifier", "txtNomFavoriModifier", "txtAdresseModifier",
                   "txtTelephoneModifier", "txtFaxModifier", "txtEmailModifier", "txtWebModifier",
                   "txtNoteModifier", "cmdValideModifier", "cmdEffacerModifier"});
  }
  void AttendOptionCategorie(const char* laCategorie = "Artisans") {
    EXPECT_EQ(categories().currentIndex(), 0);
    EXPECT_EQ(TexteDe("txtCategorieModifier"), laCategorie);
    EXPECT_TRUE(estCoche("Option2(0)"));
    EXPECT_EQ(actifs(),
              (QStringList{"Option2(0)", "Option2(1)", "ComboCategorieModifier",
                           "txtCategorieModifier", "cmdValideModifier", "cmdEffacerModifier"}));
    EXPECT_TRUE(aLeFocus("txtCategorieModifier"));
    EXPECT_EQ(favoriRepris(), favoriAffiche());
  }
  void AttendOptionFavori() {
    EXPECT_EQ(categories().currentIndex(), 0);
    EXPECT_EQ(TexteDe("txtCategorieModifier"), "");
    EXPECT_TRUE(estCoche("Option2(1)"));
    EXPECT_EQ(actifs(),
              (QStringList{"Option2(0)", "Option2(1)", "ComboCategorie1Modifier",
                           "txtNomFavoriModifier", "txtAdresseModifier", "txtTelephoneModifier",
                           "txtFaxModifier", "txtEmailModifier", "txtWebModifier",
                           "txtNoteModifier", "cmdValideModifier", "cmdEffacerModifier"}));
    EXPECT_TRUE(aLeFocus("ComboCategorie1Modifier"));
    EXPECT_EQ(favoriRepris(), favoriAffiche());
  }
};

TEST_F(ModifierUneCategorie, LOngletSOuvreSurLeFavoriAffiche) {
  OuvreSurAffineur(3);
  AttendOptionFavori();
  EXPECT_EQ(sienne().currentData().toInt(), 5);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(ModifierUneCategorie, LOptionCategorieMontreLeFavoriSansPermettreDYToucher) {
  OuvreSurAffineur(3);
  Remplace(Le("txtNomFavoriModifier"), "Autre");
  Remplace(Le("txtNoteModifier"), "Autre note");
  Choisit(sienne(), 3);
  Clique(Le("Option2(0)"));
  AttendOptionCategorie();
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(ModifierUneCategorie, LOptionFavoriVideLeNomDeLaCategorieEtLeFerme) {
  OuvreSurLaCategorie();
  Choisit(categories(), 2);
  Tape(nom(), "x");
  Clique(Le("Option2(1)"));
  AttendOptionFavori();
}

TEST_F(ModifierUneCategorie, LOngletGardeSonOptionEtReprendLeFavoriAffiche) {
  OuvreSurLaCategorie();
  Choisit(categories(), 2);
  CliqueOnglet(*fenetre, 1);
  Choisit(favoris(), 4);
  CliqueOnglet(*fenetre, 3);
  AttendOptionCategorie();
  EXPECT_EQ(TexteDe("txtNomFavoriModifier"), "Favori 005");
  Clique(Le("Option2(1)"));
  Remplace(Le("txtNomFavoriModifier"), "Autre");
  fenetre->Desactive();
  fenetre->Active();
  AttendOptionFavori();
}

TEST_F(ModifierUneCategorie, ChoisirUneCategorieReprendSonNomEtLeClavier) {
  OuvreSurLaCategorie();
  for (const int choisie : {2, 0, 3}) {
    Le("cmdValideModifier").setFocus();
    Choisit(categories(), choisie);
    EXPECT_EQ(TexteDe("txtCategorieModifier"), categories().itemText(choisie));
    EXPECT_TRUE(nom().isEnabled());
    EXPECT_TRUE(aLeFocus("txtCategorieModifier"));
  }
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(ModifierUneCategorie, LaRenommerLaChangePartout) {
  AjouteAffineur(b);
  OuvreEtParcourt();
  CliqueOnglet(*fenetre, 3);
  Clique(Le("Option2(0)"));
  Renomme(Fr("  Fermiers d'ici "));
  AttendLaListe();
  QStringList attendues{Fr("Catégorie 002"), Fr("Catégorie 003"), Fr("Catégorie 004"),
                        "Fermiers d'ici"};
  for (const char* liste : {"ComboCategorieAjouter", "ComboCategorieModifier",
                            "ComboCategorie1Modifier", "ComboCategorieSupprimer"}) {
    EXPECT_EQ(Textes(Le<QComboBox>(liste)), attendues) << liste;
    EXPECT_EQ(DonneesDe(Le<QComboBox>(liste)), (std::vector<int>{2, 3, 4, 5})) << liste;
  }
  EXPECT_EQ(Textes(Le<QComboBox>("ComboCategorieTrier")), QStringList{"?"} + attendues);
  EXPECT_EQ(TexteDe("txtCategorie"), "Fermiers d'ici");
}

TEST_F(ModifierUneCategorie, SEcritASaPlaceEtRienDAutre) {
  OuvreSurLaCategorie();
  const std::string favorisAvant = b.dossier.Lit("GLFV2.DAT");
  std::string avant = b.dossier.Lit("GLFV1.DAT");
  Renomme(Fr("Fermiers d'été"));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV1.DAT", EcritCategorie(5),
                                              "longueur GLFV1.DAT", ParcourtCategories(5)));
  RecFamille attendue;
  attendue.actif = vivant;
  attendue.nomFamille = "Fermiers d'été"_1252;
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT"), avant.replace(4 * 130, 130, Octets(attendue)));
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), favorisAvant);
}

TEST_F(ModifierUneCategorie, CelleDuFavoriAfficheSeRenommeSurLaListeUneAutreNon) {
  OuvreSurLaCategorie();
  Choisit(categories(), Fr("Catégorie 003"));
  Renomme("Zones");
  EXPECT_EQ(NomCategorie(b, 3), "Zones");
  EXPECT_EQ(favoriAffiche(), Affineur());
  CliqueOnglet(*fenetre, 3);
  Renomme("Fermiers");
  EXPECT_EQ(TexteDe("txtCategorie"), "Fermiers");
  EXPECT_EQ(numeroAffiche(), 16);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(ModifierUneCategorie, ApresUnTriCEstEncoreCelleDuFavoriAffiche) {
  AjouteAffineur(b);
  b.AjouteFavori(Favori("Zinc", 2));
  Ouvre(5);
  Choisit(Le<QComboBox>("ComboCategorieTrier"), Fr("Catégorie 002"));
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 3);
  Clique(Le("Option2(0)"));
  Choisit(categories(), Fr("Catégorie 002"));
  Renomme("Zones");
  EXPECT_EQ(favoriAffiche(), Affineur());
}

TEST_F(ModifierUneCategorie, UneCategorieDeFabriqueSeRenommeAussi) {
  OuvreSurLaCategorie();
  Choisit(categories(), Fr("Catégorie 002"));
  Renomme("Zones");
  EXPECT_EQ(NomCategorie(b, 2), "Zones");
}

TEST_F(ModifierUneCategorie, UnNomVideSeDitSansBip) {
  OuvreSurLaCategorie();
  ExigePointeurNormalAuxMessages();
  Remplace(nom(), "   ");
  Le("cmdValideModifier").setFocus();
  Valide();
  AttendMessage("Il faut saisir le nouveau nom de la catégorie de favoris.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(TexteDe("txtCategorieModifier"), "");
  EXPECT_TRUE(aLeFocus("txtCategorieModifier"));
  AttendRienDeFait(3);
}

TEST_F(ModifierUneCategorie, LeNomDUneAutreEstRefuseAvecUnBipQuelleQueSoitLaCasse) {
  OuvreSurLaCategorie();
  ExigePointeurNormalAuxMessages();
  Remplace(nom(), Fr(" CATÉGORIE 004 "));
  Le("cmdValideModifier").setFocus();
  Valide();
  AttendMessage("Cette catégorie de favoris existe déjà !");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(TexteDe("txtCategorieModifier"), Fr("CATÉGORIE 004"));
  EXPECT_TRUE(aLeFocus("txtCategorieModifier"));
  AttendRienDeFait(3);
}

TEST_F(ModifierUneCategorie, UnSimpleChangementDeCasseEtLeMemeNomPassent) {
  OuvreSurLaCategorie();
  Renomme("ARTISANS");
  EXPECT_EQ(NomCategorie(b, 5), "ARTISANS");
  CliqueOnglet(*fenetre, 3);
  Valide();
  EXPECT_EQ(NomCategorie(b, 5), "ARTISANS");
  EXPECT_EQ(TexteDe("txtCategorie"), "ARTISANS");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(ModifierUneCategorie, LeRefusPrecedeLaRechercheDuFichier) {
  OuvreSurLaCategorie();
  b.dossier.Supprime("GLFV1.DAT");
  Renomme("");
  Renomme(Fr("catégorie 002"));
  EXPECT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_FALSE(FinVue());
}

TEST_F(ModifierUneCategorie, LaBoitePrendCentVingtHuitLettres) {
  OuvreSurLaCategorie();
  EXPECT_EQ(Le<QLineEdit>("txtCategorieModifier").maxLength(), 128);
  Renomme(QString(130, 'c'));
  EXPECT_EQ(NomCategorie(b, 5), std::string(128, 'c'));
  EXPECT_EQ(TexteDe("txtCategorie"), QString(128, 'c'));
}

TEST_F(ModifierUneCategorie, CtrlZRendCeQuiEtaitTape) {
  OuvreSurLaCategorie();
  Remplace(nom(), "Fermiers");
  Clique(Le("cmdEffacerModifier"));
  EXPECT_EQ(TexteDe("txtCategorieModifier"), "");
  QTest::keyClick(&nom(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TexteDe("txtCategorieModifier"), "Fermiers");
}

TEST_F(ModifierUneCategorie, ReinitialiserVideLeNomSansQuestionEtRendLeClavierALaListe) {
  OuvreSurLaCategorie();
  Choisit(categories(), 2);
  Clique(Le("cmdEffacerModifier"));
  EXPECT_EQ(categories().currentIndex(), 0);
  EXPECT_EQ(TexteDe("txtCategorieModifier"), "");
  EXPECT_TRUE(nom().isEnabled());
  EXPECT_TRUE(aLeFocus("ComboCategorieModifier"));
  EXPECT_EQ(favoriRepris(), favoriAffiche());
  EXPECT_THAT(b.messages.questions, IsEmpty());
  Valide();
  AttendMessage("Il faut saisir le nouveau nom de la catégorie de favoris.");
}

TEST_F(ModifierUneCategorie, SonFichierDisparuFinitLeProgramme) {
  OuvreSurLaCategorie();
  b.dossier.Supprime("GLFV1.DAT");
  ExigePointeurNormalAuxMessages();
  Renomme("Fermiers");
  AttendFinFatale(Donnees::GLFV1);
  EXPECT_EQ(onglet(), 3);
}

TEST_F(ModifierUneCategorie, UneRelectureQuiEchoueFinitLeProgrammeApresLEcriture) {
  OuvreSurLaCategorie();
  b.disque.EchoueSur("lit GLFV1.DAT", Panne::entreeSortie);
  Renomme("Fermiers");
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_EQ(onglet(), 3);
  EXPECT_EQ(NomCategorie(b, 5), "Fermiers");
}

TEST_F(ModifierUneCategorie, SonEcritureQuiEchoueFinitLeProgramme) {
  FinitAChaqueEcriture(
      1, 3, PrepareAffineur,
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option2(0)"));
        Remplace(Trouve(uneFenetre, "txtCategorieModifier"), "Fermiers");
        Clique(Trouve(uneFenetre, "cmdValideModifier"));
      },
      [](const Bibliotheque& autre, std::size_t /*n*/) {
        EXPECT_EQ(NomCategorie(autre, 5), "Artisans");
        EXPECT_TRUE(autre.module->erreurFatale);
      });
}

TEST_F(ModifierUneCategorie, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurLaCategorie();
  AttendSablier([&] { Renomme("Fermiers"); });
}

}  // namespace
}  // namespace gastrelle::essai
