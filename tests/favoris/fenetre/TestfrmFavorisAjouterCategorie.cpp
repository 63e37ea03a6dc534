// The tab "Ajouter" of the favourites' window: its two options, and a new category.

#include "favoris/fenetre/FenetreFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class AjouterUneCategorie : public FenetreFavoris {
 protected:
  /// Opens the tab on "Une catégorie".
  void OuvreSurLaCategorie() {
    OuvreSurAffineur(2);
    Clique(Le("Option1(0)"));
    b.disque.OublieJournal();
  }
  void Ajoute(const QString& nom) {
    Tape(Le("txtCategorieAjouter"), nom);
    Clique(Le("cmdValideAjouter"));
  }
  /// Fills all seven boxes of a favourite, and chooses another category.
  void SaisitUnFavori() {
    for (const char* boite :
         {"txtNomFavoriAjouter", "txtAdresseAjouter", "txtTelephoneAjouter", "txtFaxAjouter",
          "txtEmailAjouter", "txtWebAjouter", "txtNoteAjouter"}) {
      Tape(Le(boite), "x");
    }
    Choisit(Le<QComboBox>("ComboCategorieAjouter"), 2);
  }
  void AttendPageVide() {
    EXPECT_EQ(TextesDe({"txtCategorieAjouter", "txtNomFavoriAjouter", "txtAdresseAjouter",
                        "txtTelephoneAjouter", "txtFaxAjouter", "txtEmailAjouter", "txtWebAjouter",
                        "txtNoteAjouter"})
                  .join(QString()),
              "");
    EXPECT_EQ(Le<QComboBox>("ComboCategorieAjouter").currentIndex(), 0);
  }
  QStringList actifs() {
    return Actifs({"Option1(0)", "Option1(1)", "txtCategorieAjouter", "ComboCategorieAjouter",
                   "txtNomFavoriAjouter", "txtAdresseAjouter", "txtTelephoneAjouter",
                   "txtFaxAjouter", "txtEmailAjouter", "txtWebAjouter", "txtNoteAjouter",
                   "cmdValideAjouter", "cmdEffacerAjouter"});
  }
  void AttendOptionCategorie() {
    AttendPageVide();
    EXPECT_TRUE(estCoche("Option1(0)"));
    EXPECT_EQ(actifs(), (QStringList{"Option1(0)", "Option1(1)", "txtCategorieAjouter",
                                     "cmdValideAjouter", "cmdEffacerAjouter"}));
    EXPECT_TRUE(aLeFocus("txtCategorieAjouter"));
  }
  void AttendOptionFavori() {
    AttendPageVide();
    EXPECT_TRUE(estCoche("Option1(1)"));
    EXPECT_EQ(
        actifs(),
        (QStringList{"Option1(0)", "Option1(1)", "ComboCategorieAjouter", "txtNomFavoriAjouter",
                     "txtAdresseAjouter", "txtTelephoneAjouter", "txtFaxAjouter", "txtEmailAjouter",
                     "txtWebAjouter", "txtNoteAjouter", "cmdValideAjouter", "cmdEffacerAjouter"}));
    EXPECT_TRUE(aLeFocus("ComboCategorieAjouter"));
  }
};

TEST_F(AjouterUneCategorie, LOngletSOuvreSurUnFavori) {
  OuvreSurAffineur(2);
  AttendOptionFavori();
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(AjouterUneCategorie, LOptionCategorieVideLeFavoriEtLeFerme) {
  OuvreSurAffineur(2);
  SaisitUnFavori();
  Clique(Le("Option1(0)"));
  AttendOptionCategorie();
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(AjouterUneCategorie, LOptionFavoriVideLaCategorieEtLaFerme) {
  OuvreSurLaCategorie();
  Tape(Le("txtCategorieAjouter"), "Bio");
  Clique(Le("Option1(1)"));
  AttendOptionFavori();
}

TEST_F(AjouterUneCategorie, LesFlechesPassentDUneOptionALAutre) {
  OuvreSurAffineur(2);
  Tape(Le("txtNomFavoriAjouter"), "Zinc");
  PrendLeClavier();
  Le("Option1(1)").setFocus();
  Frappe(Qt::Key_Left);
  AttendPageVide();
  EXPECT_TRUE(estCoche("Option1(0)"));
  EXPECT_TRUE(Le("txtCategorieAjouter").isEnabled());
}

TEST_F(AjouterUneCategorie, LOptionDejaChoisieNeVideRien) {
  OuvreSurLaCategorie();
  Tape(Le("txtCategorieAjouter"), "Bio");
  Clique(Le("Option1(0)"));
  EXPECT_EQ(TexteDe("txtCategorieAjouter"), "Bio");
}

TEST_F(AjouterUneCategorie, LOngletGardeSonOptionEtOublieLaSaisie) {
  OuvreSurLaCategorie();
  Tape(Le("txtCategorieAjouter"), "Bio");
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  AttendOptionCategorie();
  Clique(Le("Option1(1)"));
  SaisitUnFavori();
  fenetre->Desactive();
  fenetre->Active();
  AttendOptionFavori();
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(AjouterUneCategorie, EntreDansLesCinqListesASaPlace) {
  AjouteAffineur(b);
  OuvreEtParcourt();
  CliqueOnglet(*fenetre, 2);
  Clique(Le("Option1(0)"));
  Ajoute(Fr("  épiceries "));
  for (const char* nom : {"ComboCategorieAjouter", "ComboCategorieModifier",
                          "ComboCategorie1Modifier", "ComboCategorieSupprimer"}) {
    auto& liste = Le<QComboBox>(nom);
    EXPECT_EQ(Textes(liste), (QStringList{"Artisans", Fr("Catégorie 002"), Fr("Catégorie 003"),
                                          Fr("Catégorie 004"), Fr("épiceries")}));
    EXPECT_EQ(DonneesDe(liste), (std::vector<int>{5, 2, 3, 4, 6})) << nom;
  }
  auto& trier = Le<QComboBox>("ComboCategorieTrier");
  EXPECT_EQ(Textes(trier), (QStringList{"?", "Artisans", Fr("Catégorie 002"), Fr("Catégorie 003"),
                                        Fr("Catégorie 004"), Fr("épiceries")}));
  EXPECT_EQ(DonneesDe(trier), (std::vector<int>{0, 5, 2, 3, 4, 6}));
}

TEST_F(AjouterUneCategorie, EcritLaCategoriePuisLEntete) {
  OuvreSurLaCategorie();
  Ajoute(Fr("  Épiceries "));
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLFV1.DAT", "longueur GLFV1.DAT", EcritCategorie(6),
                          EcritCategorie(1), "longueur GLFV1.DAT", ParcourtCategories(6)));
  RecFamille attendue;
  attendue.actif = vivant;
  attendue.nomFamille = "Épiceries"_1252;
  EXPECT_EQ(Octets(FicheCategorie(b, 6)), Octets(attendue));
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT").size(), 6U * 130U);
  EXPECT_EQ(FicheCategorie(b, 1).actif, 5);
}

TEST_F(AjouterUneCategorie, RevientALaListeOuLeFavoriResteLeMeme) {
  OuvreSurAffineur();
  Choisit(favoris(), 5);
  CliqueOnglet(*fenetre, 2);
  Clique(Le("Option1(0)"));
  const QStringList avant = favoriAffiche();
  Ajoute("Bio");
  AttendLaListe();
  EXPECT_EQ(favoriAffiche(), avant);
  EXPECT_EQ(numeroAffiche(), 6);
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(FicheFavori(b, 6)));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "15\nfavoris");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  CliqueOnglet(*fenetre, 2);
  AttendOptionCategorie();
}

TEST_F(AjouterUneCategorie, UnNomVideSeDitSansBip) {
  OuvreSurLaCategorie();
  ExigePointeurNormalAuxMessages();
  Le("cmdValideAjouter").setFocus();
  Ajoute("   ");
  AttendMessage("Il faut saisir le nom de la nouvelle catégorie de favoris.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(TexteDe("txtCategorieAjouter"), "");
  EXPECT_TRUE(aLeFocus("txtCategorieAjouter"));
  AttendRienDeFait(2);
}

TEST_F(AjouterUneCategorie, UneCategorieQuiExisteEstRefuseeAvecUnBipQuelleQueSoitLaCasse) {
  OuvreSurLaCategorie();
  ExigePointeurNormalAuxMessages();
  Le("cmdValideAjouter").setFocus();
  Ajoute(Fr(" CATÉGORIE 002 "));
  AttendMessage("Cette catégorie de favoris existe déjà !");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(TexteDe("txtCategorieAjouter"), Fr("CATÉGORIE 002"));
  EXPECT_TRUE(aLeFocus("txtCategorieAjouter"));
  AttendRienDeFait(2);
}

TEST_F(AjouterUneCategorie, VinsEtVINSNeFontQuUne) {
  OuvreSurLaCategorie();
  Ajoute("Vins");
  CliqueOnglet(*fenetre, 2);
  Ajoute("VINS");
  AttendMessage("Cette catégorie de favoris existe déjà !");
  EXPECT_EQ(FicheCategorie(b, 1).actif, 5);
}

TEST_F(AjouterUneCategorie, LeRefusPrecedeLaRechercheDuFichier) {
  OuvreSurLaCategorie();
  b.dossier.Supprime("GLFV1.DAT");
  Ajoute("artisans");
  AttendMessage("Cette catégorie de favoris existe déjà !");
  EXPECT_FALSE(FinVue());
}

TEST_F(AjouterUneCategorie, LaBoitePrendCentVingtHuitLettresEtLaFicheAussi) {
  OuvreSurLaCategorie();
  Ajoute(QString(130, 'r'));
  EXPECT_EQ(NomCategorie(b, 6), std::string(128, 'r'));
}

TEST_F(AjouterUneCategorie, UneNouvelleCategorieSertAussitot) {
  OuvreSurLaCategorie();
  Ajoute("Bio");
  CliqueOnglet(*fenetre, 2);
  Clique(Le("Option1(1)"));
  Choisit(Le<QComboBox>("ComboCategorieAjouter"), "Bio");
  Tape(Le("txtNomFavoriAjouter"), "Zinc");
  Clique(Le("cmdValideAjouter"));
  EXPECT_EQ(favoriAffiche(), SansTexte("Zinc", "Bio"));
  EXPECT_EQ(FicheFavori(b, 17).idCategorie, 6);
}

TEST_F(AjouterUneCategorie, SonFichierDisparuFinitLeProgramme) {
  OuvreSurLaCategorie();
  b.dossier.Supprime("GLFV1.DAT");
  ExigePointeurNormalAuxMessages();
  Ajoute("Bio");
  AttendFinFatale(Donnees::GLFV1);
  EXPECT_EQ(onglet(), 2);
}

TEST_F(AjouterUneCategorie, UneRelectureQuiEchoueFinitLeProgrammeApresLEcriture) {
  OuvreSurLaCategorie();
  b.disque.EchoueSur("lit GLFV1.DAT", Panne::entreeSortie);
  Ajoute("Bio");
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_EQ(onglet(), 2);
  EXPECT_EQ(NomCategorie(b, 6), "Bio");
}

TEST_F(AjouterUneCategorie, FinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      2, 2, PrepareAffineur,
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option1(0)"));
        Tape(Trouve(uneFenetre, "txtCategorieAjouter"), "Bio");
        Clique(Trouve(uneFenetre, "cmdValideAjouter"));
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(autre.dossier.Lit("GLFV1.DAT").size(), (n > 1 ? 6U : 5U) * 130U);
        EXPECT_EQ(FicheCategorie(autre, 1).actif, 4);
        EXPECT_TRUE(autre.module->erreurFatale);
      });
}

TEST_F(AjouterUneCategorie, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurLaCategorie();
  AttendSablier([&] { Ajoute("Bio"); });
}

}  // namespace
}  // namespace gastrelle::essai
