// The tab "Supprimer" of the favourites' window: its two options, what is protected, one favourite.

#include <QLineEdit>

#include "favoris/fenetre/SuppressionFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class SupprimerDesFavoris : public SuppressionFavoris {
 protected:
  QStringList textes() {
    return TextesDe({"txtNomFavoriSupprimer", "txtCategorieFavoriSupprimer", "txtAdresseSupprimer",
                     "txtTelephoneSupprimer", "txtFaxSupprimer", "txtEmailSupprimer",
                     "txtWebSupprimer", "txtNoteSupprimer"});
  }
  QStringList actifs() {
    return Actifs({"Option3(0)", "Option3(1)", "ComboCategorieSupprimer",
                   "txtCategorieFavoriSupprimer", "txtNomFavoriSupprimer", "txtAdresseSupprimer",
                   "txtTelephoneSupprimer", "txtFaxSupprimer", "txtEmailSupprimer",
                   "txtWebSupprimer", "txtNoteSupprimer", "cmdValideSupprimer"});
  }
  void AttendOptionCategorie() {
    EXPECT_TRUE(estCoche("Option3(0)"));
    EXPECT_EQ(actifs(), (QStringList{"Option3(0)", "Option3(1)", "ComboCategorieSupprimer",
                                     "cmdValideSupprimer"}));
  }
  void AttendOptionFavori() {
    EXPECT_TRUE(estCoche("Option3(1)"));
    EXPECT_EQ(actifs(),
              (QStringList{"Option3(0)", "Option3(1)", "txtCategorieFavoriSupprimer",
                           "txtNomFavoriSupprimer", "txtAdresseSupprimer", "txtTelephoneSupprimer",
                           "txtFaxSupprimer", "txtEmailSupprimer", "txtWebSupprimer",
                           "txtNoteSupprimer", "cmdValideSupprimer"}));
  }
};

TEST_F(SupprimerDesFavoris, SOuvreSurLeFavoriAffiche) {
  OuvreSurAffineur(4);
  EXPECT_EQ(textes(), Affineur());
  EXPECT_EQ(categories().currentIndex(), 0);
  EXPECT_EQ(categories().currentText(), "Artisans");
  AttendOptionFavori();
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(SupprimerDesFavoris, LOngletGardeSonOptionEtReprendLeFavoriAffiche) {
  OuvreSurLesArtisans();
  Choisit(categories(), 2);
  CliqueOnglet(*fenetre, 1);
  Choisit(favoris(), "Favori 003");
  CliqueOnglet(*fenetre, 4);
  AttendOptionCategorie();
  EXPECT_EQ(categories().currentIndex(), 0);
  EXPECT_EQ(textes(), SansTexte("Favori 003", Fr("Catégorie 003")));
  Choisit(categories(), 2);
  fenetre->Desactive();
  fenetre->Active();
  AttendOptionCategorie();
  EXPECT_EQ(categories().currentIndex(), 0);
}

TEST_F(SupprimerDesFavoris, LesOptionsFermentLAutreMoitieEtNeTouchentARien) {
  OuvreSurAffineur(4);
  Clique(Le("Option3(0)"));
  AttendOptionCategorie();
  EXPECT_EQ(textes(), Affineur());
  Choisit(categories(), 2);
  Clique(Le("Option3(1)"));
  AttendOptionFavori();
  EXPECT_EQ(categories().currentIndex(), 2);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(SupprimerDesFavoris, LesOptionsNeDeplacentPasLeFocus) {
  OuvreSurAffineur(4);
  for (const char* choisie : {"Option3(0)", "Option3(1)"}) {
    Le("cmdAideSupprimer").setFocus();
    Le<QRadioButton>(choisie).setChecked(true);
    EXPECT_TRUE(aLeFocus("cmdAideSupprimer"));
  }
}

TEST_F(SupprimerDesFavoris, LesBoitesSeLisentMaisNeSeTapentPas) {
  OuvreSurAffineur(4);
  for (const char* nom : {"txtNomFavoriSupprimer", "txtCategorieFavoriSupprimer",
                          "txtAdresseSupprimer", "txtTelephoneSupprimer", "txtFaxSupprimer",
                          "txtEmailSupprimer", "txtWebSupprimer", "txtNoteSupprimer"}) {
    Tape(Le(nom), "x");
  }
  EXPECT_EQ(textes(), Affineur());
}

TEST_F(SupprimerDesFavoris, LesBoitesOntLeursLimites) {
  Ouvre(4);
  for (const auto& [nom, limite] :
       std::initializer_list<std::pair<const char*, int>>{{"txtCategorieFavoriSupprimer", 128},
                                                          {"txtNomFavoriSupprimer", 128},
                                                          {"txtTelephoneSupprimer", 32},
                                                          {"txtFaxSupprimer", 32},
                                                          {"txtEmailSupprimer", 256},
                                                          {"txtWebSupprimer", 256}}) {
    EXPECT_EQ(Le<QLineEdit>(nom).maxLength(), limite) << nom;
  }
  EXPECT_EQ(Le("txtAdresseSupprimer").property("maxLength").toInt(), 512);
  EXPECT_EQ(Le("txtNoteSupprimer").property("maxLength").toInt(), 30000);
}

TEST_F(SupprimerDesFavoris, LaDerniereCategorieDeFabriqueEstProtegeeSansQuestion) {
  OuvreSurAffineur(4);
  Clique(Le("Option3(0)"));
  Choisit(categories(), Fr("Catégorie 004"));
  ExigePointeurNormalAuxMessages();
  Supprime();
  AttendMessage("Cette catégorie de favoris ne peut être supprimée");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_TRUE(aLeFocus("Option3(0)"));
  AttendOptionCategorie();
  AttendRienDeFait(4);
}

TEST_F(SupprimerDesFavoris, LaPremiereCategorieDeLUtilisateurSeSupprime) {
  OuvreSurLesArtisans();
  Supprime(Reponse::non);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(
      b.messages.questions,
      ElementsAre(std::string(
          "Etes-vous sûr de vouloir supprimer cette catégorie de favoris ?\r\n(Attention : tous les favoris de cette catégorie seront également\r\nsupprimés.)"_1252)));
}

TEST_F(SupprimerDesFavoris, LeDernierFavoriDeFabriqueEstProtegeSansQuestion) {
  Ouvre();
  Choisit(favoris(), "Favori 015");
  CliqueOnglet(*fenetre, 4);
  ExigePointeurNormalAuxMessages();
  Supprime();
  AttendMessage("Ce favori ne peut être supprimé");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_TRUE(aLeFocus("Option3(1)"));
  AttendOptionFavori();
  AttendRienDeFait(4);
}

TEST_F(SupprimerDesFavoris, LePremierFavoriDeLUtilisateurSeSupprime) {
  OuvreSurAffineur(4);
  Supprime(Reponse::non);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.messages.questions,
              ElementsAre(std::string("Etes-vous sûr de vouloir supprimer ce favori ?"_1252)));
}

TEST_F(SupprimerDesFavoris, LaProtectionDeLUnNeGardePasLAutre) {
  OuvreSurAffineur();
  Choisit(favoris(), "Favori 002");
  CliqueOnglet(*fenetre, 4);
  Clique(Le("Option3(0)"));
  Supprime(Reponse::non);
  CliqueOnglet(*fenetre, 1);
  Choisit(favoris(), "Affineur");
  CliqueOnglet(*fenetre, 4);
  Choisit(categories(), Fr("Catégorie 004"));
  Clique(Le("Option3(1)"));
  Supprime(Reponse::non);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.messages.questions, SizeIs(2));
}

TEST_F(SupprimerDesFavoris, UnNonNeToucheARien) {
  OuvreSurLesArtisans();
  for (const char* option : {"Option3(0)", "Option3(1)"}) {
    Clique(Le(option));
    b.pointeur.sabliers = 0;
    Supprime(Reponse::non);
    EXPECT_EQ(b.messages.choix, Choix::ouiNon);
    EXPECT_EQ(b.pointeur.sabliers, 0) << option;
    AttendRienDeFait(4);
  }
  EXPECT_EQ(favoris().count(), 17);
}

TEST_F(SupprimerDesFavoris, UnFavoriSEteintEtLePremierSAffiche) {
  OuvreSurAffineur(4);
  const std::string reserve = b.dossier.Lit("GLFV3.DAT");
  std::string avant = b.dossier.Lit("GLFV2.DAT");
  RecFavori eteint = FicheFavori(b, 16);
  Supprime(Reponse::oui);
  AttendLaListe();
  eteint.actif = supprime;
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"),
            AvecCompte(avant.replace(15 * 724, 724, Octets(eteint)), 14));
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), reserve);
  EXPECT_EQ(favoris().count(), 14);
  EXPECT_EQ(favoris().currentIndex(), 0);
  EXPECT_EQ(favoriAffiche(), SansTexte("Favori 002", Fr("Catégorie 002")));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "14\nfavoris");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(SupprimerDesFavoris, UnFavoriEcritSaFichePuisLEntetePuisReliTout) {
  OuvreSurAffineur(4);
  Supprime(Reponse::oui);
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLFV2.DAT", LitFavori(16), EcritFavori(16), EcritFavori(1),
                  "existe GLFV2.DAT", "longueur GLFV2.DAT", ParcourtFavoris(16), "existe GLFV2.DAT",
                  "existe GLFV1.DAT", "existe GLFV3.DAT", LitFavori(2), LitCategorie(2)));
}

TEST_F(SupprimerDesFavoris, DeDeuxDuMemeNomCEstCeluiQuiEstAfficheQuiPart) {
  b.AjouteFavori(Favori("Affineur"), "Un");
  b.AjouteFavori(Favori("Affineur"), "Deux");
  Ouvre();
  Choisit(favoris(), 1);
  CliqueOnglet(*fenetre, 4);
  Supprime(Reponse::oui);
  EXPECT_EQ(FicheFavori(b, 16).actif, vivant);
  EXPECT_EQ(FicheFavori(b, 17).actif, supprime);
  EXPECT_EQ(TexteDe("txtAdresse"), "Un");
}

TEST_F(SupprimerDesFavoris, UnFavoriNeChercheQueSonFichier) {
  OuvreSurAffineur(4);
  b.dossier.Supprime("GLFV2.DAT");
  ExigePointeurNormalAuxMessages();
  Supprime(Reponse::oui);
  AttendFinFatale(Donnees::GLFV2);
  EXPECT_THAT(b.disque.journal(), Each(Not(HasSubstr("GLFV1"))));
}

TEST_F(SupprimerDesFavoris, LesProtectionsPrecedentLaRechercheDuFichier) {
  Ouvre(4);
  b.dossier.Supprime("GLFV1.DAT");
  b.dossier.Supprime("GLFV2.DAT");
  Supprime();
  Clique(Le("Option3(0)"));
  Supprime();
  EXPECT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_FALSE(FinVue());
}

TEST_F(SupprimerDesFavoris, UnFavoriFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      2, 4,
      [](Bibliotheque& autre) {
        PrepareAffineur(autre);
        autre.messages.reponses = {Reponse::oui};
      },
      [](QWidget& uneFenetre) { Clique(Trouve(uneFenetre, "cmdValideSupprimer")); },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(FicheFavori(autre, 16).actif, n > 1 ? supprime : vivant);
        EXPECT_EQ(FicheFavori(autre, 1).actif, 15);
        EXPECT_TRUE(autre.module->erreurFatale);
      });
}

}  // namespace
}  // namespace gastrelle::essai
