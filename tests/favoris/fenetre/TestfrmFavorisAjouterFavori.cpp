// The tab "Ajouter" of the favourites' window: a new favourite, whose failures no guard catches.

#include <array>

#include <QLineEdit>

#include "favoris/fenetre/FenetreFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::array boites{"txtCategorieAjouter", "txtNomFavoriAjouter", "txtAdresseAjouter",
                            "txtTelephoneAjouter", "txtFaxAjouter",       "txtEmailAjouter",
                            "txtWebAjouter",       "txtNoteAjouter"};
constexpr const char* reserve = "GLFV3.DAT1 rue HautDouze octets";  // with those of "Affineur"

class AjouterUnFavori : public FenetreFavoris {
 protected:
  QComboBox& categories() { return Le<QComboBox>("ComboCategorieAjouter"); }
  void Valide() { Clique(Le("cmdValideAjouter")); }
  void Ajoute(const QString& nom, const QString& adresse = {}, const QString& notes = {}) {
    Tape(Le("txtNomFavoriAjouter"), nom);
    Tape(Le("txtAdresseAjouter"), adresse);
    Tape(Le("txtNoteAjouter"), notes);
    Valide();
  }
  void Efface(Reponse reponse) {
    b.messages.reponses = {reponse};
    Clique(Le("cmdEffacerAjouter"));
  }
  QStringList saisie() {
    return TextesDe({"txtNomFavoriAjouter", "txtAdresseAjouter", "txtTelephoneAjouter",
                     "txtFaxAjouter", "txtEmailAjouter", "txtWebAjouter", "txtNoteAjouter"});
  }
};

TEST_F(AjouterUnFavori, EnregistreToutEtMontreLeNouveau) {
  OuvreSurAffineur(2);
  Choisit(categories(), Fr("Catégorie 003"));
  Tape(Le("txtNomFavoriAjouter"), "  Zinc ");
  Tape(Le("txtAdresseAjouter"), " 2 rue\nBasse ");
  Tape(Le("txtTelephoneAjouter"), " 11 ");
  Tape(Le("txtFaxAjouter"), " 22 ");
  Tape(Le("txtEmailAjouter"), " z@b.fr ");
  Tape(Le("txtWebAjouter"), " b.fr ");
  Tape(Le("txtNoteAjouter"), Fr(" Fermé\nle lundi "));
  Valide();

  AttendLaListe();
  EXPECT_EQ(numeroAffiche(), 17);
  EXPECT_EQ(favoriAffiche(), (QStringList{"Zinc", Fr("Catégorie 003"), "2 rue\nBasse", "11", "22",
                                          "z@b.fr", "b.fr", Fr("Fermé\nle lundi")}));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "16\nfavoris");
  RecFavori attendu = Favori("Zinc", 3);
  attendu.actif = vivant;
  attendu.posAdresse = 32;
  attendu.lgAdresse = 12;
  attendu.telephone = "11";
  attendu.fax = "22";
  attendu.email = "z@b.fr";
  attendu.siteWeb = "b.fr";
  attendu.posTexte = 44;
  attendu.lgTexte = 15;
  EXPECT_EQ(Octets(FicheFavori(b, 17)), Octets(attendu));
  EXPECT_EQ(FicheFavori(b, 1).actif, 16);
  std::string attendue = reserve;
  attendue += "2 rue\r\nBasseFermé\r\nle lundi"_1252;
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), attendue);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(AjouterUnFavori, EcritLAdresseLesNotesLaFicheLEntetePuisReliToutEtMontre) {
  OuvreSurAffineur(2);
  Choisit(categories(), Fr("Catégorie 003"));
  Ajoute("Zinc", "Bas", "Vu");
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLFV2.DAT", "existe GLFV3.DAT", "longueur GLFV3.DAT", EcritTexte(32, 3),
                  "longueur GLFV3.DAT", EcritTexte(35, 2), "longueur GLFV2.DAT", EcritFavori(17),
                  EcritFavori(1), "existe GLFV2.DAT", "longueur GLFV2.DAT", ParcourtFavoris(17),
                  "existe GLFV2.DAT", "existe GLFV1.DAT", "existe GLFV3.DAT", LitFavori(17),
                  LitCategorie(3), "longueur GLFV3.DAT", LitTexte(32, 3), "longueur GLFV3.DAT",
                  LitTexte(35, 2)));
}

TEST_F(AjouterUnFavori, SansTexteLaReserveNEstNiChercheeNiEcrite) {
  OuvreSurAffineur(2);
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne == EcritFavori(17)) {  // showing it asks for the three files
      EXPECT_THAT(b.disque.journal(), Not(testing::Contains(testing::HasSubstr("GLFV3"))));
    }
  };
  Ajoute("Zinc", "  ", " ");
  b.disque.pendant = nullptr;
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritFavori(17), EcritFavori(1)));
  RecFavori attendu = Favori("Zinc", 5);
  attendu.actif = vivant;
  EXPECT_EQ(Octets(FicheFavori(b, 17)), Octets(attendu));
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), reserve);
  EXPECT_EQ(favoriAffiche(), SansTexte("Zinc", "Artisans"));
}

TEST_F(AjouterUnFavori, UnSeulTexteNEcritQueLui) {
  OuvreSurAffineur(2);
  Ajoute("Zinc", "", "Vu");
  EXPECT_EQ(FicheFavori(b, 17).posAdresse, 0);
  EXPECT_EQ(FicheFavori(b, 17).lgAdresse, 0);
  EXPECT_EQ(FicheFavori(b, 17).posTexte, 32);
  CliqueOnglet(*fenetre, 2);
  Ajoute("Zinc", "Bas");
  EXPECT_EQ(FicheFavori(b, 18).posAdresse, 34);
  EXPECT_EQ(FicheFavori(b, 18).posTexte, 0);
  EXPECT_EQ(FicheFavori(b, 18).lgTexte, 0);
}

TEST_F(AjouterUnFavori, UnNomVideSeDitSansBipEtNeRogneRien) {
  OuvreSurAffineur(2);
  Tape(Le("txtAdresseAjouter"), " Bas ");
  Tape(Le("txtNomFavoriAjouter"), "   ");
  ExigePointeurNormalAuxMessages();
  b.disque.OublieJournal();
  Le("txtNoteAjouter").setFocus();
  Valide();
  AttendMessage("Il faut donner un nom au nouveau favori.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(saisie(), (QStringList{"", " Bas ", "", "", "", "", ""}));
  EXPECT_TRUE(aLeFocus("txtNomFavoriAjouter"));
  AttendRienDeFait(2);
}

TEST_F(AjouterUnFavori, LeRefusPrecedeLaRechercheDesFichiers) {
  OuvreSurAffineur(2);
  b.dossier.Supprime("GLFV2.DAT");
  Ajoute("", "Bas");
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_FALSE(FinVue());
}

TEST_F(AjouterUnFavori, LesTextesSeRognentDansLeursBoites) {
  OuvreSurAffineur(2);
  for (const char* boite : boites) {
    if (Le(boite).isEnabled()) {
      Tape(Le(boite), " x ");
    }
  }
  b.dossier.Supprime("GLFV3.DAT");
  Valide();
  EXPECT_EQ(saisie(), QStringList(7, "x"));
}

TEST_F(AjouterUnFavori, LeMemeNomSAjouteDeuxFois) {
  OuvreSurAffineur(2);
  Ajoute("AFFINEUR");
  CliqueOnglet(*fenetre, 2);
  Ajoute("AFFINEUR");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(numeroAffiche(), 18);
  EXPECT_EQ(Textes(favoris()).mid(0, 4),
            (QStringList{"Affineur", "AFFINEUR", "AFFINEUR", "Favori 002"}));
  EXPECT_EQ(favoris().count(), 17);
  EXPECT_EQ(favoris().currentIndex(), 2);
}

TEST_F(AjouterUnFavori, LesBoitesOntLeursLimites) {
  Ouvre(2);
  for (const auto& [nom, limite] :
       std::initializer_list<std::pair<const char*, int>>{{"txtCategorieAjouter", 128},
                                                          {"txtNomFavoriAjouter", 128},
                                                          {"txtTelephoneAjouter", 32},
                                                          {"txtFaxAjouter", 32},
                                                          {"txtEmailAjouter", 256},
                                                          {"txtWebAjouter", 256}}) {
    EXPECT_EQ(Le<QLineEdit>(nom).maxLength(), limite) << nom;
  }
  Tape(Le("txtAdresseAjouter"), QString(520, 'a'));
  EXPECT_EQ(TexteDe("txtAdresseAjouter"), QString(512, 'a'));
  EXPECT_EQ(Le("txtNoteAjouter").property("maxLength").toInt(), 30000);
}

TEST_F(AjouterUnFavori, CeQueTiennentLesBoitesTientDansLaFiche) {
  OuvreSurAffineur(2);
  Tape(Le("txtNomFavoriAjouter"), QString(130, 'z'));
  Tape(Le("txtTelephoneAjouter"), QString(40, '1'));
  Tape(Le("txtFaxAjouter"), QString(40, '2'));
  Tape(Le("txtEmailAjouter"), QString(260, 'e'));
  Tape(Le("txtWebAjouter"), QString(260, 'w'));
  Valide();
  EXPECT_EQ(favoriAffiche(),
            (QStringList{QString(128, 'z'), "Artisans", "", QString(32, '1'), QString(32, '2'),
                         QString(256, 'e'), QString(256, 'w'), ""}));
}

TEST_F(AjouterUnFavori, ChaqueEcritureQuiEchoueSeDitParSonNumeroEtResteACeQuiEstEcrit) {
  AChaqueEcriture(
      4, 2, PrepareAffineur,
      [](QWidget& uneFenetre) {
        Tape(Trouve(uneFenetre, "txtNomFavoriAjouter"), "Zinc");
        Tape(Trouve(uneFenetre, "txtAdresseAjouter"), "Bas");
        Tape(Trouve(uneFenetre, "txtNoteAjouter"), "Vu");
        Clique(Trouve(uneFenetre, "cmdValideAjouter"));
        EXPECT_EQ(Trouve<QTabBar>(uneFenetre, "TabStrip1").currentIndex(), 1);
      },
      [](const Bibliotheque& autre, std::size_t n) {
        AttendDisquePlein(autre);
        const std::string ecrits = n == 1 ? "" : n == 2 ? "Bas" : "BasVu";
        EXPECT_EQ(autre.dossier.Lit("GLFV3.DAT"), reserve + ecrits);
        EXPECT_EQ(autre.dossier.Lit("GLFV2.DAT").size(), (n > 3 ? 17U : 16U) * 724U);
        EXPECT_EQ(FicheFavori(autre, 1).actif, 15);
      });
}

TEST_F(AjouterUnFavori, UneLongueurQuiEchoueSeDitParSonNumero) {
  AjouteAffineur(b);
  for (const char* fichier : {"GLFV3.DAT", "GLFV2.DAT"}) {
    SCOPED_TRACE(fichier);
    b.messages.vus.clear();
    Ouvre(2);
    b.disque.EchoueSur(std::string("longueur ") + fichier, Panne::entreeSortie);
    Tape(Le("txtNomFavoriAjouter"), "Zinc");
    Tape(Le("txtAdresseAjouter"), "Bas");
    Valide();
    EXPECT_EQ(FinVue(), 1);
    ASSERT_THAT(b.messages.vus, SizeIs(1));
    EXPECT_TRUE(
        b.messages.vus[0].texte.starts_with("Erreur d'ex\xE9"
                                            "cution '57' : "));
    EXPECT_FALSE(b.module->erreurFatale);
    fenetre.reset();
    b.disque.Guerit();
    b.Redemarre();
  }
}

TEST_F(AjouterUnFavori, LeFichierDesFavorisEstChercheAvantLaReserve) {
  OuvreSurAffineur(2);
  b.dossier.Supprime("GLFV2.DAT");
  b.dossier.Supprime("GLFV3.DAT");
  ExigePointeurNormalAuxMessages();
  Ajoute("Zinc", "Bas");
  AttendFinFatale(Donnees::GLFV2);
  EXPECT_FALSE(b.module->erreurFatale);
  EXPECT_EQ(onglet(), 2);
}

TEST_F(AjouterUnFavori, LaReserveDisparueFinitLeProgrammePourUneAdresseOuDesNotes) {
  for (const bool adresse : {true, false}) {
    SCOPED_TRACE(adresse);
    b.messages.vus.clear();
    Ouvre(2);
    b.dossier.Supprime("GLFV3.DAT");
    ExigePointeurNormalAuxMessages();
    Ajoute("Zinc", adresse ? "Bas" : "", adresse ? "" : "Vu");
    AttendFinFatale(Donnees::GLFV3);
    EXPECT_FALSE(b.module->erreurFatale);
    fenetre.reset();
    b.Redemarre();
  }
}

TEST_F(AjouterUnFavori, LeFichierDisparuPendantLAjoutFinitLeProgrammeALaRelecture) {
  OuvreSurAffineur(2);
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne == EcritFavori(1)) {
      b.dossier.Supprime("GLFV2.DAT");
    }
  };
  Ajoute("Zinc");
  AttendFinFatale();
  EXPECT_EQ(b.messages.vus.front(), NonTrouve(b, "GLFV2.DAT"));
  EXPECT_TRUE(b.module->erreurFatale);
  EXPECT_EQ(onglet(), 1);
}

TEST_F(AjouterUnFavori, UnFavoriQueLaRelectureNAtteintPasSeDitIntrouvable) {
  OuvreSurAffineur(2);
  b.module->bufFavori.nbActifs() = 10;
  Ajoute("Zinc");
  AttendIntrouvable();
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(NomFavori(b, 17), "Zinc");
  EXPECT_EQ(FicheFavori(b, 1).actif, 11);
}

TEST_F(AjouterUnFavori, UnCompteTropHautEstRepareALaRelecture) {
  OuvreSurAffineur(2);
  b.module->bufFavori.nbActifs() = 70;
  Ajoute("Zinc");
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritFavori(17), EcritFavori(1), EcritFavori(1)));
  EXPECT_EQ(FicheFavori(b, 1).actif, 16);
}

TEST_F(AjouterUnFavori, UnCatalogueDejaPleinSeDitEtGardeLaFicheEcrite) {
  OuvreSurAffineur(2);
  b.module->bufFavori.nbActifs() = 32767;
  Ajoute("Zinc");
  AttendRapport(b, "Erreur d'exécution '6' : Dépassement de capacité");
  EXPECT_EQ(NomFavori(b, 17), "Zinc");
  EXPECT_EQ(FicheFavori(b, 1).actif, 15);
}

TEST_F(AjouterUnFavori, EffacerDemandeDesQuUneBoiteTientUnTexte) {
  for (const char* boite : boites) {
    SCOPED_TRACE(boite);
    b.messages.questions.clear();
    Ouvre(2);
    const bool deCategorie = boite == boites[0];
    Clique(Le(deCategorie ? "Option1(0)" : "Option1(1)"));
    if (!deCategorie) {
      Choisit(categories(), 2);
    }
    Tape(Le(boite), " ");
    Efface(Reponse::oui);
    EXPECT_THAT(b.messages.questions,
                ElementsAre(std::string("Effacer la saisie : êtes-sur sûr ?"_1252)));
    EXPECT_EQ(b.messages.choix, Choix::ouiNon);
    EXPECT_EQ(TexteDe(boite), "");
    EXPECT_EQ(categories().currentIndex(), 0);
    EXPECT_TRUE(aLeFocus(deCategorie ? "txtCategorieAjouter" : "ComboCategorieAjouter"));
  }
}

TEST_F(AjouterUnFavori, UnRefusDEffacerGardeToutEtRendLeFocus) {
  Ouvre(2);
  Tape(Le("txtNomFavoriAjouter"), "Zinc");
  Choisit(categories(), 2);
  Efface(Reponse::non);
  EXPECT_EQ(saisie(), (QStringList{"Zinc", "", "", "", "", "", ""}));
  EXPECT_EQ(categories().currentIndex(), 2);
  EXPECT_TRUE(aLeFocus("ComboCategorieAjouter"));

  Clique(Le("Option1(0)"));
  Tape(Le("txtCategorieAjouter"), "Bio");
  Efface(Reponse::non);
  EXPECT_EQ(TexteDe("txtCategorieAjouter"), "Bio");
  EXPECT_TRUE(aLeFocus("txtCategorieAjouter"));
}

TEST_F(AjouterUnFavori, LaCategorieSeuleRevientSansQuestion) {
  Ouvre(2);
  Choisit(categories(), 2);
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(categories().currentIndex(), 0);
  EXPECT_TRUE(aLeFocus("ComboCategorieAjouter"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(AjouterUnFavori, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurAffineur(2);
  AttendSablier([&] { Ajoute("Zinc", "Bas"); });
}

}  // namespace
}  // namespace gastrelle::essai
