// The tab "Modifier" of the favourites' window: the favourite on display, whose failures no guard
// catches.

#include <QLineEdit>

#include "favoris/fenetre/FenetreFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ModifierUnFavori : public FenetreFavoris {
 protected:
  QComboBox& sienne() { return Le<QComboBox>("ComboCategorie1Modifier"); }
  QWidget& nom() { return Le("txtNomFavoriModifier"); }
  QWidget& adresse() { return Le("txtAdresseModifier"); }
  QWidget& notes() { return Le("txtNoteModifier"); }
  void Valide() { Clique(Le("cmdValideModifier")); }
  QStringList saisie() {
    return TextesDe({"txtNomFavoriModifier", "ComboCategorie1Modifier", "txtAdresseModifier",
                     "txtTelephoneModifier", "txtFaxModifier", "txtEmailModifier", "txtWebModifier",
                     "txtNoteModifier"});
  }
  std::string reserve() { return b.dossier.Lit("GLFV3.DAT"); }
  /// "Artisans" is deleted on file, its favourite lives on.
  void OuvreSurUnOrphelin() {
    OuvreSurAffineur();
    RecFamille partie = FicheCategorie(b, 5);
    partie.actif = supprime;
    b.module->bufCategorie.Ecrit(5, partie);
    b.module->bufCategorie.Compte(-1);
    Rouvre();
    CliqueOnglet(*fenetre, 3);
  }
};

TEST_F(ModifierUnFavori, EnregistreToutEtLeMontre) {
  OuvreSurAffineur(3);
  RecFavori attendu = FicheFavori(b, 16);
  Remplace(nom(), Fr(" Zéro "));
  Choisit(sienne(), Fr("Catégorie 004"));
  Remplace(adresse(), Fr(" 12 rue\nHaute "));
  Remplace(Le("txtTelephoneModifier"), " 11 ");
  Remplace(Le("txtFaxModifier"), " 22 ");
  Remplace(Le("txtEmailModifier"), " z@b.fr ");
  Remplace(Le("txtWebModifier"), " b.fr ");
  Remplace(notes(), Fr(" Fermé\nle lundi "));
  Valide();

  AttendLaListe();
  EXPECT_EQ(numeroAffiche(), 16);
  EXPECT_EQ(favoris().currentIndex(), 14);
  EXPECT_EQ(favoriAffiche(), (QStringList{Fr("Zéro"), Fr("Catégorie 004"), "12 rue\nHaute", "11",
                                          "22", "z@b.fr", "b.fr", Fr("Fermé\nle lundi")}));
  attendu.nomFavori = "Zéro"_1252;
  attendu.idCategorie = 4;
  attendu.posAdresse = 32;
  attendu.lgAdresse = 13;
  attendu.telephone = "11";
  attendu.fax = "22";
  attendu.email = "z@b.fr";
  attendu.siteWeb = "b.fr";
  attendu.posTexte = 45;
  attendu.lgTexte = 15;
  EXPECT_EQ(Octets(FicheFavori(b, 16)), Octets(attendu));
  EXPECT_EQ(FicheFavori(b, 1).actif, 15);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(ModifierUnFavori, EcritLAdresseLesNotesLaFichePuisReliToutEtMontre) {
  OuvreSurAffineur(3);
  Remplace(adresse(), "Onze octets");
  b.disque.OublieJournal();
  Valide();
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLFV2.DAT", "existe GLFV3.DAT", "longueur GLFV3.DAT", EcritTexte(32, 11),
                  EcritTexte(20, 12), EcritFavori(16), "existe GLFV2.DAT", "longueur GLFV2.DAT",
                  ParcourtFavoris(16), "existe GLFV2.DAT", "existe GLFV1.DAT", "existe GLFV3.DAT",
                  LitFavori(16), LitCategorie(5), "longueur GLFV3.DAT", LitTexte(32, 11),
                  "longueur GLFV3.DAT", LitTexte(20, 12)));
}

TEST_F(ModifierUnFavori, UnTextePasPlusLongResteASaPlaceUneLettreDePlusVaALaFin) {
  OuvreSurAffineur(3);
  Remplace(adresse(), "2 rue Bass");
  Valide();
  EXPECT_EQ(reserve(), "GLFV3.DAT2 rue BassDouze octets");
  CliqueOnglet(*fenetre, 3);
  Remplace(adresse(), "2 rue Basse");
  Remplace(notes(), "Bref");
  Valide();
  EXPECT_EQ(reserve(), "GLFV3.DAT2 rue BassBrefe octets2 rue Basse");
  EXPECT_EQ(FicheFavori(b, 16).posAdresse, 32);
  EXPECT_EQ(FicheFavori(b, 16).lgAdresse, 11);
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 20);
  EXPECT_EQ(FicheFavori(b, 16).lgTexte, 4);
  EXPECT_EQ(TextesDe({"txtAdresse", "txtNotes"}), (QStringList{"2 rue Basse", "Bref"}));
}

TEST_F(ModifierUnFavori, UnTexteVidePerdSaReferenceEtResteDansLaReserve) {
  OuvreSurAffineur(3);
  const std::string avant = reserve();
  Remplace(adresse(), "  ");
  Valide();
  EXPECT_EQ(FicheFavori(b, 16).posAdresse, 0);
  EXPECT_EQ(FicheFavori(b, 16).lgAdresse, 0);
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 20);
  EXPECT_EQ(reserve(), avant);
  CliqueOnglet(*fenetre, 3);
  Remplace(adresse(), "1 rue Haut");
  Valide();
  EXPECT_EQ(FicheFavori(b, 16).posAdresse, 32);
}

TEST_F(ModifierUnFavori, SansTexteLaReserveNEstNiChercheeNiEcrite) {
  Ouvre(3);
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne == EcritFavori(2)) {  // showing it asks for the three files
      EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV2.DAT", EcritFavori(2)));
    }
  };
  Remplace(nom(), "Boucher");
  Valide();
  b.disque.pendant = nullptr;
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritFavori(2)));
  EXPECT_EQ(favoriAffiche(), SansTexte("Boucher", Fr("Catégorie 002")));
}

TEST_F(ModifierUnFavori, ChangerDeCategorieNeChangeQueSonNumero) {
  OuvreSurAffineur(3);
  const std::string categories = b.dossier.Lit("GLFV1.DAT");
  const std::string textes = reserve();
  std::string avant = b.dossier.Lit("GLFV2.DAT");
  RecFavori deplace = FicheFavori(b, 16);
  Choisit(sienne(), Fr("Catégorie 003"));
  Valide();
  deplace.idCategorie = 3;
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), avant.replace(15 * 724, 724, Octets(deplace)));
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT"), categories);
  EXPECT_EQ(reserve(), textes);
  EXPECT_EQ(TexteDe("txtCategorie"), Fr("Catégorie 003"));
}

TEST_F(ModifierUnFavori, ApresUnTriIlEcritEncoreSesPropresTextes) {
  AjouteAffineur(b);
  b.AjouteFavori(Favori("Zinc", 4), "A lui");
  Ouvre();
  std::string avant = b.dossier.Lit("GLFV2.DAT");
  RecFavori attendu = FicheFavori(b, 16);
  for (const char* triee : {"Catégorie 002", "Artisans", "Catégorie 004"}) {
    CliqueOnglet(*fenetre, 5);
    Choisit(Le<QComboBox>("ComboCategorieTrier"), Fr(triee));
    EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(attendu)) << triee;
  }
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(sienne().currentText(), "Artisans");
  Remplace(notes(), "Bref");
  Valide();
  attendu.lgTexte = 4;
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), avant.replace(15 * 724, 724, Octets(attendu)));
  EXPECT_EQ(reserve(), "GLFV3.DAT1 rue HautBrefe octetsA lui");
}

TEST_F(ModifierUnFavori, DeDeuxDuMemeNomCEstCeluiQuiEstAfficheQuiChange) {
  b.AjouteFavori(Favori("Affineur"), "Un");
  b.AjouteFavori(Favori("Affineur"), "Deux");
  Ouvre();
  Choisit(favoris(), 1);
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(TexteDe("txtAdresseModifier"), "Deux");
  Remplace(adresse(), "Trois");
  Valide();
  EXPECT_EQ(numeroAffiche(), 17);
  EXPECT_EQ(favoris().currentIndex(), 1);
  EXPECT_EQ(TexteDe("txtAdresse"), "Trois");
  EXPECT_EQ(FicheFavori(b, 16).lgAdresse, 2);
}

TEST_F(ModifierUnFavori, LeNomDUnAutrePasse) {
  OuvreSurAffineur(3);
  Remplace(nom(), "Favori 002");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(numeroAffiche(), 16);
}

TEST_F(ModifierUnFavori, UnFavoriDeFabriqueSeModifieAussi) {
  Ouvre(3);
  Remplace(nom(), "Boucher");
  Valide();
  EXPECT_EQ(NomFavori(b, 2), "Boucher");
}

TEST_F(ModifierUnFavori, CeluiDUneCategorieSupprimeeLaGarde) {
  OuvreSurUnOrphelin();
  EXPECT_EQ(sienne().currentIndex(), -1);
  EXPECT_TRUE(aLeFocus("ComboCategorie1Modifier"));
  Remplace(Le("txtFaxModifier"), "33");
  Valide();
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(FicheFavori(b, 16).idCategorie, 5);
  EXPECT_EQ(TextesDe({"txtCategorie", "txtFax"}), (QStringList{"Artisans", "33"}));
}

TEST_F(ModifierUnFavori, CeluiDUneCategorieSupprimeeEnPrendUneAutre) {
  OuvreSurUnOrphelin();
  Choisit(sienne(), Fr("Catégorie 002"));
  Valide();
  EXPECT_EQ(FicheFavori(b, 16).idCategorie, 2);
}

TEST_F(ModifierUnFavori, UnNomVideSeDitSansBipEtNeRogneRien) {
  OuvreSurAffineur(3);
  Remplace(adresse(), " Bas ");
  Remplace(nom(), "   ");
  ExigePointeurNormalAuxMessages();
  b.disque.OublieJournal();
  notes().setFocus();
  Valide();
  AttendMessage("Il faut donner un nom au favori.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(TextesDe({"txtNomFavoriModifier", "txtAdresseModifier"}), (QStringList{"", " Bas "}));
  EXPECT_TRUE(aLeFocus("txtNomFavoriModifier"));
  AttendRienDeFait(3);
}

TEST_F(ModifierUnFavori, LeRefusPrecedeLaRechercheDesFichiers) {
  OuvreSurAffineur(3);
  b.dossier.Supprime("GLFV2.DAT");
  Remplace(nom(), "");
  Valide();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_FALSE(FinVue());
}

TEST_F(ModifierUnFavori, LesBoitesOntLeursLimites) {
  Ouvre(3);
  for (const auto& [boite, limite] :
       std::initializer_list<std::pair<const char*, int>>{{"txtNomFavoriModifier", 128},
                                                          {"txtTelephoneModifier", 32},
                                                          {"txtFaxModifier", 32},
                                                          {"txtEmailModifier", 256},
                                                          {"txtWebModifier", 256}}) {
    EXPECT_EQ(Le<QLineEdit>(boite).maxLength(), limite) << boite;
  }
  EXPECT_EQ(adresse().property("maxLength").toInt(), 512);
  EXPECT_EQ(notes().property("maxLength").toInt(), 30000);
}

TEST_F(ModifierUnFavori, ChaqueEcritureQuiEchoueSeDitParSonNumeroEtResteACeQuiEstEcrit) {
  AChaqueEcriture(
      3, 3, PrepareAffineur,
      [](QWidget& uneFenetre) {
        Remplace(Trouve(uneFenetre, "txtNomFavoriModifier"), "Zinc");
        Remplace(Trouve(uneFenetre, "txtAdresseModifier"), "2 rue Bass");
        Remplace(Trouve(uneFenetre, "txtNoteModifier"), "Treize octets");
        Clique(Trouve(uneFenetre, "cmdValideModifier"));
        EXPECT_EQ(Trouve<QTabBar>(uneFenetre, "TabStrip1").currentIndex(), 2);
      },
      [](const Bibliotheque& autre, std::size_t n) {
        AttendDisquePlein(autre);
        const std::string ecrit = n == 1   ? "1 rue HautDouze octets"
                                  : n == 2 ? "2 rue BassDouze octets"
                                           : "2 rue BassDouze octetsTreize octets";
        EXPECT_EQ(autre.dossier.Lit("GLFV3.DAT"), "GLFV3.DAT" + ecrit);
        EXPECT_EQ(NomFavori(autre, 16), "Affineur");
        EXPECT_EQ(FicheFavori(autre, 16).posTexte, 20);
        EXPECT_EQ(FicheFavori(autre, 16).lgTexte, 12);
      });
}

TEST_F(ModifierUnFavori, UneLongueurQuiEchoueSeDitParSonNumeroSansRienEcrire) {
  OuvreSurAffineur(3);
  Remplace(adresse(), "Onze octets");
  b.disque.EchoueSur("longueur GLFV3.DAT", Panne::disquePlein);
  Valide();
  AttendDisquePlein(b);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ModifierUnFavori, LeFichierDisparuPendantLeChangementFinitLeProgrammeALaRelecture) {
  OuvreSurAffineur(3);
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne == EcritFavori(16)) {
      b.dossier.Supprime("GLFV2.DAT");
    }
  };
  Valide();
  AttendFinFatale();
  EXPECT_EQ(b.messages.vus.front(), NonTrouve(b, "GLFV2.DAT"));
  EXPECT_TRUE(b.module->erreurFatale);
  EXPECT_EQ(onglet(), 1);
}

TEST_F(ModifierUnFavori, LeFichierDesFavorisEstChercheAvantLaReserve) {
  OuvreSurAffineur(3);
  b.dossier.Supprime("GLFV2.DAT");
  b.dossier.Supprime("GLFV3.DAT");
  ExigePointeurNormalAuxMessages();
  Valide();
  AttendFinFatale(Donnees::GLFV2);
  EXPECT_FALSE(b.module->erreurFatale);
  EXPECT_EQ(onglet(), 3);
}

TEST_F(ModifierUnFavori, LaReserveDisparueFinitLeProgrammeAvantTouteEcriture) {
  OuvreSurAffineur(3);
  Remplace(adresse(), "");
  b.dossier.Supprime("GLFV3.DAT");
  ExigePointeurNormalAuxMessages();
  Valide();
  AttendFinFatale(Donnees::GLFV3);
  EXPECT_FALSE(b.module->erreurFatale);
}

TEST_F(ModifierUnFavori, CeluiQueLaRelectureNAtteintPlusSeDitIntrouvable) {
  OuvreSurAffineur(3);
  b.module->bufFavori.nbActifs() = 10;
  Remplace(nom(), "Zinc");
  Valide();
  AttendIntrouvable();
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(NomFavori(b, 16), "Zinc");
}

TEST_F(ModifierUnFavori, ReinitialiserReprendLeFavoriSansQuestion) {
  OuvreSurAffineur(3);
  for (const char* boite :
       {"txtNomFavoriModifier", "txtAdresseModifier", "txtTelephoneModifier", "txtFaxModifier",
        "txtEmailModifier", "txtWebModifier", "txtNoteModifier"}) {
    Remplace(Le(boite), "Autre");
  }
  Choisit(sienne(), 2);
  b.disque.OublieJournal();
  Clique(Le("cmdEffacerModifier"));
  EXPECT_EQ(saisie(), favoriAffiche());
  EXPECT_EQ(TexteDe("txtCategorieModifier"), "");
  EXPECT_FALSE(Le("txtCategorieModifier").isEnabled());
  EXPECT_TRUE(aLeFocus("ComboCategorie1Modifier"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
  AttendRienDeFait(3);
}

TEST_F(ModifierUnFavori, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurAffineur(3);
  AttendSablier([&] { Valide(); });
}

}  // namespace
}  // namespace gastrelle::essai
