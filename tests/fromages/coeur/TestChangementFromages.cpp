// Changing the cheeses: the bytes on file after each operation, the order of the writes, and what
// survives a failure at each of them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "fromages/FromagesEssai.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Cheese 124 begins at byte 123 * 208 = 25584 of its file.
class ChangementDesFromages : public testing::Test {
 protected:
  /// The change of a cheese with a note of ten bytes, each of its two writes failing in turn.
  template <class Verifie>
  static void ChangeAbondanceEnEchouant(std::string_view notes, Verifie verifie) {
    EchoueAChaqueEcriture(
        2,
        [](Bibliotheque& avec) {
          avec.GarnitFromages();
          avec.AjouteFromage(Fromage("Abondance"), "Dix octets");
        },
        [notes](Bibliotheque& avec) {
          LitFromage(*avec.module, 124);
          ChangeFromage(*avec.module, 124, {"Banon", {}, 0, 0, 0, std::string(notes)});
        },
        verifie);
  }

  ChangementDesFromages() { b.GarnitFromages(); }

  /// Starts with "Abondance" (124) on display; its notes are the ten bytes behind the signature.
  static void DemarreSurAbondance(Bibliotheque& avec) {
    avec.AjouteFromage(Fromage("Abondance", "Savoie", 1, 4, 9), "Dix octets");
    avec.Demarre();
    LitFromage(*avec.module, 124);
    avec.disque.OublieJournal();
  }

  Bibliotheque b;
};

TEST_F(ChangementDesFromages, AjouteReserveDabordPuisFichePuisEntete) {
  b.Demarre();
  EXPECT_EQ(AjouteFromage(*b.module, {"Banon", "Provence", 2, 11, 2, "En feuille."}), 124);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLF2.DAT 8+11", "écrit GLF1.DAT 25584+208",
                                                  "écrit GLF1.DAT 0+208"));
  RecFromage attendue = Fromage("Banon", "Provence", 2, 11, 2);
  attendue.actif = -1;
  attendue.posTexte = 9;
  attendue.lgTexte = 11;
  EXPECT_EQ(Octets(FicheFromage(b, 124)), Octets(attendue));
  EXPECT_EQ(b.dossier.Lit("GLF1.DAT").size(), 124U * 208U);
  EXPECT_EQ(FicheFromage(b, 1).actif, 123);
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATEn feuille.");
}

TEST_F(ChangementDesFromages, ExigeSesFichiersAvantDEcrire) {
  b.Demarre();
  AjouteFromage(*b.module, {"Banon", {}, 0, 0, 0, "x"});
  EXPECT_EQ(b.disque.journal()[0], "existe GLF1.DAT");
  EXPECT_EQ(b.disque.journal()[1], "existe GLF2.DAT");
}

TEST_F(ChangementDesFromages, UnFromageSansNotesNeToucheNiNeDemandeLaReserve) {
  DemarreSurAbondance(b);
  b.dossier.Supprime("GLF2.DAT");
  EXPECT_EQ(AjouteFromage(*b.module, {"Nu", {}, 0, 0, 0, {}}), 125);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLF1.DAT 25792+208", "écrit GLF1.DAT 0+208"));
  EXPECT_EQ(FicheFromage(b, 125).posTexte, 0);
  EXPECT_EQ(FicheFromage(b, 125).lgTexte, 0);
}

TEST_F(ChangementDesFromages, LaReserveDisparueArreteUnAjoutAvecNotesAvantTouteEcriture) {
  b.Demarre();
  b.dossier.Supprime("GLF2.DAT");
  EXPECT_THROW(AjouteFromage(*b.module, {"Banon", {}, 0, 0, 0, "x"}), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ChangementDesFromages, LeMemeNomSAjouteDeuxFois) {
  b.Demarre();
  AjouteFromage(*b.module, {"Banon", {}, 0, 0, 0, {}});
  AjouteFromage(*b.module, {"Banon", {}, 0, 0, 0, {}});
  EXPECT_EQ(NomFromage(b, 124), NomFromage(b, 125));
  EXPECT_EQ(FicheFromage(b, 1).actif, 124);
}

TEST_F(ChangementDesFromages, UnNomPleinRemplitSonChampSansBlanc) {
  b.Demarre();
  AjouteFromage(*b.module, {std::string(128, 'n'), std::string(64, 'r'), 0, 0, 0, {}});
  EXPECT_EQ(FicheFromage(b, 124).nomFromage.brut(), std::string(128, 'n'));
  EXPECT_EQ(FicheFromage(b, 124).regionFromage.brut(), std::string(64, 'r'));
}

TEST_F(ChangementDesFromages, LeCompteQuiNeTientPlusEstUnePanne) {
  b.Demarre();
  b.module->bufFromage.nbActifs() = 32767;
  EXPECT_THROW(AjouteFromage(*b.module, {"Trop", {}, 0, 0, 0, {}}), ErreurExecution);
}

TEST_F(ChangementDesFromages, ChangeLaReservePuisLaFicheSansToucherLEntete) {
  DemarreSurAbondance(b);
  ChangeFromage(*b.module, 124, {"Abondance", "Haute-Savoie", 3, 1, 12, "Dix autres"});
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLF2.DAT 8+10", "écrit GLF1.DAT 25584+208"));
  RecFromage attendue = Fromage("Abondance", "Haute-Savoie", 3, 1, 12);
  attendue.actif = -1;
  attendue.posTexte = 9;
  attendue.lgTexte = 10;
  EXPECT_EQ(Octets(FicheFromage(b, 124)), Octets(attendue));
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATDix autres");
}

TEST_F(ChangementDesFromages, DesNotesPlusCourtesRestentALeurPlaceEtLaissentLeurQueue) {
  DemarreSurAbondance(b);
  ChangeFromage(*b.module, 124, {"Abondance", {}, 0, 0, 0, "Bref"});
  EXPECT_EQ(FicheFromage(b, 124).posTexte, 9);
  EXPECT_EQ(FicheFromage(b, 124).lgTexte, 4);
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATBrefoctets");
}

TEST_F(ChangementDesFromages, DesNotesPlusLonguesPassentALaFin) {
  DemarreSurAbondance(b);
  ChangeFromage(*b.module, 124, {"Abondance", {}, 0, 0, 0, "Onze octets"});
  EXPECT_EQ(FicheFromage(b, 124).posTexte, 19);
  EXPECT_EQ(FicheFromage(b, 124).lgTexte, 11);
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATDix octetsOnze octets");
}

TEST_F(ChangementDesFromages, DesNotesVidesPerdentLeurReferenceEtLesSuivantesPassentALaFin) {
  DemarreSurAbondance(b);
  ChangeFromage(*b.module, 124, {"Abondance", {}, 0, 0, 0, {}});
  EXPECT_EQ(FicheFromage(b, 124).posTexte, 0);
  EXPECT_EQ(FicheFromage(b, 124).lgTexte, 0);
  ChangeFromage(*b.module, 124, {"Abondance", {}, 0, 0, 0, "x"});
  EXPECT_EQ(FicheFromage(b, 124).posTexte, 19);
}

TEST_F(ChangementDesFromages, SupprimeEnNEffacantQueLeDrapeau) {
  DemarreSurAbondance(b);
  RecFromage attendue = FicheFromage(b, 124);
  attendue.actif = 0;
  SupprimeFromage(*b.module, 124);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLF1.DAT 25584+208", "écrit GLF1.DAT 0+208"));
  EXPECT_EQ(Octets(FicheFromage(b, 124)), Octets(attendue));
  EXPECT_EQ(FicheFromage(b, 1).actif, 122);
  EXPECT_EQ(b.dossier.Lit("GLF2.DAT"), "GLF2.DATDix octets");
}

TEST_F(ChangementDesFromages, LaPlaceDUnFromageSupprimeNeSertPlus) {
  DemarreSurAbondance(b);
  SupprimeFromage(*b.module, 124);
  EXPECT_EQ(AjouteFromage(*b.module, {"Banon", {}, 0, 0, 0, {}}), 125);
  EXPECT_EQ(NomFromage(b, 124), "Abondance");
}

TEST_F(ChangementDesFromages, UnFichierDisparuArreteToutAvantLaMoindreEcriture) {
  DemarreSurAbondance(b);
  b.dossier.Supprime("GLF1.DAT");
  EXPECT_THROW(AjouteFromage(*b.module, {"x", {}, 0, 0, 0, "x"}), ErreurExecution);
  EXPECT_THROW(ChangeFromage(*b.module, 124, {"x", {}, 0, 0, 0, "x"}), ErreurExecution);
  EXPECT_THROW(SupprimeFromage(*b.module, 124), ErreurExecution);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

// What stands on file when a write fails: notes without a reference, a record without its count,
// never a reference to notes that aren't there.
TEST_F(ChangementDesFromages, UnAjoutQuiEchoueNeLaisseJamaisDeReferenceSansNotes) {
  EchoueAChaqueEcriture(
      3, [](Bibliotheque& avec) { avec.GarnitFromages(); },
      [](Bibliotheque& avec) {
        AjouteFromage(*avec.module, {"Banon", {}, 2, 0, 0, "En feuille !"});
      },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLF2.DAT").size(), n > 1 ? 20U : moitie ? 14U : 8U);
        EXPECT_EQ(avec.dossier.Lit("GLF1.DAT").size(), n > 2              ? 25792U
                                                       : n == 2 && moitie ? 25688U
                                                                          : 25584U);
        if (n < 3 || !moitie) {
          EXPECT_EQ(FicheFromage(avec, 1).actif, 122);
        }
      });
}

TEST_F(ChangementDesFromages, UnChangementQuiEchoueAvantLaFicheLaisseLAncienneReference) {
  ChangeAbondanceEnEchouant(
      "Bien plus long que dix", [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        EXPECT_EQ(FicheFromage(avec, 124).posTexte, 9);
        EXPECT_EQ(FicheFromage(avec, 124).lgTexte, 10);
        EXPECT_EQ(avec.dossier.Lit("GLF2.DAT").substr(8, 10), "Dix octets");
        EXPECT_EQ(NomFromage(avec, 124),
                  n == 2 && maniere == Maniere::moitieEcrite ? "Banon" : "Abondance");
        EXPECT_EQ(FicheFromage(avec, 1).actif, 123);
      });
}

TEST_F(ChangementDesFromages, UneSuppressionQuiEchoueGardeCeQuiEstDejaEcrit) {
  EchoueAChaqueEcriture(
      2,
      [](Bibliotheque& avec) {
        avec.GarnitFromages();
        avec.AjouteFromage(Fromage("Abondance"));
      },
      [](Bibliotheque& avec) { SupprimeFromage(*avec.module, 124); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        if (maniere == Maniere::rienFait) {
          EXPECT_EQ(FicheFromage(avec, 124).actif, n > 1 ? 0 : -1);
          EXPECT_EQ(FicheFromage(avec, 1).actif, 123);
        }
        EXPECT_EQ(NomFromage(avec, 124), "Abondance");
      });
}

TEST_F(ChangementDesFromages, UnChangementExigeSesFichiersPuisEcritSansRienRelire) {
  DemarreSurAbondance(b);
  ChangeFromage(*b.module, 124, {"Banon", {}, 2, 0, 0, "Bref"});
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLF1.DAT", "existe GLF2.DAT",
                                              "écrit GLF2.DAT 8+4", "écrit GLF1.DAT 25584+208"));
}

TEST_F(ChangementDesFromages, LAncienneReferenceEstCelleDeLaFicheDeTravail) {
  DemarreSurAbondance(b);
  b.module->bufFromage.courant().lgTexte = 3;
  ChangeFromage(*b.module, 124, {"Abondance", {}, 0, 0, 0, "Bref"});
  EXPECT_EQ(FicheFromage(b, 124).posTexte, 19);
  EXPECT_THAT(b.disque.journal(), Not(Contains(HasSubstr("lit GLF1.DAT"))));
}

TEST_F(ChangementDesFromages, SupprimerRelitLaFicheEtNeDemandePasLesNotes) {
  DemarreSurAbondance(b);
  LitFromage(*b.module, 2);
  b.disque.OublieJournal();
  SupprimeFromage(*b.module, 124);
  EXPECT_EQ(NomFromage(b, 124), "Abondance");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLF1.DAT", "lit GLF1.DAT 25584+208",
                                              "écrit GLF1.DAT 25584+208", "écrit GLF1.DAT 0+208"));
}

TEST_F(ChangementDesFromages, LEnteteNeChangeQueDeCompte) {
  GarnitEntete<RecFromage>(b, "GLF1.stp");
  DemarreSurAbondance(b);
  const std::string avant = Entete<RecFromage>(b, "GLF1.DAT");
  AjouteFromage(*b.module, {"Banon", {}, 0, 0, 0, {}});
  EXPECT_EQ(Entete<RecFromage>(b, "GLF1.DAT"), AvecCompte(avant, 124));
  SupprimeFromage(*b.module, 125);
  EXPECT_EQ(Entete<RecFromage>(b, "GLF1.DAT"), AvecCompte(avant, 123));
  ChangeFromage(*b.module, 124, {"Banon", {}, 0, 0, 0, "x"});
  EXPECT_EQ(Entete<RecFromage>(b, "GLF1.DAT"), AvecCompte(avant, 123));
}

TEST_F(ChangementDesFromages, DesNotesPlusCourtesQuiEchouentLaissentLaFiche) {
  ChangeAbondanceEnEchouant("Bref", [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
    const bool moitie = maniere == Maniere::moitieEcrite;
    EXPECT_EQ(avec.dossier.Lit("GLF2.DAT"), n == 2   ? "GLF2.DATBrefoctets"
                                            : moitie ? "GLF2.DATBrx octets"
                                                     : "GLF2.DATDix octets");
    EXPECT_EQ(FicheFromage(avec, 124).posTexte, 9);
    EXPECT_EQ(FicheFromage(avec, 124).lgTexte, 10);
    EXPECT_EQ(NomFromage(avec, 124), n == 2 && moitie ? "Banon" : "Abondance");
    EXPECT_EQ(FicheFromage(avec, 1).actif, 123);
  });
}

}  // namespace
}  // namespace gastrelle::essai
