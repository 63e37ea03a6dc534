// The tab "Liste" of the windows of menus and tips, and what the window does as a whole.

#include "fiches/fenetre/FenetreFiches.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class FichesListe : public FenetreFiches {};
SUR_LES_DEUX_FENETRES(FichesListe);

TEST_P(FichesListe, SOuvreSurLaPremiereFicheDansLOrdreAlphabetique) {
  Ajoute("Agape", "Du vin.");
  Ouvre();
  EXPECT_EQ(combo().currentIndex(), 0);
  EXPECT_EQ(combo().currentText(), "Agape");
  EXPECT_EQ(Texte(texte()), "Du vin.");
  EXPECT_EQ(cadre->contextes.back(), cas.contexteBase + 1);
  EXPECT_EQ(cadre->cochee, cas.vue);
  EXPECT_TRUE(aLeFocus(cas.texte));
}

TEST_P(FichesListe, ClasseSansCasseNiAccentEtGardeLesNumeros) {
  Ajoute("DIne");
  Ajoute("Éclade"_1252);
  Ajoute("bal");
  Ouvre();
  EXPECT_EQ(Textes(combo()).mid(0, 4), (QStringList{"bal", "DIne", Fr("Éclade"), "Fiche 002"}));
  const std::vector<int> donnees = DonneesDe(combo());
  EXPECT_EQ(donnees[0], premiere + 2);
  EXPECT_EQ(donnees[2], premiere + 1);
  EXPECT_EQ(donnees[3], 2);
}

TEST_P(FichesListe, DeuxFichesDuMemeTitreSeDistinguent) {
  Ajoute("Agape", "La première."_1252);
  Ajoute("Agape", "La seconde.");
  Ouvre();
  Choisit(combo(), 1);
  EXPECT_EQ(Texte(texte()), "La seconde.");
  EXPECT_EQ(combo().currentData().toInt(), premiere + 1);
}

TEST_P(FichesListe, UneFicheSansTexteMontreUneBoiteVide) {
  Ajoute("Agape", "Du vin.");
  Ouvre();
  Choisit(combo(), "Fiche 002");
  EXPECT_EQ(Texte(texte()), "");
  EXPECT_TRUE(texte().isEnabled());
}

TEST_P(FichesListe, LeTexteSeLitMaisNeSeTapePas) {
  Ajoute("Agape", "Du vin.");
  Ouvre();
  Tape(texte(), "x");
  EXPECT_EQ(Texte(texte()), "Du vin.");
  EXPECT_EQ(texte().property("maxLength").toInt(), 30000);
  EXPECT_TRUE(Le<QPlainTextEdit>(cas.texte).isReadOnly());
}

TEST_P(FichesListe, UnChoixDonneLeFocusAuTexteEtRendLePointeur) {
  Ajoute("Agape");
  Ouvre();
  combo().setFocus();
  Choisit(combo(), "Fiche 002");
  EXPECT_TRUE(aLeFocus(cas.texte));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_P(FichesListe, LeNombreSeLitSurLesQuatreOnglets) {
  OuvreEtParcourt();
  for (const char* nom : {"txtAnnonce(0)", "txtAnnonce(1)", "txtAnnonce(2)", "txtAnnonce(3)"}) {
    EXPECT_EQ(Texte(Le(nom)), QString::number(c.dernierProtege - 1) + cas.annonce) << nom;
  }
}

TEST_P(FichesListe, UnCompteTropHautEstRepareALOuverture) {
  PoseCompte(b, NomFabrique(c.fiches), 300);
  Ouvre();
  EXPECT_EQ(Compte(b, c), c.dernierProtege - 1);
  EXPECT_EQ(Texte(Le("txtAnnonce(0)")), QString::number(c.dernierProtege - 1) + cas.annonce);
}

TEST_P(FichesListe, LeFichierDisparuAvantLOuvertureFinitLeProgramme) {
  b.Demarre();
  cadre.emplace(*b.module);
  b.dossier.Supprime(Nom(c.fiches));
  EXPECT_THROW(Cree(), FinDuProgramme);
  EXPECT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe " + Nom(c.fiches)));
}

TEST_P(FichesListe, LesFichesDisparuesAuChoixFinissentLeProgramme) {
  Ouvre();
  b.dossier.Supprime(Nom(c.fiches));
  Choisit(combo(), 0);
  AttendFinFatale(c.fiches);
}

TEST_P(FichesListe, LaReserveDisparueAuChoixFinitLeProgrammeMemePourUneFicheSansTexte) {
  Ouvre();
  b.dossier.Supprime(Nom(c.textes));
  Choisit(combo(), 0);
  AttendFinFatale(c.textes);
}

TEST_P(FichesListe, UneLectureQuiEchoueFinitLeProgrammeSansAutreMessage) {
  Ajoute("Agape", "Du vin.");
  Ouvre();
  b.disque.EchoueSur("lit " + Nom(c.textes), Panne::entreeSortie);
  Choisit(combo(), 0);
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
}

TEST_P(FichesListe, CliquerLOngletAfficheNeChangeRien) {
  Ouvre(2);
  Tape(Le(cas.titreAjouter), "Noce");
  const std::size_t contextes = cadre->contextes.size();
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(Texte(Le(cas.titreAjouter)), "Noce");
  EXPECT_THAT(cadre->contextes, SizeIs(contextes));
}

TEST_P(FichesListe, SeulLOngletDeLaListeALAffichage) {
  Ajoute("Agape", "Du vin.");
  Ouvre();
  const Vue vue = fenetre->VueCourante();
  if (cas.vue == EntreeVue::menus) {
    EXPECT_EQ(std::get<VueMenu>(vue).titre, "Agape");
    EXPECT_EQ(std::get<VueMenu>(vue).texte, "Du vin.");
  } else {
    EXPECT_EQ(std::get<VueTruc>(vue).titre, "Agape");
    EXPECT_EQ(std::get<VueTruc>(vue).texte, "Du vin.");
  }
  CliqueOnglet(*fenetre, 4);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(fenetre->VueCourante()));
}

TEST_P(FichesListe, QuitterLaFenetreRendLeCadre) {
  Ouvre();
  fenetre->Desactive();
  EXPECT_THAT(cadre->quittes, ElementsAre(cas.vue));
  EXPECT_EQ(b.module->contexteActif, 0);
  fenetre->close();
  EXPECT_THAT(cadre->quittes, ElementsAre(cas.vue, cas.vue));
}

TEST_P(FichesListe, UnFichierSansFicheOuvreUneFenetreVide) {
  b.dossier.Ecrit(NomFabrique(c.fiches), b.dossier.Lit(NomFabrique(c.fiches)).substr(0, 138));
  Ouvre(4);
  EXPECT_EQ(combo().count(), 0);
  EXPECT_EQ(Texte(Le("txtSaisieNomSupprimer")), "");
  EXPECT_TRUE(aLeFocus("cmdAideSupprimer"));
  EXPECT_FALSE(FinVue());
}

TEST_P(FichesListe, ReduireLaFenetreNeRendPasLeCadre) {
  Ouvre();
  fenetre->QuandReduite();
  EXPECT_THAT(cadre->quittes, IsEmpty());
  EXPECT_EQ(b.module->contexteActif, cas.contexteBase + 1);
}

TEST_P(FichesListe, LeSablierEstLaDesLePremierAppelDuDisque) {
  Ajoute("Agape", "Du vin.");
  Ouvre();
  AttendSablier([&] { Choisit(combo(), "Fiche 002"); });
}

TEST_P(FichesListe, LaListeSeLitSousLeSablier) {
  b.Demarre();
  cadre.emplace(*b.module);
  AttendSablier([&] { fenetre = Cree(); }, "longueur " + Nom(c.fiches));
}

TEST_P(FichesListe, LePointeurEstNormalPourDireUnFichierDisparu) {
  Ouvre();
  ExigePointeurNormalAuxMessages();
  b.dossier.Supprime(Nom(c.textes));
  Choisit(combo(), 0);
  AttendFinFatale(c.textes);
}

TEST_P(FichesListe, UneLectureQuiEchoueALOuvertureFinitLeProgrammeSansAutreMessage) {
  b.Demarre();
  cadre.emplace(*b.module);
  b.disque.EchoueSur("lit " + Nom(c.fiches), Panne::entreeSortie);
  EXPECT_THROW(Cree(), FinDuProgramme);
  AttendMessage("Erreur fatale. Impossibilité de continuer.", Icone::critique);
}

class TrucsDeFabrique : public FenetreEssai<frmTrucs> {
 protected:
  /// The tip that letters on the closed list and Return lead to.
  QString Cherche(const char* lettres) {
    b.GarnitDeFabrique(DOSSIER_PROGRAMME);
    Ouvre();
    fenetre->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    auto& trucs = Le<QComboBox>("ComboTrucs");
    trucs.setFocus();
    Frappe(QString(lettres));
    Frappe(Qt::Key_Return);
    EXPECT_TRUE(aLeFocus("txtTruc"));
    return trucs.currentText();
  }
};

TEST_F(TrucsDeFabrique, EmincerSeTrouveSansAccent) {
  EXPECT_EQ(Cherche("emincer"), Fr("Émincer"));
}

TEST_F(TrucsDeFabrique, EcumerSeTrouveSansAccent) {
  EXPECT_EQ(Cherche("ecumer"), Fr("Écumer"));
}

TEST_F(TrucsDeFabrique, UnMotDuTitreSuffit) {
  EXPECT_EQ(Cherche("crepes"), Fr("Pâte à crêpes sans grumeaux"));
}

}  // namespace
}  // namespace gastrelle::essai
