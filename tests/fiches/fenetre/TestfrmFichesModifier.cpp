// The tab "Modifier" of the windows of menus and tips, through its controls.

#include "fiches/fenetre/FenetreFiches.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FichesModifier : public FenetreFiches {
 protected:
  /// Opens on "Agape" with its text of ten characters.
  void OuvreAgape() {
    Ajoute("Agape", "Dix octets");
    Ouvre(3);
  }
  void Valide() { Clique(Le("cmdValideModifier")); }
  QWidget& titre() { return Le(cas.titreModifier); }
  QWidget& sonTexte() { return Le(cas.texteModifier); }
  /// Changes "Agape" while the n-th write fails: the program ends, the record as it was.
  void EchoueALEcriture(std::size_t n) {
    const std::string avant = Octets(Lue(premiere));
    Remplace(titre(), "Noces");
    Remplace(sonTexte(), "Bref");
    b.disque.EchoueALaNiemeEcriture(n, Panne::disquePlein);
    Valide();
    AttendFinFatale();
    EXPECT_EQ(onglet(), 3);
    EXPECT_EQ(Octets(Lue(premiere)), avant);
  }
  void AttendCurseursAuDebut() {
    EXPECT_EQ(Le<QLineEdit>(cas.titreModifier).cursorPosition(), 0);
    EXPECT_EQ(Le<QPlainTextEdit>(cas.texteModifier).textCursor().position(), 0);
  }
};
SUR_LES_DEUX_FENETRES(FichesModifier);

TEST_P(FichesModifier, SOuvreSurLaFicheAffichee) {
  OuvreAgape();
  EXPECT_EQ(Texte(titre()), "Agape");
  EXPECT_EQ(Texte(sonTexte()), "Dix octets");
  AttendCurseursAuDebut();
  EXPECT_TRUE(aLeFocus(cas.titreModifier));
  EXPECT_EQ(cadre->contextes.back(), cas.contexteBase + 3);
}

TEST_P(FichesModifier, CeQueReinitialiserRemetRevientParCtrlZ) {
  OuvreAgape();
  Remplace(titre(), "Noces");
  Remplace(sonTexte(), "Bref");
  Clique(Le("cmdEffacerModifier"));
  EXPECT_EQ(Texte(titre()), "Agape");
  EXPECT_EQ(Texte(sonTexte()), "Dix octets");
  QTest::keyClick(&titre(), Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&sonTexte(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(titre()), "Noces");
  EXPECT_EQ(Texte(sonTexte()), "Bref");
}

TEST_P(FichesModifier, CeQuiFutSaisiPourUneFicheNeVientPasDansUneAutre) {
  Ajoute("Agape");
  Ajoute("Banquet");
  Ouvre(3);
  Remplace(sonTexte(), "Bref");
  CliqueOnglet(*fenetre, 1);
  Choisit(combo(), "Banquet");
  CliqueOnglet(*fenetre, 3);
  QTest::keyClick(&titre(), Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&sonTexte(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(titre()), "Banquet");
  EXPECT_EQ(Texte(sonTexte()), "");
}

TEST_P(FichesModifier, UnTextePlusCourtResteASaPlaceEtLaFicheChangeDeRang) {
  OuvreAgape();
  Remplace(titre(), " Zakouski ");
  Remplace(sonTexte(), " Bref ");
  Valide();
  EXPECT_THAT(Changements(), ElementsAre(EcritTexte(c, 8, 4), EcritFiche(c, premiere)));
  EXPECT_EQ(Titre(premiere), "Zakouski");
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(combo().currentIndex(), combo().count() - 1);
  EXPECT_EQ(combo().currentData().toInt(), premiere);
  EXPECT_EQ(Texte(texte()), "Bref");
}

TEST_P(FichesModifier, UnTextePlusLongPasseALaFinDeLaReserve) {
  OuvreAgape();
  Tape(sonTexte(), "x");
  Valide();
  EXPECT_EQ(Lue(premiere).posTexte, 19);
  EXPECT_EQ(Lue(premiere).lgTexte, 11);
}

TEST_P(FichesModifier, LeTitreDUneAutreFicheSeDonneEtLaBonneResteChoisie) {
  Ajoute("Agape", "La première."_1252);
  Ajoute("Bal", "Le bal.");
  Ouvre();
  Choisit(combo(), "Bal");
  CliqueOnglet(*fenetre, 3);
  Remplace(titre(), "Agape");
  Valide();
  EXPECT_EQ(combo().currentData().toInt(), premiere + 1);
  EXPECT_EQ(Texte(texte()), "Le bal.");
}

TEST_P(FichesModifier, UnTitreVideEstRefuseEtRenduLeTexteSaisiReste) {
  OuvreAgape();
  Remplace(titre(), "  ");
  Remplace(sonTexte(), " Autre ");
  b.disque.OublieJournal();
  Valide();
  AttendMessage(cas.sansTitreModifier);
  EXPECT_EQ(Texte(titre()), "Agape");
  EXPECT_EQ(Texte(sonTexte()), " Autre ");
  EXPECT_TRUE(aLeFocus(cas.titreModifier));
  EXPECT_FALSE(b.pointeur.sablier);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_P(FichesModifier, UnTexteVidePerdSaPlaceEtLeSuivantPasseALaFin) {
  OuvreAgape();
  Remplace(sonTexte(), "");
  Valide();
  EXPECT_THAT(Changements(), ElementsAre(EcritFiche(c, premiere)));
  EXPECT_EQ(Lue(premiere).posTexte, 0);
  EXPECT_EQ(Lue(premiere).lgTexte, 0);
  CliqueOnglet(*fenetre, 3);
  Tape(sonTexte(), "x");
  Valide();
  EXPECT_EQ(Lue(premiere).posTexte, 19);
}

TEST_P(FichesModifier, UneFicheProtegeeSeModifie) {
  Ouvre();
  Choisit(combo(), combo().count() - 1);
  ASSERT_EQ(combo().currentData().toInt(), c.dernierProtege);
  CliqueOnglet(*fenetre, 3);
  Remplace(titre(), "A moi");
  Valide();
  EXPECT_EQ(Titre(c.dernierProtege), "A moi");
  EXPECT_EQ(combo().currentData().toInt(), c.dernierProtege);
}

TEST_P(FichesModifier, ReinitialiserRendLesValeursSansDemander) {
  OuvreAgape();
  Remplace(titre(), "Autre");
  Remplace(sonTexte(), "Autre");
  Clique(Le("cmdEffacerModifier"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_EQ(Texte(titre()), "Agape");
  EXPECT_EQ(Texte(sonTexte()), "Dix octets");
  AttendCurseursAuDebut();
}

TEST_P(FichesModifier, RevenirALaFenetreRendLesValeursSansUnMot) {
  OuvreAgape();
  Remplace(titre(), "Autre");
  Remplace(sonTexte(), "Autre");
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(Texte(titre()), "Agape");
  EXPECT_EQ(Texte(sonTexte()), "Dix octets");
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

// The list takes in an addition that the scan, stopped by a header that counts too few, never
// meets.
TEST_P(FichesModifier, UneFicheQueLaListeNeRetrouvePlusFinitLeProgrammeUneFoisEcrite) {
  Ajoute("Agape");
  PoseCompte(b, NomFabrique(c.fiches), static_cast<std::int16_t>(c.dernierProtege - 1));
  Ouvre(2);
  Tape(Le(cas.titreAjouter), "Bal");
  Clique(Le("cmdValideAjouter"));
  ASSERT_EQ(combo().currentData().toInt(), premiere + 1);
  CliqueOnglet(*fenetre, 3);
  Remplace(titre(), "Bals");
  Valide();
  AttendFinFatale();
  EXPECT_EQ(onglet(), 3);
  EXPECT_EQ(Titre(premiere + 1), "Bals");
}

TEST_P(FichesModifier, LesFichesDisparuesFinissentLeProgrammeSansRienEcrire) {
  OuvreAgape();
  b.dossier.Supprime(Nom(c.fiches));
  Valide();
  AttendFinFatale(c.fiches);
  EXPECT_THAT(Changements(), IsEmpty());
}

TEST_P(FichesModifier, LaReserveDisparueFinitLeProgrammeSansRienEcrire) {
  OuvreAgape();
  b.dossier.Supprime(Nom(c.textes));
  Valide();
  AttendFinFatale(c.textes);
  EXPECT_THAT(Changements(), IsEmpty());
}

TEST_P(FichesModifier, SansTexteLaReserveDisparueNEmpechePasDEcrire) {
  OuvreAgape();
  Remplace(sonTexte(), "");
  b.dossier.Supprime(Nom(c.textes));
  Valide();
  EXPECT_EQ(Lue(premiere).lgTexte, 0);
  AttendFinFatale();
}

TEST_P(FichesModifier, SansFicheAfficheeValiderFinitLeProgrammeSansRienEcrire) {
  b.dossier.Ecrit(NomFabrique(c.fiches), b.dossier.Lit(NomFabrique(c.fiches)).substr(0, 138));
  Ouvre(3);
  Tape(titre(), "Noce");
  Valide();
  AttendFinFatale();
  EXPECT_THAT(Changements(), IsEmpty());
}

TEST_P(FichesModifier, LeTitreEtLeTexteOntLeursLimites) {
  OuvreAgape();
  Remplace(titre(), QString(130, 'x'));
  EXPECT_EQ(Texte(titre()), QString(128, 'x'));
  EXPECT_EQ(sonTexte().property("maxLength").toInt(), 30000);
}

TEST_P(FichesModifier, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreAgape();
  AttendSablier([&] { Valide(); });
}

TEST_P(FichesModifier, UneFoisLaFicheModifieeSonTexteALeFocus) {
  OuvreAgape();
  Valide();
  EXPECT_EQ(onglet(), 1);
  EXPECT_TRUE(aLeFocus(cas.texte));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_P(FichesModifier, LePointeurEstNormalPendantLeRefus) {
  OuvreAgape();
  Remplace(titre(), "");
  b.pointeur.Sablier();
  ExigePointeurNormalAuxMessages();
  Valide();
  AttendMessage(cas.sansTitreModifier);
}

TEST_P(FichesModifier, UnTexteQuiNeSEcritPasFinitLeProgrammeSansQuitterLOnglet) {
  OuvreAgape();
  EchoueALEcriture(1);
  EXPECT_EQ(Textes(b, c).substr(8), "Dix octets");
}

TEST_P(FichesModifier, UneFicheQuiNeSEcritPasFinitLeProgrammeSansQuitterLOnglet) {
  OuvreAgape();
  EchoueALEcriture(2);
  EXPECT_EQ(Textes(b, c).substr(8), "Brefoctets");
}

}  // namespace
}  // namespace gastrelle::essai
