// The tab "Modifier" of the wines window: its two options, and a region's new name.

#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class RenommerUneRegion : public FenetreVins {
 protected:
  QComboBox& regions() { return Le<QComboBox>("ComboRegionVinModifier(0)"); }
  QComboBox& sienne() { return Le<QComboBox>("ComboRegionVinModifier(1)"); }
  /// Opens the tab on "Une région d'origine", the first of them ("Alpes") chosen.
  void OuvreSurLaRegion() {
    OuvreSurAbymes(3);
    Clique(Le("Option2(0)"));
    b.disque.OublieJournal();
  }
  void Renomme(const QString& nom) {
    Remplace(Le("txtSaisieRegionModifier"), nom);
    Clique(Le("cmdValideModifier"));
  }
  void ChangeLeVin() {
    Remplace(Le("txtSaisieNomVinModifier"), "Autre");
    Remplace(Le("txtSaisieNoteModifier"), "Autre note");
    Choisit(sienne(), 4);
  }
  /// The page as it stands when nothing is changed.
  void AttendLesValeurs() {
    EXPECT_EQ(regions().currentIndex(), 0);
    EXPECT_EQ(TextesDe({"txtSaisieRegionModifier", "txtSaisieNomVinModifier",
                        "ComboRegionVinModifier(1)", "txtSaisieNoteModifier"}),
              (QStringList{"Alpes", "Abymes", "Alpes", "Dix octets"}));
    EXPECT_THAT(b.messages.questions, IsEmpty());
    EXPECT_FALSE(b.pointeur.sablier);
  }
  QStringList actifs() {
    return Actifs({"Option2(0)", "Option2(1)", "ComboRegionVinModifier(0)",
                   "txtSaisieRegionModifier", "txtSaisieNomVinModifier",
                   "ComboRegionVinModifier(1)", "txtSaisieNoteModifier", "cmdValideModifier",
                   "cmdEffacerModifier"});
  }
  void AttendOptionRegion() {
    EXPECT_TRUE(estCoche("Option2(0)"));
    EXPECT_EQ(actifs(),
              (QStringList{"Option2(0)", "Option2(1)", "ComboRegionVinModifier(0)",
                           "txtSaisieRegionModifier", "cmdValideModifier", "cmdEffacerModifier"}));
    EXPECT_TRUE(aLeFocus("ComboRegionVinModifier(0)"));
  }
  void AttendOptionVin() {
    EXPECT_TRUE(estCoche("Option2(1)"));
    EXPECT_EQ(actifs(), (QStringList{"Option2(0)", "Option2(1)", "txtSaisieNomVinModifier",
                                     "ComboRegionVinModifier(1)", "txtSaisieNoteModifier",
                                     "cmdValideModifier", "cmdEffacerModifier"}));
    EXPECT_TRUE(aLeFocus("txtSaisieNomVinModifier"));
  }
};

TEST_F(RenommerUneRegion, LOngletSOuvreSurLeVin) {
  OuvreSurAbymes(3);
  AttendLesValeurs();
  AttendOptionVin();
}

TEST_F(RenommerUneRegion, LOngletSOuvreToujoursSurLeVin) {
  OuvreSurLaRegion();
  Choisit(regions(), 3);
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 3);
  AttendLesValeurs();
  AttendOptionVin();
  Clique(Le("Option2(0)"));
  fenetre->Desactive();
  fenetre->Active();
  AttendLesValeurs();
  AttendOptionVin();
}

TEST_F(RenommerUneRegion, LOptionRegionRendLesValeursDuVinEtLeFerme) {
  OuvreSurAbymes(3);
  ChangeLeVin();
  b.disque.OublieJournal();
  Clique(Le("Option2(0)"));
  AttendLesValeurs();
  AttendOptionRegion();
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", LitVin(565)));
}

TEST_F(RenommerUneRegion, LOptionVinOublieLeNomTapeEtFermeLaRegion) {
  OuvreSurLaRegion();
  Choisit(regions(), 3);
  Remplace(Le("txtSaisieRegionModifier"), "Jura");
  b.disque.OublieJournal();
  Clique(Le("Option2(1)"));
  // The box is emptied, then the choice of the first region puts its name there.
  AttendLesValeurs();
  AttendOptionVin();
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", LitVin(565)));
}

TEST_F(RenommerUneRegion, LesOptionsFinissentLeProgrammeQuandLeVinNeSeRelitPas) {
  AjouteAbymes(b);
  for (const char* option : {"Option2(0)", "Option2(1)"}) {
    SCOPED_TRACE(option);
    Ouvre(3);
    if (std::string_view(option) == "Option2(1)") {
      Clique(Le("Option2(0)"));
    }
    const std::string octets = b.dossier.Lit("GLV2.DAT");
    b.dossier.Supprime("GLV2.DAT");
    Clique(Le(option));
    AttendFinFatale(Donnees::GLV2);
    fenetre.reset();
    b.dossier.Ecrit("GLV2.DAT", octets);
    b.messages.vus.clear();
    b.Redemarre();
  }
}

TEST_F(RenommerUneRegion, ChoisirUneRegionMetSonNomDansLaBoite) {
  OuvreSurLaRegion();
  Remplace(Le("txtSaisieRegionModifier"), "Jura");
  Choisit(regions(), Fr("Région 003"));
  EXPECT_EQ(TexteDe("txtSaisieRegionModifier"), Fr("Région 003"));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(RenommerUneRegion, EcritLeNomSeulEtRelitLesRegions) {
  OuvreSurLaRegion();
  Choisit(regions(), Fr("Région 003"));
  Renomme("  Bugey ");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV1.DAT", EcritRegion(3),
                                              "longueur GLV1.DAT", ParcourtRegions(29)));
  RecRegion attendue;
  attendue.actif = -1;
  attendue.nomRegion = "Bugey";
  EXPECT_EQ(Octets(FicheRegion(b, 3)), Octets(attendue));
  EXPECT_EQ(FicheRegion(b, 1).actif, 28);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(RenommerUneRegion, ChangeDansLesCinqListes) {
  AjouteAbymes(b);
  OuvreEtParcourt();
  CliqueOnglet(*fenetre, 3);
  Clique(Le("Option2(0)"));
  Choisit(regions(), Fr("Région 003"));
  Renomme("Bugey");
  for (const char* nom : {"ComboRegionVinAjouter", "ComboRegionVinModifier(0)",
                          "ComboRegionVinModifier(1)", "ComboRegionSupprimer"}) {
    auto& liste = Le<QComboBox>(nom);
    EXPECT_EQ(liste.count(), 28) << nom;
    EXPECT_EQ(liste.findText("Bugey"), 1) << nom;
    EXPECT_EQ(liste.itemData(1).toInt(), 3) << nom;
  }
  EXPECT_EQ(Textes(Le<QComboBox>("ComboRegionVinTrier")).mid(0, 3),
            (QStringList{"?", "Alpes", "Bugey"}));
}

TEST_F(RenommerUneRegion, UneAutreRegionLaisseCelleDuVinAffiche) {
  OuvreSurLaRegion();
  Choisit(regions(), Fr("Région 003"));
  Renomme("Bugey");
  AttendLaListe();
  EXPECT_EQ(vinAffiche(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
}

TEST_F(RenommerUneRegion, CelleDuVinAfficheResteVideJusquAuProchainChoix) {
  OuvreSurLaRegion();
  Renomme("Savoie");
  AttendLaListe();
  EXPECT_EQ(vinAffiche(), (QStringList{"Abymes", "", "Dix octets"}));
  EXPECT_EQ(std::get<VueVin>(fenetre->VueCourante()).region, "");
  Choisit(vins(), 0);
  EXPECT_EQ(TexteDe("txtRegion"), "Savoie");
}

TEST_F(RenommerUneRegion, UnSimpleChangementDeCasseRevientALaListeSansRienEcrire) {
  OuvreSurLaRegion();
  for (const char* nom : {"ALPES", " Alpes "}) {
    SCOPED_TRACE(nom);
    CliqueOnglet(*fenetre, 3);
    Clique(Le("Option2(0)"));
    b.disque.OublieJournal();
    Renomme(nom);
    EXPECT_THAT(b.disque.journal(), IsEmpty());
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(b.messages.bips, 0);
    AttendLaListe();
    EXPECT_EQ(TexteDe("txtRegion"), "Alpes");
  }
  EXPECT_EQ(NomRegion(b, 29), "Alpes");
}

TEST_F(RenommerUneRegion, UnNomVideEstRefuseEtLAncienRevient) {
  OuvreSurLaRegion();
  Choisit(regions(), Fr("Région 003"));
  b.messages.pendant = [&] {
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_EQ(TexteDe("txtSaisieRegionModifier"), "");  // the old name comes back behind it
  };
  Renomme("   ");
  AttendMessage("Il faut saisir le nouveau nom de la région.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(TexteDe("txtSaisieRegionModifier"), Fr("Région 003"));
  EXPECT_TRUE(aLeFocus("txtSaisieRegionModifier"));
  AttendRienDeFait(3);
}

TEST_F(RenommerUneRegion, LeNomDUneAutreRegionEstRefuseAvecUnBipEtLAncienRevient) {
  OuvreSurLaRegion();
  ExigePointeurNormalAuxMessages();
  Renomme(Fr(" RÉGION 002"));
  AttendMessage("Cette région existe déjà !");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(TexteDe("txtSaisieRegionModifier"), "Alpes");
  EXPECT_TRUE(aLeFocus("txtSaisieRegionModifier"));
  AttendRienDeFait(3);
}

TEST_F(RenommerUneRegion, DeuxRegionsPareillesSeDistinguentParLeurNumero) {
  b.AjouteRegion("Jura");  // 29
  b.AjouteRegion("Jura");  // 30
  Ouvre(3);
  Clique(Le("Option2(0)"));
  Choisit(regions(), 1);
  Renomme("Comte");
  EXPECT_EQ(NomRegion(b, 29), "Jura");
  EXPECT_EQ(NomRegion(b, 30), "Comte");
}

TEST_F(RenommerUneRegion, SoixanteDixLettresSeTapentEtSoixanteQuatreRestent) {
  OuvreSurLaRegion();
  EXPECT_EQ(Le<QLineEdit>("txtSaisieRegionModifier").maxLength(), 128);
  Renomme(QString(70, 'r'));
  EXPECT_EQ(NomRegion(b, 29), std::string(64, 'r'));
  EXPECT_EQ(NomRegion(b, 28), "Région 028"_1252);
  // The whole text is another name than its first 64 letters, which are the region's.
  CliqueOnglet(*fenetre, 3);
  Clique(Le("Option2(0)"));
  Choisit(regions(), QString(64, 'r'));
  b.disque.OublieJournal();
  Renomme(QString(70, 'r'));
  EXPECT_THAT(b.disque.changements(), ElementsAre(EcritRegion(29)));
}

TEST_F(RenommerUneRegion, SonFichierDisparuFinitLeProgramme) {
  OuvreSurLaRegion();
  b.dossier.Supprime("GLV1.DAT");
  ExigePointeurNormalAuxMessages();
  Renomme("Savoie");
  AttendFinFatale(Donnees::GLV1);
  EXPECT_EQ(onglet(), 3);
}

TEST_F(RenommerUneRegion, LesRefusPrecedentLaRechercheDuFichier) {
  OuvreSurLaRegion();
  b.dossier.Supprime("GLV1.DAT");
  Renomme("");
  Renomme(Fr("Région 002"));
  Renomme("alpes");
  EXPECT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_FALSE(FinVue());
}

TEST_F(RenommerUneRegion, FinitLeProgrammeQuandLeNomNeSEcritPas) {
  FinitAChaqueEcriture(
      1, 3, PrepareAbymes,
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option2(0)"));
        Remplace(Trouve(uneFenetre, "txtSaisieRegionModifier"), "Savoie");
        Clique(Trouve(uneFenetre, "cmdValideModifier"));
      },
      [](const Bibliotheque& autre, std::size_t) { EXPECT_EQ(NomRegion(autre, 29), "Alpes"); });
}

TEST_F(RenommerUneRegion, UneRelectureQuiEchoueFinitLeProgrammeApresLEcriture) {
  OuvreSurLaRegion();
  b.disque.EchoueSur("lit GLV1.DAT", Panne::entreeSortie);
  Renomme("Savoie");
  AttendFinFatale();
  EXPECT_EQ(NomRegion(b, 29), "Savoie");
}

TEST_F(RenommerUneRegion, ReinitialiserReprendLaPremiereRegionSansQuestion) {
  OuvreSurLaRegion();
  Choisit(regions(), 5);
  Remplace(Le("txtSaisieRegionModifier"), "Jura");
  b.disque.OublieJournal();
  AttendSablier([&] { Clique(Le("cmdEffacerModifier")); });
  AttendLesValeurs();
  AttendOptionRegion();
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", LitVin(565)));
}

TEST_F(RenommerUneRegion, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurLaRegion();
  AttendSablier([&] { Renomme("Savoie"); });
}

}  // namespace
}  // namespace gastrelle::essai
