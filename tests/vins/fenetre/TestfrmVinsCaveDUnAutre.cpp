// The cellar of a wine after another one went through the working record: a sort, an addition.

#include "vins/fenetre/FenetreCave.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LaCaveDUnAutreVin : public FenetreCave {
 protected:
  /// "Abymes" (565), then "Zibibbo" (566) of the same region, the last record of the file, with a
  /// cellar note of fourteen bytes at position 37.
  void OuvreSurDeuxVins(int surOnglet = 1) {
    const std::int32_t alpes = b.AjouteRegion("Alpes");
    b.AjouteVin(VinEnCave("Abymes", {6, 2}, alpes), "Dix octets", "En haut.");
    b.AjouteVin(VinEnCave("Zibibbo", {11, 12, 13, 14, 15, 16, 17, 18, 19}, alpes), "Dix encore",
                "Casier du bas.");
    Ouvre(surOnglet);
  }
  /// Sorts a region, goes back by the list and opens the cellar without choosing a wine.
  void TriePuisOuvreLaCave() {
    CliqueOnglet(*fenetre, 5);
    Choisit(Le<QComboBox>("ComboRegionVinTrier"), Fr("Région 002"));
    CliqueOnglet(*fenetre, 1);
    CliqueOnglet(*fenetre, ongletMesVins);
    b.disque.OublieJournal();
  }
  /// Adds the wine "Neuf" (566), which is then on display, and opens its cellar.
  void AjouteNeufPuisOuvreSaCave() {
    CliqueOnglet(*fenetre, 2);
    Clique(Le("Option1(1)"));
    Tape(Le("txtSaisieNomVin"), "Neuf");
    Clique(Le("cmdValideAjouter"));
    ASSERT_EQ(vins().currentText(), "Neuf");
    CliqueOnglet(*fenetre, ongletMesVins);
    b.disque.OublieJournal();
  }
  std::string Fiche(std::size_t numero) { return Octets(FicheVin(b, numero)); }
  std::string Reserve() { return b.dossier.Lit("GLV3.DAT"); }
};

TEST_F(LaCaveDUnAutreVin, ApresUnTriLesNombresSontCeuxDuDernierVinLu) {
  OuvreSurDeuxVins();
  TriePuisOuvreLaCave();
  EXPECT_EQ(TexteDe("txtVinCave"), "Abymes");
  EXPECT_EQ(TexteDe("txtRegionCave"), "Alpes");
  EXPECT_EQ(Nombres(), (QStringList{"11", "12", "13", "14", "15", "16", "17", "18", "19"}));
  EXPECT_EQ(TexteDe("txtNotesCave"), "En haut.");
}

TEST_F(LaCaveDUnAutreVin, ApresUnTriValiderMetLaFicheDeLAutreALaPlaceDeCelleQuiEstNommee) {
  OuvreSurDeuxVins();
  const std::string autre = Fiche(566);
  ASSERT_NE(Fiche(565), autre);
  TriePuisOuvreLaCave();
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLV2.DAT 58656+104"));
  EXPECT_EQ(Fiche(565), autre);
  EXPECT_EQ(Fiche(566), autre);
  EXPECT_EQ(vins().currentText(), "Abymes");
}

TEST_F(LaCaveDUnAutreVin, ApresUnTriUneNotePlusCourteSEcritALaPlaceDeCelleDeLAutre) {
  OuvreSurDeuxVins();
  RecVin attendue = FicheVin(b, 566);
  TriePuisOuvreLaCave();
  Remplace(Le("txtSaisieGris"), "1");
  Remplace(notes(), "Au milieu.");
  Valide();
  attendue.nbGris = 1;
  attendue.lgNotesCave = 10;
  EXPECT_EQ(Fiche(565), Octets(attendue));
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEn haut.Dix encoreAu milieu.bas.");
}

TEST_F(LaCaveDUnAutreVin, ChoisirLeVinApresUnTriLeRemontre) {
  OuvreSurDeuxVins();
  TriePuisOuvreLaCave();
  CliqueOnglet(*fenetre, 1);
  Choisit(vins(), 1);
  Choisit(vins(), 0);
  CliqueOnglet(*fenetre, ongletMesVins);
  EXPECT_EQ(Nombres().mid(0, 3), (QStringList{"6", "2", "0"}));
}

TEST_F(LaCaveDUnAutreVin, LeRapportRemetLeVinAffiche) {
  OuvreSurDeuxVins();
  TriePuisOuvreLaCave();
  CliqueOnglet(*fenetre, ongletMaCave);
  CliqueOnglet(*fenetre, ongletMesVins);
  EXPECT_EQ(Nombres().mid(0, 3), (QStringList{"6", "2", "0"}));
}

TEST_F(LaCaveDUnAutreVin, MaCaveMontreCelleDuVinChoisiAuTri) {
  OuvreSurDeuxVins(5);
  Choisit(Le<QComboBox>("ComboRegionVinTrier"), "Alpes");
  QTest::keyClick(&Le("lstTriVin"), Qt::Key_Down);
  Clique(Le("cmdMaCave"));
  EXPECT_EQ(onglet(), ongletMesVins);
  EXPECT_EQ(vins().currentText(), "Zibibbo");
  EXPECT_EQ(TexteDe("txtVinCave"), "Zibibbo");
  EXPECT_EQ(TexteDe("txtNotesCave"), "Casier du bas.");
  EXPECT_EQ(Nombres().mid(0, 2), (QStringList{"11", "12"}));
  EXPECT_TRUE(aLeFocus("txtSaisieBlanc"));
}

TEST_F(LaCaveDUnAutreVin, UnePremiereNoteTropCourteDUnVinAjouteFinitLeProgramme) {
  OuvreSurAbymes();
  AjouteNeufPuisOuvreSaCave();
  EXPECT_EQ(FicheVin(b, 566).posNotesCave, 0);
  EXPECT_EQ(FicheVin(b, 566).lgNotesCave, 8);
  EXPECT_EQ(TexteDe("txtNotesCave"), "");
  const std::string avant = Fiche(566);
  Remplace(notes(), "Court");
  Valide();
  AttendFinFatale();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(Fiche(566), avant);
}

TEST_F(LaCaveDUnAutreVin, UnePremiereNoteAussiLongueQueLaLongueurHeriteeLeFinitAussi) {
  OuvreSurAbymes();
  AjouteNeufPuisOuvreSaCave();
  Remplace(notes(), "Huit car");
  Valide();
  AttendFinFatale();
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEn haut.");
}

TEST_F(LaCaveDUnAutreVin, UnePremiereNotePlusLongueQueLaLongueurHeriteeSEnregistre) {
  OuvreSurAbymes();
  AjouteNeufPuisOuvreSaCave();
  Remplace(notes(), "Neuf car.");
  Valide();
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEn haut.Neuf car.");
  EXPECT_EQ(FicheVin(b, 566).posNotesCave, 27);
  EXPECT_EQ(FicheVin(b, 566).lgNotesCave, 9);
}

TEST_F(LaCaveDUnAutreVin, DesBouteillesSansNoteSEnregistrentPourUnVinAjoute) {
  OuvreSurAbymes();
  AjouteNeufPuisOuvreSaCave();
  Remplace(blanc(), "4");
  Valide();
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(FicheVin(b, 566).nbBlanc, 4);
  EXPECT_EQ(FicheVin(b, 566).lgNotesCave, 8);
}

TEST_F(LaCaveDUnAutreVin, AjouteDevantUnVinSansNoteDeCaveUnVinNHeriteDeRien) {
  OuvreSurAbymes();
  Choisit(vins(), 1);
  AjouteNeufPuisOuvreSaCave();
  EXPECT_EQ(FicheVin(b, 566).lgNotesCave, 0);
  Remplace(notes(), "X");
  Valide();
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(Reserve(), "GLV3.DATDix octetsEn haut.X");
}

}  // namespace
}  // namespace gastrelle::essai
