// The tab "Modifier" of the wines window: the wine on display.

#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ModifierUnVin : public FenetreVins {
 protected:
  QWidget& nom() { return Le("txtSaisieNomVinModifier"); }
  QWidget& notes() { return Le("txtSaisieNoteModifier"); }
  QComboBox& regions() { return Le<QComboBox>("ComboRegionVinModifier(1)"); }
  void Valide() { Clique(Le("cmdValideModifier")); }
  QStringList saisie() {
    return TextesDe(
        {"txtSaisieNomVinModifier", "ComboRegionVinModifier(1)", "txtSaisieNoteModifier"});
  }
  void AttendAbymes() {
    EXPECT_EQ(saisie(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
    EXPECT_TRUE(aLeFocus("txtSaisieNomVinModifier"));
    EXPECT_THAT(b.messages.questions, IsEmpty());
  }
  void OuvreEtChangeTout() {
    OuvreSurAbymes(3);
    Remplace(nom(), "Autre");
    Remplace(notes(), "Autre note");
    Choisit(regions(), 4);
  }
  /// Adds a wine from the first tab; the list then holds the others twice.
  void Ajoute(const QString& nouveau) {
    CliqueOnglet(*fenetre, 2);
    Tape(Le("txtSaisieNomVin"), nouveau);
    Clique(Le("cmdValideAjouter"));
  }
};

TEST_F(ModifierUnVin, ReprendLeVinAfficheEtRelitSaFiche) {
  OuvreSurAbymes();
  CliqueOnglet(*fenetre, 3);
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", LitVin(565)));
  AttendAbymes();
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ModifierUnVin, SaRegionEtSesBouteillesViennentDeLaFicheRelue) {
  OuvreSurAbymes();
  RecVin deplacee = FicheVin(b, 565);
  deplacee.idRegion = 5;
  deplacee.nbGris = 3;
  b.module->bufVin.Ecrit(565, deplacee);
  CliqueOnglet(*fenetre, 3);
  EXPECT_EQ(saisie(), (QStringList{"Abymes", Fr("Région 005"), "Dix octets"}));
  Valide();
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(deplacee));
}

TEST_F(ModifierUnVin, EnregistreToutEtMontreLeVin) {
  OuvreSurAbymes(3);
  RecVin attendu = FicheVin(b, 565);
  Remplace(nom(), Fr(" Zéta "));
  Remplace(notes(), Fr(" Plus long que dix.\nTrès. "));
  Choisit(regions(), Fr("Région 004"));
  Valide();

  AttendLaListe();
  EXPECT_EQ(numeroAffiche(), 565);
  EXPECT_EQ(vins().currentIndex(), 563);
  EXPECT_EQ(vinAffiche(),
            (QStringList{Fr("Zéta"), Fr("Région 004"), Fr("Plus long que dix.\nTrès.")}));
  attendu.nomVin = "Zéta"_1252;
  attendu.idRegion = 4;
  attendu.posTexte = 27;
  attendu.lgTexte = 25;
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(attendu));
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(ModifierUnVin, EcritLaReserveAvantDeChercherLeFichierDesVins) {
  OuvreSurAbymes(3);
  Remplace(notes(), "Plus long que dix");
  b.disque.OublieJournal();
  Valide();
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV3.DAT", "longueur GLV3.DAT", EcritTexte(27, 17),
                          "existe GLV2.DAT", EcritVin(565), "longueur GLV2.DAT", ParcourtVins(565),
                          "existe GLV2.DAT", "existe GLV1.DAT", LitVin(565), LitRegion(29),
                          "existe GLV3.DAT", "longueur GLV3.DAT", LitTexte(27, 17),
                          "existe GLV3.DAT", "longueur GLV3.DAT", LitTexte(19, 8)));
}

TEST_F(ModifierUnVin, ChoisirSaRegionNeFaitRienDAutre) {
  OuvreSurAbymes(3);
  Remplace(nom(), "Autre");
  Choisit(regions(), Fr("Région 004"));
  EXPECT_EQ(saisie(), (QStringList{"Autre", Fr("Région 004"), "Dix octets"}));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(ModifierUnVin, UnVinDeFabriqueSeModifieAussi) {
  Ouvre(3);
  Remplace(nom(), "Ajaccio");
  Remplace(notes(), "Corse");
  Valide();
  EXPECT_EQ(NomVin(b, 2), "Ajaccio");
  EXPECT_EQ(FicheVin(b, 2).posTexte, 9);
  EXPECT_EQ(FicheVin(b, 2).lgTexte, 5);
}

TEST_F(ModifierUnVin, DesNotesPasPlusLonguesRestentALeurPlace) {
  OuvreSurAbymes(3);
  Remplace(notes(), "Dix lettre");
  Valide();
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix lettreEn haut.");
  CliqueOnglet(*fenetre, 3);
  Remplace(notes(), "Bref");
  Valide();
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATBreflettreEn haut.");
  EXPECT_EQ(FicheVin(b, 565).posTexte, 9);
  EXPECT_EQ(FicheVin(b, 565).lgTexte, 4);
  EXPECT_EQ(TexteDe("txtNotes"), "Bref");
}

TEST_F(ModifierUnVin, DesNotesVideesPerdentLeurReferenceEtRestentDansLaReserve) {
  OuvreSurAbymes(3);
  Remplace(notes(), "  ");
  Valide();
  EXPECT_EQ(FicheVin(b, 565).posTexte, 0);
  EXPECT_EQ(FicheVin(b, 565).lgTexte, 0);
  EXPECT_EQ(FicheVin(b, 565).posNotesCave, 19);
  EXPECT_EQ(FicheVin(b, 565).lgNotesCave, 8);
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.");
  EXPECT_EQ(TexteDe("txtNotes"), "");
}

TEST_F(ModifierUnVin, DesNotesTropLonguesPourLaBoiteSurviventAUneValidation) {
  b.AjouteVin(Vin("Abymes"), std::string(40000, 'x'));
  Ouvre(3);
  Valide();
  EXPECT_EQ(FicheVin(b, 565).lgTexte, 40000);
}

TEST_F(ModifierUnVin, UnNomVideEstRefuseEtLAncienRevient) {
  OuvreSurAbymes(3);
  Remplace(notes(), " Note ");
  ExigePointeurNormalAuxMessages();
  b.disque.OublieJournal();
  Remplace(nom(), "   ");
  Le("txtSaisieNoteModifier").setFocus();
  Valide();
  AttendMessage("Il faut donner un nom au vin.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(saisie(), (QStringList{"Abymes", "Alpes", " Note "}));
  EXPECT_TRUE(aLeFocus("txtSaisieNomVinModifier"));
  AttendRienDeFait(3);
}

TEST_F(ModifierUnVin, LeNomDUnAutreVinEstRefuseSansBipQuelleQueSoitLaCasse) {
  OuvreSurAbymes(3);
  Remplace(notes(), " Note ");
  ExigePointeurNormalAuxMessages();
  b.disque.OublieJournal();
  Remplace(nom(), " VIN 002 ");
  Valide();
  AttendMessage("Ce vin existe déjà");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(saisie(), (QStringList{"VIN 002", "Alpes", " Note "}));
  EXPECT_TRUE(aLeFocus("txtSaisieNomVinModifier"));
  AttendRienDeFait(3);
}

TEST_F(ModifierUnVin, UnSimpleChangementDeCasseEstEnregistre) {
  OuvreSurAbymes(3);
  Remplace(nom(), "ABYMES");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(NomVin(b, 565), "ABYMES");
  EXPECT_EQ(vins().currentText(), "ABYMES");
}

TEST_F(ModifierUnVin, DeDeuxVinsDuMemeNomAucunNeSeModifieSansChangerDeNom) {
  OuvreSurAbymes();
  Ajoute("abymes");
  Rouvre();
  for (const int entree : {0, 1}) {
    SCOPED_TRACE(entree);
    b.messages.vus.clear();
    CliqueOnglet(*fenetre, 1);
    Choisit(vins(), entree);
    EXPECT_EQ(numeroAffiche(), 565 + entree);
    CliqueOnglet(*fenetre, 3);
    b.disque.OublieJournal();
    Remplace(notes(), "Note");
    Valide();
    AttendMessage("Ce vin existe déjà");
    AttendRienDeFait(3);
  }
  Remplace(nom(), "Apremont");
  Valide();
  EXPECT_EQ(NomVin(b, 566), "Apremont");
  EXPECT_EQ(NomVin(b, 565), "Abymes");
}

TEST_F(ModifierUnVin, ApresUnAjoutLeNomInchangeDUnAutreVinEstRefuse) {
  OuvreSurAbymes();
  Ajoute("Chignin");
  Choisit(vins(), 0);
  CliqueOnglet(*fenetre, 3);
  b.disque.OublieJournal();
  Remplace(notes(), "Note");
  Valide();
  AttendMessage("Ce vin existe déjà");
  AttendRienDeFait(3);
}

TEST_F(ModifierUnVin, ApresUnAjoutLeNouveauVinSeModifieEtLaListeSeDedouble) {
  OuvreSurAbymes();
  Ajoute("Chignin");
  CliqueOnglet(*fenetre, 3);
  Remplace(notes(), "Note");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(vins().count(), 565);
  EXPECT_EQ(vinAffiche(), (QStringList{"Chignin", "Alpes", "Note"}));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "565\ncrus");
}

TEST_F(ModifierUnVin, UnVinDontLaRegionNEstPasListeeFinitLeProgramme) {
  OuvreSurAbymes();
  RecRegion eteinte = FicheRegion(b, 29);
  eteinte.actif = 0;
  b.module->bufRegion.Ecrit(29, eteinte);
  b.module->bufRegion.Compte(-1);
  Rouvre();
  EXPECT_EQ(TexteDe("txtRegion"), "Alpes");
  CliqueOnglet(*fenetre, 3);
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
}

TEST_F(ModifierUnVin, SonFichierDisparuFinitLeProgrammeDesLEntree) {
  OuvreSurAbymes();
  b.dossier.Supprime("GLV2.DAT");
  ExigePointeurNormalAuxMessages();
  CliqueOnglet(*fenetre, 3);
  AttendFinFatale(Donnees::GLV2);
}

TEST_F(ModifierUnVin, LaReserveDisparueFinitLeProgrammeSansRienEcrire) {
  OuvreSurAbymes(3);
  b.dossier.Supprime("GLV2.DAT");
  b.dossier.Supprime("GLV3.DAT");
  ExigePointeurNormalAuxMessages();
  Valide();
  AttendFinFatale(Donnees::GLV3);
  EXPECT_EQ(onglet(), 3);
}

TEST_F(ModifierUnVin, LeFichierDesVinsDisparuLaisseLesNotesEcrites) {
  OuvreSurAbymes(3);
  Remplace(notes(), "Bref");
  b.dossier.Supprime("GLV2.DAT");
  b.disque.OublieJournal();
  Valide();
  AttendFinFatale();
  EXPECT_EQ(b.messages.vus.front(), NonTrouve(b, "GLV2.DAT"));
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV3.DAT", EcritTexte(9, 4), "existe GLV2.DAT"));
}

TEST_F(ModifierUnVin, SansNotesLaReserveDisparueNeGenePas) {
  Ouvre(3);
  b.dossier.Supprime("GLV3.DAT");
  Remplace(nom(), "Ajaccio");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritVin(2)));
  AttendLaListe();
}

TEST_F(ModifierUnVin, LesRefusPrecedentLaRechercheDesFichiers) {
  OuvreSurAbymes(3);
  b.dossier.Supprime("GLV2.DAT");
  b.dossier.Supprime("GLV3.DAT");
  Remplace(nom(), "");
  Valide();
  Remplace(nom(), "Vin 002");
  Valide();
  EXPECT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_FALSE(FinVue());
}

TEST_F(ModifierUnVin, FinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      2, 3, PrepareAbymes,
      [](QWidget& uneFenetre) {
        Remplace(Trouve(uneFenetre, "txtSaisieNomVinModifier"), "Banyuls");
        Remplace(Trouve(uneFenetre, "txtSaisieNoteModifier"), "Bref");
        Clique(Trouve(uneFenetre, "cmdValideModifier"));
        EXPECT_EQ(Trouve<QTabBar>(uneFenetre, "TabStrip1").currentIndex(), 2);
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(autre.dossier.Lit("GLV3.DAT"),
                  n > 1 ? "GLV3.DATBrefoctetsEn haut." : "GLV3.DATDix octetsEn haut.");
        EXPECT_EQ(NomVin(autre, 565), "Abymes");
        EXPECT_EQ(FicheVin(autre, 565).lgTexte, 10);
      });
}

TEST_F(ModifierUnVin, UnVinQueLaRelectureNAtteintPlusFinitLeProgramme) {
  OuvreSurAbymes(3);
  b.module->bufVin.nbActifs() = 100;
  Valide();
  AttendFinFatale();
  EXPECT_EQ(onglet(), 3);
}

TEST_F(ModifierUnVin, UnCompteTropHautEstRepareALaRelecture) {
  OuvreSurAbymes(3);
  b.module->bufVin.nbActifs() = 700;
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritTexte(9, 10), EcritVin(565), EcritVin(1)));
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
}

TEST_F(ModifierUnVin, SoixanteDixLettresSeTapentEtSoixanteQuatreRestent) {
  OuvreSurAbymes(3);
  EXPECT_EQ(Le<QLineEdit>("txtSaisieNomVinModifier").maxLength(), 128);
  EXPECT_EQ(notes().property("maxLength").toInt(), 30000);
  Remplace(nom(), QString(70, 'a'));
  EXPECT_EQ(TexteDe("txtSaisieNomVinModifier"), QString(70, 'a'));
  Valide();
  EXPECT_EQ(NomVin(b, 565), std::string(64, 'a'));
  EXPECT_EQ(FicheVin(b, 565).idRegion, 29);
}

TEST_F(ModifierUnVin, ReinitialiserReprendLeVinSansQuestion) {
  OuvreEtChangeTout();
  b.disque.OublieJournal();
  AttendSablier([&] { Clique(Le("cmdEffacerModifier")); });
  AttendAbymes();
  EXPECT_TRUE(estCoche("Option2(1)"));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", LitVin(565)));
}

TEST_F(ModifierUnVin, RevenirALaFenetreReprendLeVinSansUnMot) {
  OuvreEtChangeTout();
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(onglet(), 3);
  AttendAbymes();
}

TEST_F(ModifierUnVin, UneRelectureQuiEchoueFinitLeProgramme) {
  OuvreSurAbymes(3);
  b.disque.EchoueSur("lit GLV2.DAT", Panne::entreeSortie);
  Clique(Le("cmdEffacerModifier"));
  AttendFinFatale();
}

TEST_F(ModifierUnVin, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurAbymes(3);
  AttendSablier([&] { Valide(); });
}

TEST_F(ModifierUnVin, LeSablierEstLaDesLEntree) {
  OuvreSurAbymes();
  AttendSablier([&] { CliqueOnglet(*fenetre, 3); });
}

}  // namespace
}  // namespace gastrelle::essai
