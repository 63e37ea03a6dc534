// The tab "Liste" of the cheeses window, through its controls.

#include "fromages/fenetre/FenetreFromages.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ListeDesFromages : public FenetreFromages {};

TEST_F(ListeDesFromages, OuvreSurLePremierFromage) {
  OuvreSurAbondance();
  EXPECT_EQ(fromages().count(), 123);
  EXPECT_EQ(Champs("ComboFromages", ""),
            (QStringList{"Abondance", "Savoie", "Vache", "Avril", "Septembre", "Dix octets"}));
  EXPECT_EQ(cadre->contextes, std::vector<std::int16_t>{21});
  EXPECT_EQ(cadre->cochee, EntreeVue::fromages);
}

TEST_F(ListeDesFromages, DesNotesQuiRempliraientLaMemoireFinissentLeProgramme) {
  std::string lignes;
  while (lignes.size() < 1'000'000) {
    lignes += "\r\n";
  }
  b.AjouteFromage(Fromage("Vieux"), lignes);
  Ouvre();
  Choisit(fromages(), 122);
  AttendFinFatale();
}

TEST_F(ListeDesFromages, ChangeDeFromageALaSouris) {
  OuvreSurAbondance();
  Choisit(fromages(), 1);
  EXPECT_EQ(Champs("ComboFromages", ""), (QStringList{"Fromage 002", "", "Vache", "?", "?", ""}));
}

TEST_F(ListeDesFromages, ClasseSansCasseNiAccentEtGardeLesNumeros) {
  b.AjouteFromage(Fromage("époisses"_1252));
  b.AjouteFromage(Fromage("Emmental"));
  b.AjouteFromage(Fromage("bleu"));
  Ouvre();
  EXPECT_EQ(Textes(fromages()).mid(0, 4),
            (QStringList{"bleu", "Emmental", Fr("époisses"), "Fromage 002"}));
  EXPECT_EQ(fromages().itemData(0).toInt(), 126);
  EXPECT_EQ(fromages().itemData(1).toInt(), 125);
  EXPECT_EQ(fromages().itemData(2).toInt(), 124);
}

TEST_F(ListeDesFromages, DistingueDeuxFromagesDuMemeNom) {
  b.AjouteFromage(Fromage("Brie", "Meaux"));
  b.AjouteFromage(Fromage("Brie", "Melun"));
  Ouvre();
  Choisit(fromages(), 1);
  EXPECT_EQ(TexteDe("txtRegion"), "Melun");
  EXPECT_EQ(fromages().currentData().toInt(), 125);
}

TEST_F(ListeDesFromages, LeFocusVaALaRegionOuAuLaitSansRegion) {
  OuvreSurAbondance();
  EXPECT_TRUE(aLeFocus("txtRegion"));
  Choisit(fromages(), 1);
  EXPECT_TRUE(aLeFocus("txtLait"));
  Choisit(fromages(), 0);
  EXPECT_TRUE(aLeFocus("txtRegion"));
}

TEST_F(ListeDesFromages, LeFocusSuitLaMemeRegleEnRevenantSurLOnglet) {
  Ouvre(2);
  CliqueOnglet(*fenetre, 1);
  EXPECT_TRUE(aLeFocus("txtLait"));
}

TEST_F(ListeDesFromages, LesBoitesSeLisentMaisNeSeTapentPas) {
  OuvreSurAbondance();
  for (const char* nom : {"txtRegion", "txtLait", "txtPremierMois", "txtDernierMois", "txtNotes"}) {
    const QString avant = TexteDe(nom);
    Tape(Le(nom), "x");
    EXPECT_EQ(TexteDe(nom), avant) << nom;
  }
}

TEST_F(ListeDesFromages, LeNombreDeFromagesSeLitSurChaqueOngletToujoursAuPluriel) {
  OuvreEtParcourt();
  for (const char* nom :
       {"txtAnnonce(0)", "txtAnnonce(1)", "txtAnnonce(2)", "txtAnnonce(3)", "txtAnnonce(4)"}) {
    EXPECT_EQ(TexteDe(nom), "122\nfromages") << nom;
  }
  b.module->bufFromage.nbActifs() = 1;
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "1\nfromages");
}

TEST_F(ListeDesFromages, UnCompteFauxEstRepareALOuverture) {
  PoseCompte(b, "GLF1.stp", 125);
  Ouvre();
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "122\nfromages");
  EXPECT_EQ(FicheFromage(b, 1).actif, 122);
}

TEST_F(ListeDesFromages, LePointeurRevientALaFlecheApresChaqueChoix) {
  Ouvre();
  b.pointeur.Sablier();
  Choisit(fromages(), 1);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ListeDesFromages, UnFichierDisparuFinitLeProgrammeParLeMessageFatal) {
  OuvreSurAbondance();
  b.dossier.Supprime("GLF1.DAT");
  Choisit(fromages(), 1);
  AttendFinFatale();
  ASSERT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_EQ(b.messages.vus[0].texte, "Fichier " + b.module->chemins.De("GLF1.DAT") + "\r\n" +
                                         std::string("non trouvé ou erreur disque."_1252));
  EXPECT_EQ(b.messages.bips, 1);
}

TEST_F(ListeDesFromages, UnCodeHorsDeSaTableFinitLeProgramme) {
  b.AjouteFromage(Fromage("Zébu"_1252, "", 4));
  Ouvre();
  Choisit(fromages(), Fr("Zébu"));
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
}

TEST_F(ListeDesFromages, SansSonFichierLaFenetreNeSOuvrePas) {
  b.Demarre();
  b.dossier.Supprime("GLF1.DAT");
  cadre.emplace(*b.module);
  EXPECT_THROW(frmFromages(*b.module, *cadre), FinDuProgramme);
  ASSERT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_EQ(b.messages.vus[1].texte, "Erreur fatale. Impossibilité de continuer."_1252);
  EXPECT_EQ(b.messages.vus[1].icone, Icone::critique);
}

TEST_F(ListeDesFromages, UneLectureQuiEchoueALOuvertureFinitLeProgramme) {
  b.Demarre();
  b.disque.EchoueSur("lit GLF1.DAT", Panne::entreeSortie);
  cadre.emplace(*b.module);
  EXPECT_THROW(frmFromages(*b.module, *cadre), FinDuProgramme);
  EXPECT_THAT(b.messages.vus, SizeIs(1));
}

TEST_F(ListeDesFromages, UnCatalogueSansFromageSOuvreVide) {
  b.dossier.Ecrit("GLF1.stp", b.dossier.Lit("GLF1.stp").substr(0, 208));
  Ouvre();
  EXPECT_EQ(fromages().count(), 0);
  EXPECT_FALSE(FinVue());
  EXPECT_TRUE(aLeFocus("txtLait"));
}

TEST_F(ListeDesFromages, LAffichageDitToutLeFromage) {
  OuvreSurAbondance();
  const auto vue = std::get<VueFromage>(fenetre->VueCourante());
  EXPECT_EQ(vue.nom, "Abondance");
  EXPECT_EQ(vue.region, "Savoie");
  EXPECT_EQ(vue.lait, "Vache");
  EXPECT_EQ(vue.premierMois, "Avril");
  EXPECT_EQ(vue.dernierMois, "Septembre");
  EXPECT_EQ(vue.notes, "Dix octets");
}

TEST_F(ListeDesFromages, LesOngletsDeSaisieNAffichentRien) {
  Ouvre();
  for (const int onglet : {2, 3, 4}) {
    CliqueOnglet(*fenetre, onglet);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(fenetre->VueCourante())) << onglet;
  }
}

TEST_F(ListeDesFromages, ChaqueOngletASonContexte) {
  Ouvre();
  cadre->contextes.clear();
  for (const int onglet : {2, 3, 4, 5}) {
    CliqueOnglet(*fenetre, onglet);
  }
  EXPECT_THAT(cadre->contextes, ElementsAre(22, 23, 24, 25));
}

TEST_F(ListeDesFromages, UnClicSurLOngletPresentNeFaitRien) {
  Ouvre(2);
  Tape(Le("txtFromageAjouter"), "Brie");
  cadre->contextes.clear();
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(TexteDe("txtFromageAjouter"), "Brie");
  EXPECT_THAT(cadre->contextes, IsEmpty());
}

TEST_F(ListeDesFromages, LaDesactivationLaReductionEtLaFermetureQuittentLeContexte) {
  Ouvre();
  fenetre->Desactive();
  fenetre->QuandReduite();
  fenetre->close();
  EXPECT_THAT(cadre->quittes,
              ElementsAre(EntreeVue::fromages, EntreeVue::fromages, EntreeVue::fromages));
}

TEST_F(ListeDesFromages, UneErreurFataleDejaLeveeFinitLeProgrammeALActivation) {
  Ouvre();
  b.module->erreurFatale = true;
  EXPECT_THROW(fenetre->Active(), FinDuProgramme);
}

TEST_F(ListeDesFromages, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurAbondance();
  AttendSablier([&] { Choisit(fromages(), 1); });
}

TEST_F(ListeDesFromages, LePointeurEstNormalPourDireUnFichierDisparu) {
  OuvreSurAbondance();
  ExigePointeurNormalAuxMessages();
  b.dossier.Supprime("GLF1.DAT");
  Choisit(fromages(), 1);
  EXPECT_THAT(b.messages.vus, SizeIs(2));
}

}  // namespace
}  // namespace gastrelle::essai
