// Reading the cheeses: what the scans list and repair, what a cheese shows.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fromages/FromagesEssai.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class LectureDesFromages : public testing::Test {
 protected:
  LectureDesFromages() { b.GarnitFromages(); }

  /// Starts with "Abondance" as cheese 124, whose record is then changed on file.
  template <class Change>
  void DemarreAvec(Change change) {
    b.AjouteFromage(Fromage("Abondance", "Savoie", 1, 4, 9), "Une note.");
    b.Demarre();
    RecFromage fiche = FicheFromage(b, 124);
    change(fiche);
    b.module->bufFromage.Ecrit(124, fiche);
    b.disque.OublieJournal();
  }

  Bibliotheque b;
};

TEST_F(LectureDesFromages, LesCodesOntLeursTextesDansLOrdre) {
  EXPECT_THAT(ListeCodes(laitNoms),
              ElementsAre(EntreeListe{"?", 0}, EntreeListe{"Vache", 1},
                          EntreeListe{std::string("Chèvre"_1252), 2}, EntreeListe{"Brebis", 3}));
  const Liste mois = ListeCodes(moisNoms);
  ASSERT_EQ(mois.size(), 13U);
  EXPECT_EQ(mois[0].texte, "?");
  EXPECT_EQ(mois[2], (EntreeListe{std::string("Février"_1252), 2}));
  EXPECT_EQ(mois[8].texte, "Août"_1252);
  EXPECT_EQ(mois[12], (EntreeListe{std::string("Décembre"_1252), 12}));
}

TEST_F(LectureDesFromages, ListeLesFromagesVivantsDansLOrdreDesFiches) {
  b.AjouteFromage(Fromage("  Abondance "));
  b.Demarre();
  const Liste fromages = ListeFromages(*b.module);
  EXPECT_EQ(fromages.size(), 123U);
  EXPECT_EQ(fromages.front(), (EntreeListe{"Fromage 002", 2}));
  EXPECT_EQ(fromages.back(), (EntreeListe{"Abondance", 124}));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(LectureDesFromages, SauteLesFromagesSupprimes) {
  b.AjouteFromage(Fromage("Abondance"));
  b.AjouteFromage(Fromage("Brie"));
  b.Demarre();
  SupprimeFromage(*b.module, 124);
  EXPECT_EQ(ListeFromages(*b.module).back(), (EntreeListe{"Brie", 125}));
}

TEST_F(LectureDesFromages, RepareUnCompteTropHautEnMemoireEtSurLeDisque) {
  PoseCompte(b, "GLF1.stp", 125);
  b.Demarre();
  EXPECT_EQ(ListeFromages(*b.module).size(), 122U);
  EXPECT_EQ(b.module->bufFromage.nbActifs(), 122);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLF1.DAT 0+208"));
  EXPECT_EQ(FicheFromage(b, 1).actif, 122);
}

TEST_F(LectureDesFromages, UneReparationNeChangeQueLeCompteDeLEntete) {
  GarnitEntete<RecFromage>(b, "GLF1.stp");
  PoseCompte(b, "GLF1.stp", 300);
  b.Demarre();
  const std::string avant = Entete<RecFromage>(b, "GLF1.DAT");
  ListeFromages(*b.module);
  EXPECT_EQ(Entete<RecFromage>(b, "GLF1.DAT"), AvecCompte(avant, 122));
}

TEST_F(LectureDesFromages, LaListeDUnLaitNeDemandePasSiLeFichierEstLa) {
  b.Demarre();
  FromagesAuLait(*b.module, 1);
  EXPECT_EQ(b.disque.journal().front(), "longueur GLF1.DAT");
  EXPECT_THAT(b.disque.journal(), Each(Not(StartsWith("existe"))));
}

TEST_F(LectureDesFromages, UneReparationQuiEchoueEstIgnoree) {
  PoseCompte(b, "GLF1.stp", 125);
  b.Demarre();
  b.disque.EchoueSur("écrit GLF1.DAT", Panne::disquePlein);
  EXPECT_EQ(ListeFromages(*b.module).size(), 122U);
  EXPECT_EQ(b.module->bufFromage.nbActifs(), 122);
}

TEST_F(LectureDesFromages, UnCompteTropBasArreteLaListeSansRienReparer) {
  b.AjouteFromage(Fromage("Abondance"));
  PoseCompte(b, "GLF1.stp", 122);
  b.Demarre();
  EXPECT_EQ(ListeFromages(*b.module).back().texte, "Fromage 123");
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(LectureDesFromages, UnFichierReduitASonEnteteNeDonneAucunFromage) {
  b.Demarre();
  b.dossier.Ecrit("GLF1.DAT", b.dossier.Lit("GLF1.DAT").substr(0, 208));
  EXPECT_THAT(ListeFromages(*b.module), IsEmpty());
  EXPECT_EQ(b.module->bufFromage.nbActifs(), 0);
}

TEST_F(LectureDesFromages, UneLectureQuiEchoueNeRepareRien) {
  PoseCompte(b, "GLF1.stp", 125);
  b.Demarre();
  b.disque.EchoueSur("lit GLF1.DAT", Panne::entreeSortie);
  EXPECT_THROW(ListeFromages(*b.module), ErreurExecution);
  EXPECT_EQ(FicheFromage(b, 1).actif, 125);
}

TEST_F(LectureDesFromages, NeListeQueLesFromagesDuLait) {
  b.AjouteFromage(Fromage("Banon", "", 2));
  b.AjouteFromage(Fromage("Ossau-iraty", "", 3));
  b.AjouteFromage(Fromage("Valençay"_1252, "", 2));
  b.Demarre();
  EXPECT_THAT(
      FromagesAuLait(*b.module, 2),
      ElementsAre(EntreeListe{"Banon", 124}, EntreeListe{std::string("Valençay"_1252), 126}));
  EXPECT_EQ(FromagesAuLait(*b.module, 1).size(), 122U);
}

TEST_F(LectureDesFromages, LaListeDUnLaitLaisseLeFromageAffiche) {
  b.AjouteFromage(Fromage("Banon", "", 2));
  b.Demarre();
  LitFromage(*b.module, 5);
  FromagesAuLait(*b.module, 2);
  EXPECT_EQ(Rogne(b.module->bufFromage.courant().nomFromage.brut()), "Fromage 005");
}

TEST_F(LectureDesFromages, LaListeDUnLaitRepareAussiLeCompte) {
  PoseCompte(b, "GLF1.stp", 125);
  b.Demarre();
  FromagesAuLait(*b.module, 3);
  EXPECT_EQ(b.module->bufFromage.nbActifs(), 122);
  EXPECT_EQ(FicheFromage(b, 1).actif, 122);
}

TEST_F(LectureDesFromages, UnFromageSeLitAvecSesTextesEtSesNotes) {
  b.AjouteFromage(Fromage("Abondance", " Savoie ", 1, 11, 2), "Une note.");
  b.Demarre();
  const VueFromage lu = LitFromage(*b.module, 124);
  EXPECT_EQ(lu.region, "Savoie");
  EXPECT_EQ(lu.lait, "Vache");
  EXPECT_EQ(lu.premierMois, "Novembre");
  EXPECT_EQ(lu.dernierMois, "Février"_1252);
  EXPECT_EQ(lu.notes, "Une note.");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLF1.DAT", "lit GLF1.DAT 25584+208", "existe GLF2.DAT",
                          "longueur GLF2.DAT", "lit GLF2.DAT 8+9"));
}

TEST_F(LectureDesFromages, UnFromageSansNotesNeToucheePasLaReserve) {
  b.Demarre();
  EXPECT_EQ(LitFromage(*b.module, 2).notes, "");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLF1.DAT", "lit GLF1.DAT 208+208"));
}

TEST_F(LectureDesFromages, LesNotesSeLisentEnEntierSansLimite) {
  const std::string notes(40000, 'x');
  b.AjouteFromage(Fromage("Abondance"), notes);
  b.Demarre();
  EXPECT_EQ(LitFromage(*b.module, 124).notes, notes);
}

TEST_F(LectureDesFromages, UneReserveDisparueEstDitePuisEchoue) {
  b.AjouteFromage(Fromage("Abondance"), "Une note.");
  b.Demarre();
  b.dossier.Supprime("GLF2.DAT");
  EXPECT_THROW(LitFromage(*b.module, 124), ErreurExecution);
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{"Fichier " + b.module->chemins.De("GLF2.DAT") + "\r\n" +
                                        std::string("non trouvé ou erreur disque."_1252),
                                    Icone::critique, "Gastrelle 2005"}));
}

TEST_F(LectureDesFromages, UneReserveDisparueNeGenePasUnFromageSansNotes) {
  b.Demarre();
  b.dossier.Supprime("GLF2.DAT");
  EXPECT_EQ(LitFromage(*b.module, 2).lait, "Vache");
}

TEST_F(LectureDesFromages, UneLongueurNegativeEstUnePanne) {
  DemarreAvec([](RecFromage& fiche) { fiche.lgTexte = -1; });
  EXPECT_THROW(LitFromage(*b.module, 124), ErreurExecution);
}

TEST_F(LectureDesFromages, UneReferenceSousUnVautSansNotes) {
  DemarreAvec([](RecFromage& fiche) { fiche.posTexte = -5; });
  EXPECT_EQ(LitFromage(*b.module, 124).notes, "");
}

struct CodeFaux {
  std::int16_t RecFromage::*champ;
  std::int16_t code;
};

class CodeHorsDeSaTable : public LectureDesFromages,
                          public testing::WithParamInterface<CodeFaux> {};

TEST_P(CodeHorsDeSaTable, EstUnePanne) {
  DemarreAvec([](RecFromage& fiche) { fiche.*GetParam().champ = GetParam().code; });
  EXPECT_THROW(LitFromage(*b.module, 124), ErreurExecution);
}

INSTANTIATE_TEST_SUITE_P(ToutesLesTables, CodeHorsDeSaTable,
                         testing::Values(CodeFaux{&RecFromage::lait, 4},
                                         CodeFaux{&RecFromage::lait, -1},
                                         CodeFaux{&RecFromage::premierMois, 13},
                                         CodeFaux{&RecFromage::premierMois, -1},
                                         CodeFaux{&RecFromage::dernierMois, 13},
                                         CodeFaux{&RecFromage::dernierMois, -1}));

}  // namespace
}  // namespace gastrelle::essai
