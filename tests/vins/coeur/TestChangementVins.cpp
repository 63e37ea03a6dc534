// Changing the wines: the bytes on file after each operation, the order of the writes, and what
// survives a failure at each of them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "vins/coeur/CoeurVins.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ChangementDesVins : public CoeurVins {
 protected:
  /// The change of "Abymes", each of its two writes failing in turn.
  template <class Verifie>
  static void ChangeAbymesEnEchouant(std::string_view notes, Verifie verifie) {
    EchoueAChaqueEcriture(
        2, GarnitAvecAbymes,
        [notes](Bibliotheque& avec) {
          LitVin(*avec.module, 565);
          ChangeVin(*avec.module, 565, {"Brouilly", 3, std::string(notes)});
        },
        verifie);
  }

  /// What "Abymes" keeps beside its name, its region and its note.
  static RecVin Attendu(std::string_view nom, std::int32_t region, std::int32_t posTexte,
                        std::int32_t lgTexte) {
    RecVin attendu = VinEnCave(nom, {6, 2}, region);
    attendu.actif = -1;
    attendu.posTexte = posTexte;
    attendu.lgTexte = lgTexte;
    attendu.posNotesCave = 19;
    attendu.lgNotesCave = 8;
    return attendu;
  }
};

TEST_F(ChangementDesVins, AjouteReserveDabordPuisFichePuisEntete) {
  b.Demarre();
  EXPECT_EQ(AjouteVin(*b.module, {"Abymes", 3, "Une note."}), 565);
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLV2.DAT", "existe GLV3.DAT", "longueur GLV3.DAT", "écrit GLV3.DAT 8+9",
                  "longueur GLV2.DAT", "écrit GLV2.DAT 58656+104", "écrit GLV2.DAT 0+104"));
  RecVin attendu = Vin("Abymes", 3);
  attendu.actif = -1;
  attendu.posTexte = 9;
  attendu.lgTexte = 9;
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(attendu));
  EXPECT_EQ(b.dossier.Lit("GLV2.DAT").size(), 565U * 104U);
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATUne note.");
}

TEST_F(ChangementDesVins, UnVinSansNoteNeToucheNiNeDemandeLaReserve) {
  DemarreSurAbymes();
  b.dossier.Supprime("GLV3.DAT");
  EXPECT_EQ(AjouteVin(*b.module, {"Nu", 2, {}}), 566);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLV2.DAT 58760+104", "écrit GLV2.DAT 0+104"));
  EXPECT_EQ(FicheVin(b, 566).posTexte, 0);
  EXPECT_EQ(FicheVin(b, 566).lgTexte, 0);
}

// Everything of the wine read last goes, but for the length of its note on the cellar.
TEST_F(ChangementDesVins, UnNouveauVinHeriteDeLaSeuleLongueurDesNotesDeCave) {
  DemarreSurAbymes();
  AjouteVin(*b.module, {"Nu", 2, {}});
  RecVin attendu = Vin("Nu", 2);
  attendu.actif = -1;
  attendu.lgNotesCave = 8;
  EXPECT_EQ(Octets(FicheVin(b, 566)), Octets(attendu));
  LitVin(*b.module, 2);
  AjouteVin(*b.module, {"Encore", 2, "x"});
  EXPECT_EQ(FicheVin(b, 567).lgNotesCave, 0);
}

TEST_F(ChangementDesVins, LHeritageVientDuDernierVinQuUnTriALu) {
  DemarreSurAbymes();
  LitVin(*b.module, 2);
  VinsDeLaRegion(*b.module, 5);
  AjouteVin(*b.module, {"Nu", 2, {}});
  EXPECT_EQ(FicheVin(b, 566).lgNotesCave, 8);
}

TEST_F(ChangementDesVins, LeMemeNomSAjouteDeuxFois) {
  b.Demarre();
  EXPECT_EQ(AjouteVin(*b.module, {"Abymes", 2, "a"}), 565);
  EXPECT_EQ(AjouteVin(*b.module, {"Abymes", 2, "b"}), 566);
  EXPECT_EQ(NomVin(b, 565), NomVin(b, 566));
  EXPECT_EQ(FicheVin(b, 566).posTexte, 10);
  EXPECT_EQ(FicheVin(b, 1).actif, 565);
}

TEST_F(ChangementDesVins, UnNomDeSoixanteDixCaracteresSeCoupeASoixanteQuatre) {
  b.Demarre();
  const std::string nom = std::string(64, 'v') + "inutil";
  AjouteVin(*b.module, {nom, 2, {}});
  EXPECT_EQ(FicheVin(b, 565).nomVin.brut(), std::string(64, 'v'));
  EXPECT_EQ(FicheVin(b, 565).idRegion, 2);
  LitVin(*b.module, 2);
  ChangeVin(*b.module, 2, {nom, 3, {}});
  EXPECT_EQ(FicheVin(b, 2).nomVin.brut(), std::string(64, 'v'));
  EXPECT_EQ(NomVin(b, 3), "Vin 003");
}

TEST_F(ChangementDesVins, LaPlaceDUnVinSupprimeNeSertPlus) {
  DemarreSurAbymes();
  SupprimeVin(*b.module, 565);
  EXPECT_EQ(AjouteVin(*b.module, {"Brouilly", 2, {}}), 566);
  EXPECT_EQ(NomVin(b, 565), "Abymes");
}

TEST_F(ChangementDesVins, LeCompteQuiNeTientPlusEstUnePanne) {
  b.Demarre();
  b.module->bufVin.nbActifs() = 32767;
  EXPECT_EQ(PanneDe([&] { AjouteVin(*b.module, {"Trop", 2, {}}); }), Panne::depassement);
  EXPECT_EQ(FicheVin(b, 1).actif, 563);
}

TEST_F(ChangementDesVins, LaReserveDisparueArreteUnAjoutAvecNoteAvantTouteEcriture) {
  b.Demarre();
  b.dossier.Supprime("GLV3.DAT");
  EXPECT_THROW(AjouteVin(*b.module, {"Abymes", 2, "x"}), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.messages.vus, ElementsAre(Disparu("GLV3.DAT")));
}

TEST_F(ChangementDesVins, ChangeLaReservePuisLaFicheSansRienRelireNiToucherLEnTete) {
  DemarreSurAbymes();
  ChangeVin(*b.module, 565, {"Brouilly", 3, "Dix autres"});
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV3.DAT", "écrit GLV3.DAT 8+10",
                                              "existe GLV2.DAT", "écrit GLV2.DAT 58656+104"));
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu("Brouilly", 3, 9, 10)));
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix autresEn haut.");
  EXPECT_EQ(FicheVin(b, 1).actif, 564);
}

TEST_F(ChangementDesVins, UneNotePlusCourteResteASaPlaceEtLaisseSaQueue) {
  DemarreSurAbymes();
  ChangeVin(*b.module, 565, {"Abymes", 29, "Bref"});
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu("Abymes", 29, 9, 4)));
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATBrefoctetsEn haut.");
}

// What was shortened has lost its room: the old length comes back at the end only.
TEST_F(ChangementDesVins, UneNoteRaccourciePuisRallongeePasseALaFin) {
  DemarreSurAbymes();
  ChangeVin(*b.module, 565, {"Abymes", 29, "Bref"});
  LitVin(*b.module, 565);
  ChangeVin(*b.module, 565, {"Abymes", 29, "Dix octets"});
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu("Abymes", 29, 27, 10)));
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATBrefoctetsEn haut.Dix octets");
}

TEST_F(ChangementDesVins, UneNotePlusLonguePasseALaFin) {
  DemarreSurAbymes();
  ChangeVin(*b.module, 565, {"Abymes", 29, "Onze octets"});
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu("Abymes", 29, 27, 11)));
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.Onze octets");
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLV3.DAT 26+11", "écrit GLV2.DAT 58656+104"));
}

TEST_F(ChangementDesVins, UneNoteVidePerdSaReferenceEtLaSuivantePasseALaFin) {
  DemarreSurAbymes();
  b.dossier.Supprime("GLV3.DAT");  // nothing is written there, so nobody asks for it
  ChangeVin(*b.module, 565, {"Abymes", 29, {}});
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu("Abymes", 29, 0, 0)));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", "écrit GLV2.DAT 58656+104"));
  b.dossier.Ecrit("GLV3.DAT", "là");
  ChangeVin(*b.module, 565, {"Abymes", 29, "x"});
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(Attendu("Abymes", 29, 27, 1)));
}

TEST_F(ChangementDesVins, LAncienneReferenceEstCelleDeLaFicheDeTravail) {
  DemarreSurAbymes();
  b.module->bufVin.courant().lgTexte = 3;
  ChangeVin(*b.module, 565, {"Abymes", 29, "Bref"});
  EXPECT_EQ(FicheVin(b, 565).posTexte, 27);
  EXPECT_THAT(b.disque.journal(), Not(Contains(HasSubstr("lit GLV2.DAT"))));
}

TEST_F(ChangementDesVins, UnVinSupprimeRevitQuandOnLeChange) {
  DemarreSurAbymes();
  SupprimeVin(*b.module, 565);
  LitRegionDuVin(*b.module, 565);
  ChangeVin(*b.module, 565, {"Abymes", 29, {}});
  EXPECT_EQ(FicheVin(b, 565).actif, -1);
  EXPECT_EQ(FicheVin(b, 1).actif, 563);
}

TEST_F(ChangementDesVins, LaReserveDisparueArreteUnChangementAvecNoteAvantTouteEcriture) {
  DemarreSurAbymes();
  b.dossier.Supprime("GLV3.DAT");
  EXPECT_THROW(ChangeVin(*b.module, 565, {"Brouilly", 3, "x"}), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

// The wines' file is asked for behind the note: it is written by then.
TEST_F(ChangementDesVins, LeFichierDesVinsDisparuArreteUnChangementApresSaNote) {
  DemarreSurAbymes();
  b.dossier.Supprime("GLV2.DAT");
  EXPECT_THROW(ChangeVin(*b.module, 565, {"Brouilly", 3, "Bref"}), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLV3.DAT 8+4"));
  EXPECT_THAT(b.messages.vus, ElementsAre(Disparu("GLV2.DAT")));
}

TEST_F(ChangementDesVins, SupprimeEnNEffacantQueLeDrapeau) {
  DemarreSurAbymes();
  RecVin attendu = FicheVin(b, 565);
  attendu.actif = 0;
  const std::string reserve = b.dossier.Lit("GLV3.DAT");
  RelitVin(*b.module, 2);
  b.disque.OublieJournal();
  SupprimeVin(*b.module, 565);
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLV2.DAT", "lit GLV2.DAT 58656+104",
                                              "écrit GLV2.DAT 58656+104", "écrit GLV2.DAT 0+104"));
  EXPECT_EQ(Octets(FicheVin(b, 565)), Octets(attendu));
  EXPECT_EQ(FicheVin(b, 1).actif, 563);
  EXPECT_EQ(b.dossier.Lit("GLV3.DAT"), reserve);
  EXPECT_EQ(NomCourant(), "Abymes");
}

TEST_F(ChangementDesVins, UnVinQuiNeSeLitPasNEstPasSupprime) {
  DemarreSurAbymes();
  b.disque.EchoueSur("lit GLV2.DAT", Panne::entreeSortie);
  EXPECT_THROW(SupprimeVin(*b.module, 565), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ChangementDesVins, SansLeFichierDesVinsNiAjoutNiSuppression) {
  DemarreSurAbymes();
  b.dossier.Supprime("GLV2.DAT");
  EXPECT_THROW(AjouteVin(*b.module, {"x", 2, "x"}), ErreurExecution);
  EXPECT_THROW(SupprimeVin(*b.module, 565), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ChangementDesVins, LEnTeteNeChangeQueDeCompte) {
  GarnitEntete<RecVin>(b, "GLV2.stp");
  DemarreSurAbymes();
  const std::string avant = Entete<RecVin>(b, "GLV2.DAT");
  AjouteVin(*b.module, {"Brouilly", 2, {}});
  EXPECT_EQ(Entete<RecVin>(b, "GLV2.DAT"), AvecCompte(avant, 565));
  SupprimeVin(*b.module, 566);
  EXPECT_EQ(Entete<RecVin>(b, "GLV2.DAT"), AvecCompte(avant, 564));
}

// What stands on file when a write fails: a note without a reference, a wine without its count,
// never a reference to a note that isn't there.
TEST_F(ChangementDesVins, UnAjoutQuiEchoueNeLaisseJamaisDeReferenceSansNote) {
  EchoueAChaqueEcriture(
      3, [](Bibliotheque& avec) { avec.GarnitVins(); },
      [](Bibliotheque& avec) {
        AjouteVin(*avec.module, {"Abymes", 2, "Douze octets"});
      },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLV3.DAT").size(), n > 1 ? 20U : moitie ? 14U : 8U);
        EXPECT_EQ(avec.dossier.Lit("GLV2.DAT").size(), n > 2              ? 58760U
                                                       : n == 2 && moitie ? 58708U
                                                                          : 58656U);
        EXPECT_EQ(FicheVin(avec, 1).actif, n == 3 && moitie ? 564 : 563);
        EXPECT_EQ(NomVin(avec, 564), "Vin 564");
      });
}

TEST_F(ChangementDesVins, UnChangementQuiEchoueAvantLaFicheLaisseLAncienneReference) {
  ChangeAbymesEnEchouant(
      "Bien plus long que dix", [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(FicheVin(avec, 565).posTexte, 9);
        EXPECT_EQ(FicheVin(avec, 565).lgTexte, 10);
        EXPECT_EQ(FicheVin(avec, 565).posNotesCave, 19);
        EXPECT_EQ(avec.dossier.Lit("GLV3.DAT"),
                  std::string("GLV3.DATDix octetsEn haut.") + std::string("Bien plus long que dix")
                                                                  .substr(0, n > 1    ? 22
                                                                             : moitie ? 11
                                                                                      : 0));
        EXPECT_EQ(NomVin(avec, 565), n == 2 && moitie ? "Brouilly" : "Abymes");
        EXPECT_EQ(FicheVin(avec, 1).actif, 564);
      });
}

// The one change that overwrites what a record on file refers to.
TEST_F(ChangementDesVins, UneNotePlusCourteQuiEchoueLaisseLaFiche) {
  ChangeAbymesEnEchouant("Bref", [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
    const bool moitie = maniere == Maniere::moitieEcrite;
    EXPECT_EQ(avec.dossier.Lit("GLV3.DAT"), n == 2   ? "GLV3.DATBrefoctetsEn haut."
                                            : moitie ? "GLV3.DATBrx octetsEn haut."
                                                     : "GLV3.DATDix octetsEn haut.");
    EXPECT_EQ(FicheVin(avec, 565).posTexte, 9);
    EXPECT_EQ(FicheVin(avec, 565).lgTexte, 10);
    EXPECT_EQ(NomVin(avec, 565), n == 2 && moitie ? "Brouilly" : "Abymes");
  });
}

TEST_F(ChangementDesVins, UneNoteVideQuiEchoueLaisseSaReference) {
  EchoueAChaqueEcriture(
      1, GarnitAvecAbymes,
      [](Bibliotheque& avec) {
        LitVin(*avec.module, 565);
        ChangeVin(*avec.module, 565, {"Brouilly", 3, {}});
      },
      [](const Bibliotheque& avec, std::size_t /*n*/, Maniere maniere) {
        EXPECT_EQ(FicheVin(avec, 565).lgTexte, 10);  // it lies in the second half
        EXPECT_EQ(NomVin(avec, 565), maniere == Maniere::rienFait ? "Abymes" : "Brouilly");
        EXPECT_EQ(avec.dossier.Lit("GLV3.DAT"), "GLV3.DATDix octetsEn haut.");
      });
}

TEST_F(ChangementDesVins, UneSuppressionQuiEchoueGardeCeQuiEstDejaEcrit) {
  EchoueAChaqueEcriture(
      2, GarnitAvecAbymes, [](Bibliotheque& avec) { SupprimeVin(*avec.module, 565); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        // The flag and the count are in the first half: what is half written reads as written.
        const std::size_t faites = maniere == Maniere::moitieEcrite ? n : n - 1;
        EXPECT_EQ(FicheVin(avec, 565).actif, faites > 0 ? 0 : -1);
        EXPECT_EQ(FicheVin(avec, 1).actif, faites > 1 ? 563 : 564);
        EXPECT_EQ(NomVin(avec, 565), "Abymes");
        EXPECT_EQ(FicheVin(avec, 565).lgNotesCave, 8);
      });
}

}  // namespace
}  // namespace gastrelle::essai
