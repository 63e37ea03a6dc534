// The tab "Liste" of the wines window, through its controls.

#include <string>
#include <vector>

#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ListeDesVins : public FenetreVins {};

TEST_F(ListeDesVins, SOuvreSurLePremierVin) {
  OuvreSurAbymes();
  EXPECT_EQ(vinAffiche(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
  EXPECT_EQ(numeroAffiche(), 565);
  EXPECT_EQ(cadre->contextes, std::vector<std::int16_t>{41});
  EXPECT_EQ(cadre->cochee, EntreeVue::vins);
  AttendLaListe();
}

TEST_F(ListeDesVins, SOuvreParLesRegionsPuisLesVinsPuisLePremierDEntreEux) {
  AjouteAbymes(b);
  b.Demarre();
  cadre.emplace(*b.module);
  fenetre = Cree();
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLV2.DAT", "longueur GLV1.DAT", ParcourtRegions(29), "longueur GLV2.DAT",
                  ParcourtVins(565), "existe GLV2.DAT", "existe GLV1.DAT", LitVin(565),
                  LitRegion(29), "existe GLV3.DAT", "longueur GLV3.DAT", LitTexte(9, 10),
                  "existe GLV3.DAT", "longueur GLV3.DAT", LitTexte(19, 8)));
}

TEST_F(ListeDesVins, ClasseSansCasseNiAccentEtGardeLesNumeros) {
  b.AjouteVin(Vin("Évian"_1252));
  b.AjouteVin(Vin("Etoile"));
  b.AjouteVin(Vin("bergerac"));
  Ouvre();
  EXPECT_EQ(vins().count(), 566);
  EXPECT_EQ(Textes(vins()).mid(0, 4), (QStringList{"bergerac", "Etoile", Fr("Évian"), "Vin 002"}));
  EXPECT_EQ(DonneesDe(vins())[0], 567);
  EXPECT_EQ(DonneesDe(vins())[1], 566);
  EXPECT_EQ(DonneesDe(vins())[2], 565);
  EXPECT_EQ(DonneesDe(vins())[3], 2);
}

TEST_F(ListeDesVins, UnVinSupprimeNEstPasListe) {
  OuvreSurAbymes();
  RecVin parti = FicheVin(b, 300);
  parti.actif = 0;
  b.module->bufVin.Ecrit(300, parti);
  b.module->bufVin.nbActifs() = 563;
  Rouvre();
  EXPECT_EQ(vins().count(), 563);
  EXPECT_EQ(vins().findText("Vin 300"), -1);
}

TEST_F(ListeDesVins, ChangeDeVinALaSouris) {
  OuvreSurAbymes();
  Choisit(vins(), 1);
  EXPECT_EQ(vinAffiche(), (QStringList{"Vin 002", Fr("Région 002"), ""}));
  EXPECT_EQ(b.module->bufVin.courant().idRegion, 2);
  Choisit(vins(), 0);
  EXPECT_EQ(vinAffiche(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
  EXPECT_EQ(b.module->bufVin.courant().nbBlanc, 6);
  EXPECT_TRUE(aLeFocus("ComboVins"));
}

TEST_F(ListeDesVins, DistingueDeuxVinsDuMemeNom) {
  b.AjouteVin(Vin("Arbois", 3));
  b.AjouteVin(Vin("Arbois", 4));
  Ouvre();
  Choisit(vins(), 1);
  EXPECT_EQ(numeroAffiche(), 566);
  EXPECT_EQ(TexteDe("txtRegion"), Fr("Région 004"));
}

TEST_F(ListeDesVins, UnVinSansTexteNeDemandePasLaReserve) {
  OuvreSurAbymes();
  b.dossier.Supprime("GLV3.DAT");
  Choisit(vins(), 1);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(vinAffiche(), (QStringList{"Vin 002", Fr("Région 002"), ""}));
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV2.DAT", "existe GLV1.DAT", LitVin(2), LitRegion(2)));
}

TEST_F(ListeDesVins, LesNotesDemandentLaReserve) {
  b.AjouteVin(Vin("Avec"), "Notes");
  Ouvre();
  b.dossier.Supprime("GLV3.DAT");
  Choisit(vins(), 0);
  AttendFinFatale(Donnees::GLV3);
}

TEST_F(ListeDesVins, LesNotesDeCaveDemandentLaReserveASeules) {
  b.AjouteVin(Vin("Avec"), "", "De cave");
  Ouvre();
  b.dossier.Supprime("GLV3.DAT");
  Choisit(vins(), 0);
  AttendFinFatale(Donnees::GLV3);
}

TEST_F(ListeDesVins, LeFichierDesVinsEstChercheAvantCeluiDesRegions) {
  OuvreSurAbymes();
  b.dossier.Supprime("GLV1.DAT");
  b.dossier.Supprime("GLV2.DAT");
  Choisit(vins(), 1);
  AttendFinFatale(Donnees::GLV2);
}

TEST_F(ListeDesVins, LeFichierDesRegionsEstChercheAussi) {
  OuvreSurAbymes();
  b.dossier.Supprime("GLV1.DAT");
  ExigePointeurNormalAuxMessages();
  Choisit(vins(), 1);
  AttendFinFatale(Donnees::GLV1);
  EXPECT_EQ(b.messages.bips, 1);
}

TEST_F(ListeDesVins, ChaqueLectureQuiEchoueFinitLeProgramme) {
  const std::vector<std::string> lectures{LitVin(565), LitRegion(29), LitTexte(9, 10),
                                          LitTexte(19, 8)};
  AjouteAbymes(b);
  for (const std::string& lecture : lectures) {
    SCOPED_TRACE(lecture);
    Ouvre();
    b.disque.EchoueSur(lecture, Panne::entreeSortie);
    Choisit(vins(), 0);
    AttendFinFatale();
    EXPECT_THAT(b.messages.vus, SizeIs(1));
    fenetre.reset();
    b.disque.Guerit();
    b.messages.vus.clear();
    b.Redemarre();
  }
}

TEST_F(ListeDesVins, UneRegionQuiNEstPasUnNumeroFinitLeProgramme) {
  b.AjouteVin(Vin("Zut", 0));
  Ouvre();
  Choisit(vins(), 563);
  AttendFinFatale();
}

TEST_F(ListeDesVins, UnCompteTropHautEstRepareALOuverture) {
  PoseCompte(b, "GLV2.stp", 600);
  AjouteAbymes(b);
  Ouvre();
  EXPECT_EQ(vins().count(), 564);
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "564\ncrus");
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
}

TEST_F(ListeDesVins, UneReparationQuiEchoueEstIgnoree) {
  PoseCompte(b, "GLV2.stp", 600);
  b.disque.EchoueSur("écrit GLV2.DAT", Panne::disquePlein);
  Ouvre();
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(vins().count(), 563);
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "563\ncrus");
  EXPECT_EQ(FicheVin(b, 1).actif, 600);
}

TEST_F(ListeDesVins, UnCompteTropBasLaisseLesDerniersVinsHorsDeLaListe) {
  AjouteAbymes(b);
  PoseCompte(b, "GLV2.stp", 563);
  Ouvre();
  EXPECT_EQ(vins().count(), 563);
  EXPECT_EQ(vins().findText("Abymes"), -1);
  EXPECT_EQ(FicheVin(b, 1).actif, 563);
}

TEST_F(ListeDesVins, LeCompteDesRegionsNEstPasRepare) {
  PoseCompte(b, "GLV1.stp", 40);
  Ouvre(2);
  EXPECT_EQ(Le<QComboBox>("ComboRegionVinAjouter").count(), 27);
  EXPECT_EQ(FicheRegion(b, 1).actif, 40);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(ListeDesVins, UnCatalogueSansVinSOuvreVide) {
  b.dossier.Ecrit("GLV2.stp", b.dossier.Lit("GLV2.stp").substr(0, 104));
  Ouvre();
  EXPECT_EQ(vins().count(), 0);
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "0\ncrus");
  AttendLaListe();
}

TEST_F(ListeDesVins, SansLeFichierDesVinsLaFenetreNeSOuvrePas) {
  b.Demarre();
  b.dossier.Supprime("GLV2.DAT");
  AttendOuvertureFatale();
  ASSERT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_EQ(b.messages.vus[0], NonTrouve(b, "GLV2.DAT"));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT"));
}

TEST_F(ListeDesVins, UneLectureQuiEchoueALOuvertureFinitLeProgramme) {
  for (const char* lecture : {"lit GLV1.DAT", "longueur GLV2.DAT", "lit GLV2.DAT 104"}) {
    SCOPED_TRACE(lecture);
    b.Redemarre();
    b.disque.EchoueSur(lecture, Panne::entreeSortie);
    AttendOuvertureFatale();
    EXPECT_THAT(b.messages.vus, SizeIs(1));
    b.disque.Guerit();
    b.messages.vus.clear();
  }
}

TEST_F(ListeDesVins, LesBoitesSeLisentMaisNeSeTapentPas) {
  OuvreSurAbymes();
  for (const char* nom : {"txtRegion", "txtNotes"}) {
    const QString avant = TexteDe(nom);
    Tape(Le(nom), "x");
    EXPECT_EQ(TexteDe(nom), avant) << nom;
  }
}

TEST_F(ListeDesVins, LAffichageDitLeVinSaRegionEtSesNotes) {
  OuvreSurAbymes();
  const auto vue = std::get<VueVin>(fenetre->VueCourante());
  EXPECT_EQ(vue.nom, "Abymes");
  EXPECT_EQ(vue.region, "Alpes");
  EXPECT_EQ(vue.notes, "Dix octets");
}

TEST_F(ListeDesVins, LesOngletsDeSaisieNAffichentRien) {
  Ouvre();
  for (const int saisie : {2, 3, 4}) {
    CliqueOnglet(*fenetre, saisie);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(fenetre->VueCourante())) << saisie;
  }
}

TEST_F(ListeDesVins, UnVinDemandeDAilleursSAffiche) {
  OuvreSurAbymes(2);
  fenetre->MontreEnregistrement(300);
  EXPECT_EQ(vinAffiche().mid(0, 2), (QStringList{"Vin 300", Fr("Région 003")}));
  AttendLaListe();
}

TEST_F(ListeDesVins, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurAbymes();
  AttendSablier([&] { Choisit(vins(), 1); });
}

}  // namespace
}  // namespace gastrelle::essai
