// The tab "Supprimer" of the wines window, through its controls.

#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class SupprimerDesVins : public FenetreVins {
 protected:
  QComboBox& regions() { return Le<QComboBox>("ComboRegionSupprimer"); }
  void Supprime() {
    b.disque.OublieJournal();
    Clique(Le("cmdValideSupprimer"));
  }
  /// With the answer to its question.
  void Supprime(Reponse reponse) {
    b.messages.reponses = {reponse};
    Supprime();
  }
  /// "Abymes" (565) and "Zone" (567) in "Alpes" (29), "Banyuls" (566) in "Région 002".
  static void AjouteDeuxVinsDesAlpes(Bibliotheque& bibliotheque) {
    AjouteAbymes(bibliotheque);
    bibliotheque.AjouteVin(Vin("Banyuls", 2));
    bibliotheque.AjouteVin(Vin("Zone", 29));
  }
  /// Opens the tab on the region "Alpes", which has two wines.
  void OuvreSurLesAlpes() {
    AjouteDeuxVinsDesAlpes(b);
    Ouvre(4);
    Clique(Le("Option3(0)"));
  }
  QStringList textes() {
    return TextesDe({"txNomVinSupprimer", "txtRegionVinSupprimer", "txtNoteVinSupprimer"});
  }
  QStringList actifs() {
    return Actifs({"Option3(0)", "Option3(1)", "ComboRegionSupprimer", "txNomVinSupprimer",
                   "txtRegionVinSupprimer", "txtNoteVinSupprimer", "cmdValideSupprimer"});
  }
  void AttendOptionRegion() {
    EXPECT_TRUE(estCoche("Option3(0)"));
    EXPECT_EQ(actifs(), (QStringList{"Option3(0)", "Option3(1)", "ComboRegionSupprimer",
                                     "cmdValideSupprimer"}));
  }
  void AttendOptionVin() {
    EXPECT_TRUE(estCoche("Option3(1)"));
    EXPECT_EQ(actifs(),
              (QStringList{"Option3(0)", "Option3(1)", "txNomVinSupprimer", "txtRegionVinSupprimer",
                           "txtNoteVinSupprimer", "cmdValideSupprimer"}));
  }
  static std::string QuestionRegion() {
    return std::string(
        "Etes-vous sûr de vouloir supprimer cette région d'origine ?\r\n(Attention : tous les vins de cette région seront également\r\nsupprimés.)"_1252);
  }
};

TEST_F(SupprimerDesVins, SOuvreSurLeVinAffiche) {
  OuvreSurAbymes(4);
  EXPECT_EQ(textes(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
  EXPECT_EQ(regions().currentIndex(), 0);
  AttendOptionVin();
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(SupprimerDesVins, SOuvreToujoursSurLeVin) {
  OuvreSurLesAlpes();
  Choisit(regions(), 5);
  CliqueOnglet(*fenetre, 1);
  Choisit(vins(), "Vin 002");
  CliqueOnglet(*fenetre, 4);
  EXPECT_EQ(textes(), (QStringList{"Vin 002", Fr("Région 002"), ""}));
  EXPECT_EQ(regions().currentIndex(), 0);
  AttendOptionVin();
  Clique(Le("Option3(0)"));
  fenetre->Desactive();
  fenetre->Active();
  AttendOptionVin();
}

TEST_F(SupprimerDesVins, LesOptionsFermentLAutreMoitieEtNeTouchentARien) {
  OuvreSurAbymes(4);
  Clique(Le("Option3(0)"));
  AttendOptionRegion();
  EXPECT_EQ(textes(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
  Choisit(regions(), 5);
  b.disque.OublieJournal();
  Le("cmdAideSupprimer").setFocus();
  Clique(Le("Option3(1)"));
  AttendOptionVin();
  EXPECT_EQ(regions().currentIndex(), 5);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(SupprimerDesVins, LesOptionsNeDeplacentPasLeFocus) {
  OuvreSurAbymes(4);
  for (const int choisie : {0, 1}) {
    Le("cmdAideSupprimer").setFocus();
    Le<QRadioButton>(choisie == 0 ? "Option3(0)" : "Option3(1)").setChecked(true);
    EXPECT_TRUE(aLeFocus("cmdAideSupprimer"));
  }
}

TEST_F(SupprimerDesVins, LesBoitesSeLisentMaisNeSeTapentPas) {
  OuvreSurAbymes(4);
  for (const char* nom : {"txNomVinSupprimer", "txtRegionVinSupprimer", "txtNoteVinSupprimer"}) {
    const QString avant = TexteDe(nom);
    Tape(Le(nom), "x");
    EXPECT_EQ(TexteDe(nom), avant) << nom;
  }
}

TEST_F(SupprimerDesVins, LaDerniereRegionDeFabriqueEstProtegeeSansQuestion) {
  OuvreSurAbymes(4);
  Clique(Le("Option3(0)"));
  Choisit(regions(), Fr("Région 028"));
  ExigePointeurNormalAuxMessages();
  Supprime();
  AttendMessage("Cette région d'origine ne peut être supprimée");
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_TRUE(aLeFocus("Option3(0)"));
  AttendOptionRegion();
  AttendRienDeFait(4);
}

TEST_F(SupprimerDesVins, LaPremiereRegionDeLUtilisateurSeSupprime) {
  OuvreSurLesAlpes();
  Supprime(Reponse::non);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.messages.questions, ElementsAre(QuestionRegion()));
}

TEST_F(SupprimerDesVins, LeDernierVinDeFabriqueEstProtegeSansQuestion) {
  Ouvre();
  Choisit(vins(), "Vin 564");
  CliqueOnglet(*fenetre, 4);
  ExigePointeurNormalAuxMessages();
  Supprime();
  AttendMessage("Ce vin ne peut être supprimé");
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_TRUE(aLeFocus("Option3(1)"));
  AttendOptionVin();
  AttendRienDeFait(4);
}

TEST_F(SupprimerDesVins, LePremierVinDeLUtilisateurSeSupprime) {
  OuvreSurAbymes(4);
  Supprime(Reponse::non);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.messages.questions,
              ElementsAre(std::string("Etes-vous sûr de vouloir supprimer ce vin ?"_1252)));
}

TEST_F(SupprimerDesVins, LeVinProtegeNeGardePasUneRegion) {
  AjouteAbymes(b);
  Ouvre();
  Choisit(vins(), "Vin 002");
  CliqueOnglet(*fenetre, 4);
  Clique(Le("Option3(0)"));
  Supprime(Reponse::non);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(SupprimerDesVins, LaRegionProtegeeNeGardePasUnVin) {
  OuvreSurAbymes(4);
  Clique(Le("Option3(0)"));
  Choisit(regions(), Fr("Région 028"));
  Clique(Le("Option3(1)"));
  Supprime(Reponse::non);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(SupprimerDesVins, UnNonNeToucheARien) {
  OuvreSurLesAlpes();
  for (const char* option : {"Option3(0)", "Option3(1)"}) {
    Clique(Le(option));
    b.pointeur.sabliers = 0;
    Supprime(Reponse::non);
    EXPECT_EQ(b.messages.choix, Choix::ouiNon);
    EXPECT_EQ(b.pointeur.sabliers, 0) << option;
    AttendRienDeFait(4);
  }
  EXPECT_EQ(vins().count(), 566);
}

TEST_F(SupprimerDesVins, UnVinSEteintEtLePremierSAffiche) {
  OuvreSurAbymes(4);
  RecVin eteint = FicheVin(b, 565);
  Supprime(Reponse::oui);
  AttendLaListe();
  eteint.actif = 0;
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(eteint));
  EXPECT_EQ(FicheVin(b, 1).actif, 563);
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.");
  EXPECT_EQ(vins().count(), 563);
  EXPECT_EQ(vins().currentIndex(), 0);
  EXPECT_EQ(vinAffiche(), (QStringList{"Vin 002", Fr("Région 002"), ""}));
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "563\ncrus");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(SupprimerDesVins, UnVinEcritSaFichePuisLEntetePuisReliTout) {
  OuvreSurAbymes(4);
  Supprime(Reponse::oui);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV2.DAT", LitVin(565), EcritVin(565), EcritVin(1),
                          "longueur GLV2.DAT", ParcourtVins(565), "existe GLV2.DAT",
                          "existe GLV1.DAT", LitVin(2), LitRegion(2)));
}

TEST_F(SupprimerDesVins, SupprimerUnVinDedoubleLaListe) {
  OuvreSurAbymes(2);
  Tape(Le("txtSaisieNomVin"), "Chignin");
  Clique(Le("cmdValideAjouter"));
  EXPECT_EQ(vins().count(), 564 + 565);
  CliqueOnglet(*fenetre, 4);
  EXPECT_EQ(TexteDe("txNomVinSupprimer"), "Chignin");
  Supprime(Reponse::oui);
  EXPECT_EQ(vins().count(), 564);
  EXPECT_EQ(vins().currentText(), "Abymes");
}

TEST_F(SupprimerDesVins, UneRegionPartApresSesVinsComptesUnParUn) {
  OuvreSurLesAlpes();
  Supprime(Reponse::oui);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLV1.DAT", "existe GLV2.DAT", "longueur GLV2.DAT",
                          ParcourtVins(567), EcritVin(565), EcritVin(1), EcritVin(567), EcritVin(1),
                          LitRegion(29), EcritRegion(29), EcritRegion(1), "longueur GLV1.DAT",
                          ParcourtRegions(29), "existe GLV2.DAT", "existe GLV1.DAT", LitVin(565),
                          LitRegion(29), "existe GLV3.DAT", "longueur GLV3.DAT", LitTexte(9, 10),
                          "existe GLV3.DAT", "longueur GLV3.DAT", LitTexte(19, 8)));
}

TEST_F(SupprimerDesVins, UneRegionEtSesVinsSEteignentEtRienDAutre) {
  OuvreSurLesAlpes();
  RecVin abymes = FicheVin(b, 565);
  RecVin zone = FicheVin(b, 567);
  RecRegion alpes = FicheRegion(b, 29);
  std::string avant = b.dossier.Lit("GLV2.DAT");
  Supprime(Reponse::oui);
  abymes.actif = 0;
  zone.actif = 0;
  alpes.actif = 0;
  avant.replace(564 * 104, 104, Octets(abymes));
  avant.replace(566 * 104, 104, Octets(zone));
  EXPECT_EQ(b.dossier.Lit("GLV2.DAT"), AvecCompte(avant, 564));
  EXPECT_EQ(Octets(FicheRegion(b, 29)), Octets(alpes));
  EXPECT_EQ(FicheRegion(b, 1).actif, 27);
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.");
  EXPECT_EQ(TexteDe("txtAnnonce(0)"), "564\ncrus");
}

TEST_F(SupprimerDesVins, SesVinsRestentListesEtSeMontrentEncore) {
  OuvreSurLesAlpes();
  Supprime(Reponse::oui);
  AttendLaListe();
  EXPECT_EQ(vins().count(), 566);
  EXPECT_EQ(vins().currentIndex(), 0);
  EXPECT_EQ(vinAffiche(), (QStringList{"Abymes", "Alpes", "Dix octets"}));
  Choisit(vins(), "Zone");
  EXPECT_EQ(vinAffiche(), (QStringList{"Zone", "Alpes", ""}));
  CliqueOnglet(*fenetre, 4);
  EXPECT_EQ(regions().findText("Alpes"), -1);
  EXPECT_EQ(regions().count(), 27);
}

TEST_F(SupprimerDesVins, ModifierUnVinPartiAvecSaRegionFinitLeProgramme) {
  OuvreSurLesAlpes();
  Supprime(Reponse::oui);
  CliqueOnglet(*fenetre, 3);
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
}

TEST_F(SupprimerDesVins, RouvrirLaFenetreOublieLesVinsPartis) {
  OuvreSurLesAlpes();
  Supprime(Reponse::oui);
  Rouvre();
  EXPECT_EQ(vins().count(), 564);
  EXPECT_EQ(vins().currentText(), "Banyuls");
}

TEST_F(SupprimerDesVins, LeParcoursDUneRegionVaJusquAuBoutQuelQueSoitLeCompte) {
  OuvreSurLesAlpes();
  b.module->bufVin.nbActifs() = 300;
  Supprime(Reponse::oui);
  EXPECT_EQ(FicheVin(b, 565).actif, 0);
  EXPECT_EQ(FicheVin(b, 567).actif, 0);
  EXPECT_EQ(FicheVin(b, 1).actif, 298);
}

TEST_F(SupprimerDesVins, UnVinDejaSupprimeNeSeComptePasDeuxFois) {
  AjouteDeuxVinsDesAlpes(b);
  Ouvre(4);
  Supprime(Reponse::oui);
  CliqueOnglet(*fenetre, 4);
  Clique(Le("Option3(0)"));
  Supprime(Reponse::oui);
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre(EcritVin(567), EcritVin(1), EcritRegion(29), EcritRegion(1)));
}

TEST_F(SupprimerDesVins, UnVinDeFabriqueRangeDansUneRegionPartAvecElle) {
  AjouteAbymes(b);
  Ouvre(4);
  RecVin deplace = FicheVin(b, 100);
  deplace.idRegion = 29;
  b.module->bufVin.Ecrit(100, deplace);
  Clique(Le("Option3(0)"));
  Supprime(Reponse::oui);
  EXPECT_EQ(FicheVin(b, 100).actif, 0);
  EXPECT_EQ(FicheVin(b, 1).actif, 562);
}

TEST_F(SupprimerDesVins, LeFichierDesRegionsEstChercheAvantCeluiDesVins) {
  OuvreSurLesAlpes();
  b.dossier.Supprime("GLV1.DAT");
  b.dossier.Supprime("GLV2.DAT");
  ExigePointeurNormalAuxMessages();
  Supprime(Reponse::oui);
  AttendFinFatale(Donnees::GLV1);
}

TEST_F(SupprimerDesVins, UneRegionChercheAussiLeFichierDesVins) {
  OuvreSurLesAlpes();
  b.dossier.Supprime("GLV2.DAT");
  Supprime(Reponse::oui);
  AttendFinFatale(Donnees::GLV2);
}

TEST_F(SupprimerDesVins, UnVinNeChercheQueSonFichier) {
  OuvreSurAbymes(4);
  b.dossier.Supprime("GLV2.DAT");
  ExigePointeurNormalAuxMessages();
  Supprime(Reponse::oui);
  AttendFinFatale(Donnees::GLV2);
  EXPECT_THAT(b.disque.journal(), Each(Not(HasSubstr("GLV1"))));
}

TEST_F(SupprimerDesVins, UnVinFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      2, 4,
      [](Bibliotheque& autre) {
        PrepareAbymes(autre);
        autre.messages.reponses = {Reponse::oui};
      },
      [](QWidget& uneFenetre) { Clique(Trouve(uneFenetre, "cmdValideSupprimer")); },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(FicheVin(autre, 565).actif, n > 1 ? 0 : -1);
        EXPECT_EQ(FicheVin(autre, 1).actif, 564);
      });
}

TEST_F(SupprimerDesVins, UneRegionFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      6, 4,
      [](Bibliotheque& autre) {
        autre.GarnitVins();
        AjouteDeuxVinsDesAlpes(autre);
        autre.messages.reponses = {Reponse::oui};
      },
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option3(0)"));
        Clique(Trouve(uneFenetre, "cmdValideSupprimer"));
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(FicheVin(autre, 565).actif, n > 1 ? 0 : -1);
        EXPECT_EQ(FicheVin(autre, 567).actif, n > 3 ? 0 : -1);
        EXPECT_EQ(FicheVin(autre, 1).actif, n > 4 ? 564 : n > 2 ? 565 : 566);
        EXPECT_EQ(FicheRegion(autre, 29).actif, n > 5 ? 0 : -1);
        EXPECT_EQ(FicheRegion(autre, 1).actif, 28);
      });
}

TEST_F(SupprimerDesVins, LeSablierEstLaDesLePremierAppelDuDisque) {
  OuvreSurLesAlpes();
  AttendSablier([&] { Supprime(Reponse::oui); });
}

}  // namespace
}  // namespace gastrelle::essai
