// The tab "Modifier" of the cheeses window, through its controls.

#include "controles/ZoneTexte.h"
#include "fromages/fenetre/FenetreFromages.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ModifierUnFromage : public FenetreFromages {
 protected:
  QWidget& nom() { return Le("txtFromageModifier"); }
  QStringList champs() {
    return Champs("txtFromageModifier", "Modifier", "ComboLait", "Combo%1Mois");
  }
  void Valide() { Clique(Le("cmdValiderModifier")); }
  /// Changes "Abondance" while the n-th write fails: the program ends, the record as it was.
  void EchoueALEcriture(std::size_t n) {
    const std::string avant = Octets(FicheFromage(b, 124));
    Remplace(nom(), "Banon");
    Remplace(Le("txtNotesModifier"), "Bref");
    b.disque.EchoueALaNiemeEcriture(n, Panne::disquePlein);
    Valide();
    AttendFinFatale();
    EXPECT_EQ(onglet(), 3);
    EXPECT_EQ(Octets(FicheFromage(b, 124)), avant);
  }
  /// Opens on "Abondance" and changes all its fields in their boxes.
  void OuvreEtChangeTout() {
    OuvreSurAbondance(3);
    Remplace(nom(), "Autre");
    Remplace(Le("txtRegionModifier"), "Ailleurs");
    Remplace(Le("txtNotesModifier"), "Rien");
    Choisit(Le<QComboBox>("ComboLaitModifier"), 3);
    Choisit(Le<QComboBox>("ComboPremierMoisModifier"), 0);
    Choisit(Le<QComboBox>("ComboDernierMoisModifier"), 0);
  }
  /// The fields are those of "Abondance" on file, the cursors at their heads, the name in focus.
  void AttendAbondance() {
    EXPECT_EQ(champs(),
              (QStringList{"Abondance", "Savoie", "Vache", "Avril", "Septembre", "Dix octets"}));
    EXPECT_TRUE(aLeFocus("txtFromageModifier"));
    EXPECT_EQ(Le<QLineEdit>("txtFromageModifier").cursorPosition(), 0);
    EXPECT_EQ(Le<QLineEdit>("txtRegionModifier").cursorPosition(), 0);
    EXPECT_EQ(Le<QPlainTextEdit>("txtNotesModifier").textCursor().position(), 0);
    EXPECT_THAT(b.messages.questions, IsEmpty());
  }
};

TEST_F(ModifierUnFromage, ReprendLeFromageAfficheLeCurseurEnTete) {
  OuvreSurAbondance(3);
  AttendAbondance();
}

TEST_F(ModifierUnFromage, LesBoitesOntLesLimitesDeLeursChamps) {
  Ouvre(3);
  EXPECT_EQ(Le<QLineEdit>("txtFromageModifier").maxLength(), 128);
  EXPECT_EQ(Le<QLineEdit>("txtRegionModifier").maxLength(), 64);
  EXPECT_EQ(Le("txtNotesModifier").property("maxLength").toInt(), 30000);
}

TEST_F(ModifierUnFromage, EnregistreToutEtMontreLeFromage) {
  OuvreSurAbondance(3);
  Remplace(nom(), " Zamorano ");
  Remplace(Le("txtRegionModifier"), " Castille ");
  Remplace(Le("txtNotesModifier"), " Plus long que dix. ");
  Choisit(Le<QComboBox>("ComboLaitModifier"), 3);
  Choisit(Le<QComboBox>("ComboPremierMoisModifier"), 11);
  Choisit(Le<QComboBox>("ComboDernierMoisModifier"), 2);
  Valide();

  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(fromages().currentData().toInt(), 124);
  EXPECT_EQ(fromages().currentIndex(), 122);
  EXPECT_EQ(Champs("ComboFromages", ""), (QStringList{"Zamorano", "Castille", "Brebis", "Novembre",
                                                      Fr("Février"), "Plus long que dix."}));
  RecFromage attendue = Fromage("Zamorano", "Castille", 3, 11, 2);
  attendue.actif = -1;
  attendue.posTexte = 19;
  attendue.lgTexte = 18;
  EXPECT_EQ(Octets(FicheFromage(b, 124)), Octets(attendue));
  EXPECT_EQ(FicheFromage(b, 1).actif, 123);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ModifierUnFromage, UnFromageDeFabriqueSeModifieAussi) {
  Ouvre(3);
  Remplace(nom(), "Comte");
  Valide();
  EXPECT_EQ(NomFromage(b, 2), "Comte");
}

TEST_F(ModifierUnFromage, UnNomVideEstRefuseEtLAncienRevient) {
  OuvreSurAbondance(3);
  Remplace(nom(), "   ");
  Remplace(Le("txtRegionModifier"), "Berry");
  Valide();
  AttendMessage("Il faut donner un nom au fromage.");
  EXPECT_EQ(champs().mid(0, 2), (QStringList{"Abondance", "Berry"}));
  EXPECT_TRUE(aLeFocus("txtFromageModifier"));
  EXPECT_EQ(onglet(), 3);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ModifierUnFromage, LeNomDUnAutreFromageEstRefuseQuelleQueSoitLaCasse) {
  OuvreSurAbondance(3);
  Remplace(nom(), " FROMAGE 002");
  ExigePointeurNormalAuxMessages();
  Valide();
  AttendMessage("Ce fromage existe déjà.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(TexteDe("txtFromageModifier"), "FROMAGE 002");
  EXPECT_TRUE(aLeFocus("txtFromageModifier"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ModifierUnFromage, UnNomAccentueSeCompareEnMajuscules) {
  b.AjouteFromage(Fromage("Époisses"_1252));
  OuvreSurAbondance(3);
  Remplace(nom(), Fr("époisses"));
  Valide();
  AttendMessage("Ce fromage existe déjà.");
}

TEST_F(ModifierUnFromage, UnSimpleChangementDeCasseEstEnregistre) {
  OuvreSurAbondance(3);
  Remplace(nom(), "ABONDANCE");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(NomFromage(b, 124), "ABONDANCE");
  EXPECT_EQ(fromages().currentText(), "ABONDANCE");
}

TEST_F(ModifierUnFromage, DeuxFromagesDuMemeNomSeModifientSansChangerDeNom) {
  b.AjouteFromage(Fromage("Abondance"));
  OuvreSurAbondance(3);
  Remplace(Le("txtRegionModifier"), "Chablais");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(Rogne(FicheFromage(b, 124).regionFromage.brut()), "Chablais");
}

TEST_F(ModifierUnFromage, DesNotesPlusCourtesRestentALeurPlace) {
  OuvreSurAbondance(3);
  Remplace(Le("txtNotesModifier"), "Bref");
  Valide();
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATBrefoctets");
  EXPECT_EQ(FicheFromage(b, 124).posTexte, 9);
  EXPECT_EQ(TexteDe("txtNotes"), "Bref");
}

TEST_F(ModifierUnFromage, DesNotesVideesPerdentLeurReference) {
  OuvreSurAbondance(3);
  Remplace(Le("txtNotesModifier"), "  ");
  Valide();
  EXPECT_EQ(FicheFromage(b, 124).posTexte, 0);
  EXPECT_EQ(FicheFromage(b, 124).lgTexte, 0);
  EXPECT_EQ(TexteDe("txtNotes"), "");
}

TEST_F(ModifierUnFromage, DesNotesTropLonguesPourLaBoiteSurviventAUneValidation) {
  const std::string notes(40000, 'x');
  b.AjouteFromage(Fromage("Abondance"), notes);
  Ouvre(3);
  Valide();
  EXPECT_EQ(FicheFromage(b, 124).lgTexte, 40000);
}

TEST_F(ModifierUnFromage, DesNotesDePlusieursMegaoctetsSontSurTousLesOnglets) {
  std::string notes;
  while (notes.size() < 3'000'000) {
    notes += "Un fromage que l'on affine en cave humide, sur de la paille.\r\n";
  }
  b.AjouteFromage(Fromage("Abondance"), notes);
  Ouvre(1);
  VaA(4);
  VaA(3);
  for (const char* nom : {"txtNotes", "txtNotesSupprimer", "txtNotesModifier"}) {
    EXPECT_EQ(dynamic_cast<ZoneTexte&>(Le(nom)).Texte(), notes) << nom;
  }
  Valide();
  EXPECT_EQ(FicheFromage(b, 124).lgTexte, std::ssize(notes));
}

TEST_F(ModifierUnFromage, RelitLeCatalogueEtRepareSonCompte) {
  OuvreSurAbondance(3);
  b.module->bufFromage.nbActifs() = 130;
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLF2.DAT 8+10", "écrit GLF1.DAT 25584+208",
                                                  "écrit GLF1.DAT 0+208"));
  EXPECT_EQ(FicheFromage(b, 1).actif, 123);
}

TEST_F(ModifierUnFromage, UnFromageQueLaListeNAtteintPlusFinitLeProgramme) {
  OuvreSurAbondance(3);
  b.module->bufFromage.nbActifs() = 100;
  Valide();
  AttendFinFatale();
  EXPECT_EQ(onglet(), 3);
}

TEST_F(ModifierUnFromage, UnFichierDisparuFinitLeProgramme) {
  OuvreSurAbondance(3);
  b.dossier.Supprime("GLF2.DAT");
  Valide();
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ModifierUnFromage, ReinitialiserReprendLeFromageSansQuestionLeCurseurEnTete) {
  OuvreEtChangeTout();
  Clique(Le("cmdEffacerModifier"));
  AttendAbondance();
}

TEST_F(ModifierUnFromage, RevenirALaFenetreReprendLeFromageSansUnMot) {
  OuvreEtChangeTout();
  fenetre->Desactive();
  fenetre->Active();
  EXPECT_EQ(onglet(), 3);
  AttendAbondance();
}

TEST_F(ModifierUnFromage, LeSecondDeDeuxFromagesDuMemeNomChangeSeul) {
  b.AjouteFromage(Fromage("Brie", "Meaux", 1));
  b.AjouteFromage(Fromage("Brie", "Melun", 1));
  Ouvre();
  const std::string premier = Octets(FicheFromage(b, 124));
  Choisit(fromages(), 1);
  CliqueOnglet(*fenetre, 3);
  Remplace(Le("txtRegionModifier"), "Nangis");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(Octets(FicheFromage(b, 124)), premier);
  EXPECT_EQ(Rogne(FicheFromage(b, 125).regionFromage.brut()), "Nangis");
  EXPECT_EQ(fromages().currentData().toInt(), 125);
  EXPECT_EQ(TexteDe("txtRegion"), "Nangis");
}

TEST_F(ModifierUnFromage, SansNotesLaReserveDisparueNeGenePas) {
  OuvreSurAbondance(3);
  Remplace(Le("txtNotesModifier"), "");
  b.dossier.Supprime("GLF2.DAT");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(onglet(), 1);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLF1.DAT 25584+208"));
  EXPECT_EQ(FicheFromage(b, 124).posTexte, 0);
}

TEST_F(ModifierUnFromage, LeRefusDUnNomDejaDonnePrecedeLeRognageDuReste) {
  OuvreSurAbondance(3);
  Remplace(nom(), " Fromage 002 ");
  Remplace(Le("txtRegionModifier"), " Berry ");
  Remplace(Le("txtNotesModifier"), " Note ");
  Valide();
  AttendMessage("Ce fromage existe déjà.");
  EXPECT_EQ(TexteDe("txtRegionModifier"), " Berry ");
  EXPECT_EQ(TexteDe("txtNotesModifier"), " Note ");
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(ModifierUnFromage, SansFromageValiderFinitLeProgrammeSansRienEcrire) {
  b.dossier.Ecrit("GLF1.stp", b.dossier.Lit("GLF1.stp").substr(0, 208));
  Ouvre(3);
  Tape(nom(), "Noce");
  Valide();
  AttendFinFatale();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ModifierUnFromage, DesNotesQuiNeSEcriventPasFinissentLeProgrammeSansQuitterLOnglet) {
  OuvreSurAbondance(3);
  EchoueALEcriture(1);
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATDix octets");
}

TEST_F(ModifierUnFromage, UneFicheQuiNeSEcritPasFinitLeProgrammeSansQuitterLOnglet) {
  OuvreSurAbondance(3);
  EchoueALEcriture(2);
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATBrefoctets");
}

TEST_F(ModifierUnFromage, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurAbondance(3);
  AttendSablier([&] { Valide(); });
}

TEST_F(ModifierUnFromage, LePointeurEstNormalPendantLeRefusDUnNomVide) {
  OuvreSurAbondance(3);
  Remplace(nom(), "");
  b.pointeur.Sablier();
  ExigePointeurNormalAuxMessages();
  Valide();
  AttendMessage("Il faut donner un nom au fromage.");
}

}  // namespace
}  // namespace gastrelle::essai
