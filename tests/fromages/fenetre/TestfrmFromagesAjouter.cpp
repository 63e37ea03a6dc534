// The tab "Ajouter" of the cheeses window, through its controls.

#include <QTest>

#include "fromages/fenetre/FenetreFromages.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class AjouterUnFromage : public FenetreFromages {
 protected:
  void OuvreEtSaisitTout() {
    Ouvre(2);
    Tape(nom(), "Brie");
    Tape(Le("txtRegionAjouter"), "Meaux");
    Tape(Le("txtNotesAjouter"), "Note");
    Choisit(lait(), 1);
    Choisit(premier(), 1);
    Choisit(dernier(), 1);
  }
  QWidget& nom() { return Le("txtFromageAjouter"); }
  QComboBox& lait() { return Le<QComboBox>("ComboLaitAjouter"); }
  QComboBox& premier() { return Le<QComboBox>("ComboPremierMoisAjouter"); }
  QComboBox& dernier() { return Le<QComboBox>("ComboDernierMoisAjouter"); }
  QStringList champs() {
    return Champs("txtFromageAjouter", "Ajouter", "ComboLait", "Combo%1Mois");
  }
};

TEST_F(AjouterUnFromage, SOuvreVideAvecLeFocusSurLeNom) {
  OuvreSurAbondance(2);
  EXPECT_EQ(champs(), (QStringList{"", "", "?", "?", "?", ""}));
  EXPECT_TRUE(aLeFocus("txtFromageAjouter"));
}

TEST_F(AjouterUnFromage, LesListesSontDansLOrdreDesCodes) {
  Ouvre(2);
  EXPECT_EQ(Textes(lait()), (QStringList{"?", "Vache", Fr("Chèvre"), "Brebis"}));
  const QStringList mois{"?",       "Janvier",  Fr("Février"), "Mars",     "Avril",
                         "Mai",     "Juin",     "Juillet",     Fr("Août"), "Septembre",
                         "Octobre", "Novembre", Fr("Décembre")};
  EXPECT_EQ(Textes(premier()), mois);
  EXPECT_EQ(Textes(dernier()), mois);
}

TEST_F(AjouterUnFromage, LesBoitesOntLesLimitesDeLeursChamps) {
  Ouvre(2);
  EXPECT_EQ(Le<QLineEdit>("txtFromageAjouter").maxLength(), 128);
  EXPECT_EQ(Le<QLineEdit>("txtRegionAjouter").maxLength(), 64);
  EXPECT_EQ(Le("txtNotesAjouter").property("maxLength").toInt(), 30000);
  Tape(Le("txtRegionAjouter"), QString(65, 'r'));
  EXPECT_EQ(TexteDe("txtRegionAjouter"), QString(64, 'r'));
}

TEST_F(AjouterUnFromage, EnregistreToutEtMontreLeNouveauFromage) {
  Ouvre(2);
  Tape(nom(), Fr("  Valençay "));
  Tape(Le("txtRegionAjouter"), " Berry  ");
  Tape(Le("txtNotesAjouter"), Fr(" Cendré.\nPyramide. "));
  Choisit(lait(), 2);
  Choisit(premier(), 11);
  Choisit(dernier(), 2);
  Clique(Le("cmdValideAjouter"));

  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(fromages().currentData().toInt(), 124);
  EXPECT_EQ(Champs("ComboFromages", ""),
            (QStringList{Fr("Valençay"), "Berry", Fr("Chèvre"), "Novembre", Fr("Février"),
                         Fr("Cendré.\nPyramide.")}));
  RecFromage attendue = Fromage("Valençay"_1252, "Berry", 2, 11, 2);
  attendue.actif = -1;
  attendue.posTexte = 9;
  attendue.lgTexte = 18;
  EXPECT_EQ(Octets(FicheFromage(b, 124)), Octets(attendue));
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATCendré.\r\nPyramide."_1252);
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "123\nfromages");
  EXPECT_TRUE(aLeFocus("txtRegion"));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(AjouterUnFromage, InsereUneEntreeSansRelireLeCatalogue) {
  Ouvre(2);
  Tape(nom(), "Abondance");
  Clique(Le("cmdValideAjouter"));
  EXPECT_EQ(fromages().count(), 123);
  EXPECT_EQ(fromages().currentIndex(), 0);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLF1.DAT", "longueur GLF1.DAT", "écrit GLF1.DAT 25584+208",
                          "écrit GLF1.DAT 0+208", "existe GLF1.DAT", "lit GLF1.DAT 25584+208"));
}

TEST_F(AjouterUnFromage, UnNomDeBlancsBipeSansMessageEtLaisseLaBoiteVide) {
  Ouvre(2);
  Tape(Le("txtRegionAjouter"), " Berry ");
  Tape(nom(), "   ");
  Clique(Le("cmdValideAjouter"));
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(TexteDe("txtFromageAjouter"), "");
  EXPECT_EQ(TexteDe("txtRegionAjouter"), " Berry ");
  EXPECT_TRUE(aLeFocus("txtFromageAjouter"));
  EXPECT_EQ(onglet(), 2);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(AjouterUnFromage, LeMemeNomSAjouteSansMessage) {
  OuvreSurAbondance(2);
  Tape(nom(), "abondance");
  Clique(Le("cmdValideAjouter"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(Textes(fromages()).mid(0, 3), (QStringList{"Abondance", "abondance", "Fromage 002"}));
  EXPECT_EQ(fromages().currentData().toInt(), 125);
}

TEST_F(AjouterUnFromage, SansNotesLaReferenceEstVide) {
  OuvreSurAbondance(2);
  Tape(nom(), "Nu");
  Clique(Le("cmdValideAjouter"));
  EXPECT_EQ(FicheFromage(b, 125).posTexte, 0);
  EXPECT_EQ(FicheFromage(b, 125).lgTexte, 0);
  EXPECT_EQ(TexteDe("txtNotes"), "");
}

TEST_F(AjouterUnFromage, UnFichierDisparuFinitLeProgramme) {
  Ouvre(2);
  Tape(nom(), "Brie");
  b.dossier.Supprime("GLF1.DAT");
  Clique(Le("cmdValideAjouter"));
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(AjouterUnFromage, UneReserveDisparueNeGeneQueLesNotes) {
  Ouvre(2);
  b.dossier.Supprime("GLF2.DAT");
  Tape(nom(), "Brie");
  Tape(Le("txtNotesAjouter"), "x");
  Clique(Le("cmdValideAjouter"));
  AttendFinFatale();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(AjouterUnFromage, UneEcritureQuiEchoueFinitLeProgrammeEtGardeCeQuiEstEcrit) {
  Ouvre(2);
  Tape(nom(), "Brie");
  Tape(Le("txtNotesAjouter"), "Note");
  b.disque.EchoueALaNiemeEcriture(2, Panne::disquePlein);
  Clique(Le("cmdValideAjouter"));
  AttendFinFatale();
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATNote");
  EXPECT_EQ(FicheFromage(b, 1).actif, 122);
}

TEST_F(AjouterUnFromage, RevenirSurLOngletOublieLaSaisie) {
  OuvreEtSaisitTout();
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(champs(), (QStringList{"", "", "?", "?", "?", ""}));
}

TEST_F(AjouterUnFromage, EffacerDemandeQuandUnTexteEstSaisi) {
  for (const char* boite : {"txtFromageAjouter", "txtRegionAjouter", "txtNotesAjouter"}) {
    SCOPED_TRACE(boite);
    b.messages.questions.clear();
    b.messages.reponses = {Reponse::oui};
    Ouvre(2);
    Tape(Le(boite), "x");
    Choisit(lait(), 3);
    Clique(Le("cmdEffacerAjouter"));
    EXPECT_THAT(b.messages.questions,
                ElementsAre(std::string("Effacer la saisie : êtes-sur sûr ?"_1252)));
    EXPECT_EQ(champs(), (QStringList{"", "", "?", "?", "?", ""}));
    EXPECT_TRUE(aLeFocus("txtFromageAjouter"));
  }
}

TEST_F(AjouterUnFromage, UnRefusDEffacerGardeToutEtRendLeFocus) {
  Ouvre(2);
  Tape(Le("txtNotesAjouter"), "x");
  Choisit(lait(), 3);
  b.messages.reponses = {Reponse::non};
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(champs(), (QStringList{"", "", "Brebis", "?", "?", "x"}));
  EXPECT_TRUE(aLeFocus("txtFromageAjouter"));
}

TEST_F(AjouterUnFromage, LesListesSeulesSEffacentSansQuestion) {
  Ouvre(2);
  Choisit(lait(), 3);
  Choisit(premier(), 5);
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(champs(), (QStringList{"", "", "?", "?", "?", ""}));
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(AjouterUnFromage, LeClavierSuitLOrdreDesChamps) {
  Ouvre(2);
  for (const char* suivant : {"txtRegionAjouter", "ComboLaitAjouter", "ComboPremierMoisAjouter",
                              "ComboDernierMoisAjouter", "txtNotesAjouter", "cmdValideAjouter"}) {
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(aLeFocus(suivant)) << suivant;
  }
}

TEST_F(AjouterUnFromage, LeSablierEstLaDesLePremierAppelDuDisque) {
  Ouvre(2);
  Tape(nom(), "Brie");
  AttendSablier([&] { Clique(Le("cmdValideAjouter")); });
}

TEST_F(AjouterUnFromage, LePointeurEstNormalPourDireUneReserveDisparue) {
  Ouvre(2);
  Tape(nom(), "Brie");
  Tape(Le("txtNotesAjouter"), "x");
  b.dossier.Supprime("GLF2.DAT");
  ExigePointeurNormalAuxMessages();
  Clique(Le("cmdValideAjouter"));
  EXPECT_THAT(b.messages.vus, SizeIs(2));
}

TEST_F(AjouterUnFromage, RevenirALaFenetreOublieLaSaisieSansUnMot) {
  OuvreEtSaisitTout();
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(onglet(), 2);
  EXPECT_EQ(champs(), (QStringList{"", "", "?", "?", "?", ""}));
  EXPECT_TRUE(aLeFocus("txtFromageAjouter"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
