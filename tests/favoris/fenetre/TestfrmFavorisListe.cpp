// The tab "Liste" of the favourites' window: a favourite and what is known of it.

#include <string>
#include <vector>

#include <QLineEdit>

#include "favoris/fenetre/FenetreFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class FavorisListe : public FenetreFavoris {
 protected:
  /// Opens the window, which ends the program.
  void AttendOuvertureFatale() {
    cadre.emplace(*b.module);
    EXPECT_THROW(Cree(), FinDuProgramme);
    ASSERT_FALSE(b.messages.vus.empty());
    EXPECT_EQ(b.messages.vus.back(),
              (MessageVu{DepuisUtf8("Erreur fatale. Impossibilité de continuer."), Icone::critique,
                         std::string(titreApplication)}));
  }
  /// "Affineur" with a record changed on file before the window opens.
  template <class Change>
  void OuvreSurAffineurChange(Change change) {
    AjouteAffineur(b);
    b.Demarre();
    RecFavori favori = FicheFavori(b, 16);
    change(favori);
    b.module->bufFavori.Ecrit(16, favori);
    Ouvre();
  }
};

TEST_F(FavorisListe, MontreLePremierFavoriALOuverture) {
  OuvreSurAffineur();
  EXPECT_EQ(favoriAffiche(), Affineur());
  EXPECT_EQ(numeroAffiche(), 16);
  EXPECT_EQ(cadre->contextes, std::vector<std::int16_t>{71});
  EXPECT_EQ(cadre->cochee, EntreeVue::favoris);
  AttendLaListe();
}

TEST_F(FavorisListe, SOuvreParLesCategoriesPuisLesFavorisPuisLePremierDEntreEux) {
  AjouteAffineur(b);
  b.Demarre();
  cadre.emplace(*b.module);
  fenetre = Cree();
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLFV2.DAT", "longueur GLFV1.DAT", ParcourtCategories(5),
                  "existe GLFV2.DAT", "longueur GLFV2.DAT", ParcourtFavoris(16), "existe GLFV2.DAT",
                  "existe GLFV1.DAT", "existe GLFV3.DAT", LitFavori(16), LitCategorie(5),
                  "longueur GLFV3.DAT", LitTexte(10, 10), "longueur GLFV3.DAT", LitTexte(20, 12)));
}

TEST_F(FavorisListe, ClasseSansCasseNiAccentEtGardeLesNumeros) {
  b.AjouteFavori(Favori("Épicier"_1252));
  b.AjouteFavori(Favori("Epicerie"));
  b.AjouteFavori(Favori("boucher"));
  Ouvre();
  EXPECT_EQ(favoris().count(), 17);
  EXPECT_EQ(Textes(favoris()).mid(0, 4),
            (QStringList{"boucher", "Epicerie", Fr("Épicier"), "Favori 002"}));
  EXPECT_EQ(DonneesDe(favoris()),
            (std::vector<int>{18, 17, 16, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}));
}

TEST_F(FavorisListe, UnFavoriSupprimeNEstPasListe) {
  OuvreSurAffineur();
  RecFavori parti = FicheFavori(b, 7);
  parti.actif = supprime;
  b.module->bufFavori.Ecrit(7, parti);
  b.module->bufFavori.nbActifs() = 14;
  Rouvre();
  EXPECT_EQ(favoris().count(), 14);
  EXPECT_EQ(favoris().findText("Favori 007"), -1);
}

TEST_F(FavorisListe, ChangeDeFavoriALaSouris) {
  OuvreSurAffineur();
  Choisit(favoris(), 1);
  EXPECT_EQ(favoriAffiche(), SansTexte("Favori 002", Fr("Catégorie 002")));
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(FicheFavori(b, 2)));
  AttendLaListe();
  Choisit(favoris(), 0);
  EXPECT_EQ(favoriAffiche(), Affineur());
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(FicheFavori(b, 16)));
  AttendLaListe();
}

TEST_F(FavorisListe, DistingueDeuxFavorisDuMemeNom) {
  b.AjouteFavori(Favori("Affineur", 3), "Un");
  b.AjouteFavori(Favori("Affineur", 4), "Deux");
  Ouvre();
  Choisit(favoris(), 1);
  EXPECT_EQ(numeroAffiche(), 17);
  EXPECT_EQ(TextesDe({"txtCategorie", "txtAdresse"}), (QStringList{Fr("Catégorie 004"), "Deux"}));
  Choisit(favoris(), 0);
  EXPECT_EQ(numeroAffiche(), 16);
  EXPECT_EQ(TextesDe({"txtCategorie", "txtAdresse"}), (QStringList{Fr("Catégorie 003"), "Un"}));
}

TEST_F(FavorisListe, RogneLesChampsEtLEmailEtLeSiteJusqueDansLaFicheDeTravail) {
  OuvreSurAffineurChange([](RecFavori& favori) {
    favori.telephone = "  01 02 ";
    favori.fax = "  03 04 ";
    favori.email = "  a@b.fr ";
    favori.siteWeb = "  b.fr ";
  });
  EXPECT_EQ(TextesDe({"txtTelephone", "txtFax", "txtEmail", "txtWeb"}),
            (QStringList{"01 02", "03 04", "a@b.fr", "b.fr"}));
  RecFavori attendu = FicheFavori(b, 16);
  attendu.email = "a@b.fr";
  attendu.siteWeb = "b.fr";
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(attendu));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(FavorisListe, UnePositionSousUnNeMontreAucunTexte) {
  for (const std::int32_t position : {0, -5}) {
    SCOPED_TRACE(position);
    OuvreSurAffineurChange([&](RecFavori& favori) {
      favori.posAdresse = position;
      favori.posTexte = position;
    });
    EXPECT_EQ(TextesDe({"txtAdresse", "txtNotes"}), (QStringList{"", ""}));
    EXPECT_FALSE(FinVue());
    fenetre.reset();
    b.Redemarre();
  }
}

TEST_F(FavorisListe, LesTextesSArretentACeQueTientLeurBoite) {
  b.AjouteFavori(Favori("Bavard"), std::string(600, 'a'), std::string(30100, 'n'));
  Ouvre();
  EXPECT_EQ(TexteDe("txtAdresse"), QString(512, 'a'));
  EXPECT_EQ(TexteDe("txtNotes"), QString(30000, 'n'));
}

TEST_F(FavorisListe, UneCategorieSupprimeeDonneEncoreSonNom) {
  OuvreSurAffineur();
  RecFamille partie = FicheCategorie(b, 5);
  partie.actif = supprime;
  b.module->bufCategorie.Ecrit(5, partie);
  b.module->bufCategorie.nbActifs() = 3;
  Rouvre();
  EXPECT_EQ(favoriAffiche(), Affineur());
}

TEST_F(FavorisListe, ChacunDesTroisFichiersEstChercheDansLOrdre) {
  OuvreSurAffineur();
  for (const char* fichier : {"GLFV3.DAT", "GLFV1.DAT", "GLFV2.DAT"}) {
    SCOPED_TRACE(fichier);
    b.messages.vus.clear();
    b.messages.bips = 0;
    b.dossier.Supprime(fichier);
    ExigePointeurNormalAuxMessages();
    Choisit(favoris(), 1);
    AttendFinFatale();
    EXPECT_THAT(b.messages.vus, SizeIs(2));
    EXPECT_EQ(b.messages.vus[0], NonTrouve(b, fichier));
    EXPECT_EQ(b.messages.bips, 1);
  }
}

TEST_F(FavorisListe, ChaqueLectureQuiEchoueFinitLeProgramme) {
  const std::vector<std::string> lectures{LitFavori(16), LitCategorie(5), LitTexte(10, 10),
                                          LitTexte(20, 12)};
  AjouteAffineur(b);
  for (const std::string& lecture : lectures) {
    SCOPED_TRACE(lecture);
    Ouvre();
    b.disque.EchoueSur(lecture, Panne::entreeSortie);
    Choisit(favoris(), 0);
    AttendFinFatale();
    EXPECT_THAT(b.messages.vus, SizeIs(1));
    fenetre.reset();
    b.disque.Guerit();
    b.messages.vus.clear();
    b.Redemarre();
  }
}

TEST_F(FavorisListe, UneCategorieQuiNEstPasUnNumeroFinitLeProgramme) {
  b.AjouteFavori(Favori("Zut", 0));
  Ouvre();
  Choisit(favoris(), 14);
  AttendFinFatale();
}

TEST_F(FavorisListe, UnCompteTropHautEstRepareALOuverture) {
  PoseCompte(b, "GLFV2.stp", 60);
  AjouteAffineur(b);
  Ouvre();
  EXPECT_EQ(favoris().count(), 15);
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "15\nfavoris");
  EXPECT_EQ(FicheFavori(b, 1).actif, 15);
}

TEST_F(FavorisListe, UneReparationQuiEchoueEstIgnoree) {
  PoseCompte(b, "GLFV2.stp", 60);
  b.disque.EchoueSur("écrit GLFV2.DAT", Panne::disquePlein);
  Ouvre();
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(favoris().count(), 14);
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "14\nfavoris");
  EXPECT_EQ(FicheFavori(b, 1).actif, 60);
}

TEST_F(FavorisListe, UnCompteTropBasLaisseLesDerniersHorsDeLaListe) {
  AjouteAffineur(b);
  PoseCompte(b, "GLFV2.stp", 14);
  Ouvre();
  EXPECT_EQ(favoris().count(), 14);
  EXPECT_EQ(favoris().findText("Affineur"), -1);
  EXPECT_EQ(FicheFavori(b, 1).actif, 14);
}

TEST_F(FavorisListe, LeCompteDesCategoriesNEstPasRepare) {
  PoseCompte(b, "GLFV1.stp", 40);
  Ouvre(2);
  EXPECT_EQ(Le<QComboBox>("ComboCategorieAjouter").count(), 3);
  EXPECT_EQ(FicheCategorie(b, 1).actif, 40);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(FavorisListe, UnCatalogueSansFavoriSOuvreVide) {
  b.dossier.Ecrit("GLFV2.stp", b.dossier.Lit("GLFV2.stp").substr(0, 724));
  Ouvre();
  EXPECT_EQ(favoris().count(), 0);
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "0\nfavoris");
  EXPECT_EQ(favoriAffiche(), SansTexte("", ""));
  AttendLaListe();
}

TEST_F(FavorisListe, SansLeFichierDesFavorisLaFenetreNeSOuvrePas) {
  b.Demarre();
  b.dossier.Supprime("GLFV2.DAT");
  ExigePointeurNormalAuxMessages();
  AttendOuvertureFatale();
  ASSERT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_EQ(b.messages.vus[0], NonTrouve(b, "GLFV2.DAT"));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV2.DAT"));
}

TEST_F(FavorisListe, UneLectureQuiEchoueALOuvertureFinitLeProgramme) {
  for (const char* lecture : {"lit GLFV1.DAT", "longueur GLFV2.DAT", "lit GLFV2.DAT 724"}) {
    SCOPED_TRACE(lecture);
    b.Redemarre();
    b.disque.EchoueSur(lecture, Panne::entreeSortie);
    AttendOuvertureFatale();
    EXPECT_THAT(b.messages.vus, SizeIs(1));
    b.disque.Guerit();
    b.messages.vus.clear();
  }
}

TEST_F(FavorisListe, LesBoitesSeLisentMaisNeSeTapentPas) {
  OuvreSurAffineur();
  for (const char* nom :
       {"txtCategorie", "txtAdresse", "txtTelephone", "txtFax", "txtEmail", "txtWeb", "txtNotes"}) {
    Tape(Le(nom), "x");
  }
  EXPECT_EQ(favoriAffiche(), Affineur());
}

TEST_F(FavorisListe, LesBoitesOntLeursLimites) {
  Ouvre();
  EXPECT_EQ(Le<QLineEdit>("txtCategorie").maxLength(), 128);
  EXPECT_EQ(Le("txtAdresse").property("maxLength").toInt(), 512);
  EXPECT_EQ(Le<QLineEdit>("txtTelephone").maxLength(), 32);
  EXPECT_EQ(Le<QLineEdit>("txtFax").maxLength(), 32);
  EXPECT_EQ(Le<QLineEdit>("txtEmail").maxLength(), 256);
  EXPECT_EQ(Le<QLineEdit>("txtWeb").maxLength(), 256);
  EXPECT_EQ(Le("txtNotes").property("maxLength").toInt(), 30000);
}

TEST_F(FavorisListe, LAffichageDitToutDuFavori) {
  OuvreSurAffineur();
  const auto vue = std::get<VueFavori>(fenetre->VueCourante());
  EXPECT_THAT((std::vector<std::string>{vue.nom, vue.categorie, vue.adresse, vue.telephone, vue.fax,
                                        vue.email, vue.siteWeb, vue.notes}),
              ElementsAre("Affineur", "Artisans", "1 rue Haut", "01 02 03 04 05", "01 02 03 04 06",
                          "affineur@exemple.fr", "https://exemple.fr", "Douze octets"));
}

TEST_F(FavorisListe, LesOngletsDeSaisieNAffichentRien) {
  Ouvre();
  for (const int saisie : {2, 3, 4}) {
    CliqueOnglet(*fenetre, saisie);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(fenetre->VueCourante())) << saisie;
  }
}

TEST_F(FavorisListe, LOngletDejaMontreNeChangeRien) {
  OuvreSurAffineur();
  Le("txtNotes").setFocus();
  CliqueOnglet(*fenetre, 1);
  EXPECT_TRUE(aLeFocus("txtNotes"));
  EXPECT_EQ(cadre->contextes, std::vector<std::int16_t>{71});
  AttendRienDeFait(1);
}

TEST_F(FavorisListe, LActivationRendLeFocusALaCategorieEtLePointeur) {
  OuvreSurAffineur();
  Le("txtNotes").setFocus();
  fenetre->Desactive();
  b.pointeur.Sablier();
  fenetre->Active();
  AttendLaListe();
}

TEST_F(FavorisListe, LActivationAvecUneErreurFataleFinitLeProgramme) {
  OuvreSurAffineur();
  b.module->erreurFatale = true;
  EXPECT_THROW(fenetre->Active(), FinDuProgramme);
  EXPECT_EQ(b.messages.vus.back().texte, DepuisUtf8("Erreur fatale. Impossibilité de continuer."));
}

TEST_F(FavorisListe, TrenteDeuxMilleSeptCentSoixanteSixFavorisSeListentDansLOrdre) {
  constexpr int nombre = 32766;
  RecFavori entete;
  Decode(entete, b.dossier.Lit("GLFV2.stp").data());
  entete.actif = nombre;
  std::string octets = Octets(entete);
  for (int numero = 2; numero <= nombre + 1; ++numero) {
    RecFavori favori = Favori("F" + std::to_string(100000 - numero));
    favori.actif = vivant;
    octets += Octets(favori);
  }
  b.dossier.Ecrit("GLFV2.stp", octets);
  Ouvre();
  EXPECT_EQ(favoris().count(), nombre);
  EXPECT_EQ(numeroAffiche(), nombre + 1);
  EXPECT_EQ(favoris().itemText(nombre - 1), "F99998");
  EXPECT_EQ(favoriAffiche(), SansTexte("F67233", Fr("Catégorie 002")));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "32766\nfavoris");
}

TEST_F(FavorisListe, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurAffineur();
  AttendSablier([&] { Choisit(favoris(), 1); });
}

}  // namespace
}  // namespace gastrelle::essai
