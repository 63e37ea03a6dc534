// The printer's place on the page, its own change of page, and the documents that are sent.

#include <memory>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/ImprimanteEssai.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double ligne = 240;  // of 10 points

class PlaceDeLImprimante : public testing::Test {
 protected:
  PlaceDeLImprimante() {
    imprimantes.hauteur = 2 * ligne;
    imprimante = imprimantes.ParDefaut();
    imprimante->PosePolice({"Times New Roman", 10});
  }
  void ImprimeUneLigne(std::string_view texte) {
    imprimante->Imprime(texte);
    imprimante->PasseALaLigne();
  }
  [[nodiscard]] const TravailVu& travail() const { return imprimantes.travaux.back(); }

  ImprimantesEssai imprimantes;
  std::unique_ptr<Imprimante> imprimante;
};

TEST_F(PlaceDeLImprimante, SuitCeQuiSImprime) {
  imprimante->PoseX(500);
  imprimante->Imprime("abc");
  EXPECT_EQ(imprimante->x(), 800);
  EXPECT_EQ(imprimante->y(), 0);
  imprimante->PasseALaLigne();
  EXPECT_EQ(imprimante->x(), 0);
  EXPECT_EQ(imprimante->y(), ligne);
}

TEST_F(PlaceDeLImprimante, DescendDeLaHauteurDeSaPolice) {
  imprimantes.hauteur = 10 * ligne;
  imprimante->PosePolice({"Times New Roman", 20});
  ImprimeUneLigne("a");
  EXPECT_EQ(imprimante->y(), 2 * ligne);
}

TEST_F(PlaceDeLImprimante, NOuvreUnePageQuAvecSaPremiereLigne) {
  imprimante->PoseX(500);
  imprimante->PasseALaPage();
  EXPECT_THAT(travail().pages, IsEmpty());
  imprimante->PasseALaLigne();
  EXPECT_THAT(travail().pages, SizeIs(1));
}

TEST_F(PlaceDeLImprimante, UneLigneQuiTientJusteResteSurLaPage) {
  ImprimeUneLigne("a");
  ImprimeUneLigne("b");
  EXPECT_THAT(travail().pages, SizeIs(1));
  imprimante->Imprime("c");
  EXPECT_THAT(travail().pages,
              ElementsAre(ElementsAre(MotTrace{"a", 0, 0}, MotTrace{"b", 0, ligne}),
                          ElementsAre(MotTrace{"c", 0, 0})));
}

TEST_F(PlaceDeLImprimante, PourUnTwipDeTropLaLigneVaALaPageSuivante) {
  imprimantes.hauteur -= 1;
  ImprimeUneLigne("a");
  ImprimeUneLigne("b");
  EXPECT_THAT(travail().pages, SizeIs(2));
}

TEST_F(PlaceDeLImprimante, GardeXQuandLImprimanteChangeDePage) {
  ImprimeUneLigne("a");
  ImprimeUneLigne("b");
  imprimante->PoseX(700);
  imprimante->Imprime("c");
  EXPECT_THAT(travail().pages.at(1), ElementsAre(MotTrace{"c", 700, 0}));
  EXPECT_EQ(imprimante->x(), 800);
}

TEST_F(PlaceDeLImprimante, RevientEnTeteDUneNouvellePage) {
  ImprimeUneLigne("a");
  imprimante->Imprime("b");
  imprimante->PasseALaPage();
  EXPECT_EQ(imprimante->x(), 0);
  EXPECT_EQ(imprimante->y(), 0);
  imprimante->Imprime("c");
  EXPECT_THAT(travail().pages, SizeIs(2));
  EXPECT_THAT(travail().pages.at(1), ElementsAre(MotTrace{"c", 0, 0}));
}

TEST_F(PlaceDeLImprimante, UneLigneSansTexteTientSaPlaceAussi) {
  for (int i = 0; i < 3; ++i) {
    imprimante->PasseALaLigne();
  }
  EXPECT_THAT(travail().pages, ElementsAre(IsEmpty(), IsEmpty()));
  EXPECT_EQ(imprimante->y(), ligne);
}

TEST_F(PlaceDeLImprimante, UneLignePlusHauteQueLaPageEnAUneChacune) {
  imprimantes.hauteur = ligne / 2;
  ImprimeUneLigne("a");
  ImprimeUneLigne("b");
  EXPECT_THAT(travail().pages,
              ElementsAre(ElementsAre(MotTrace{"a", 0, 0}), ElementsAre(MotTrace{"b", 0, 0})));
}

class DocumentImprime : public PlaceDeLImprimante {};

TEST_F(DocumentImprime, PartSansPageBlancheALaFin) {
  ImprimeUneLigne("a");
  imprimante->PasseALaPage();
  imprimante->Finit();
  EXPECT_THAT(travail().pages, SizeIs(1));
  EXPECT_THAT(imprimantes.journal,
              ElementsAre("police Times New Roman 10", "page", "trace a", "envoie"));
}

TEST_F(DocumentImprime, PasserDeuxFoisALaPageNEnLaissePasDeBlanche) {
  ImprimeUneLigne("a");
  imprimante->PasseALaPage();
  imprimante->PasseALaPage();
  ImprimeUneLigne("b");
  imprimante->Finit();
  EXPECT_THAT(travail().pages, SizeIs(2));
}

TEST_F(DocumentImprime, UnePageDeLignesVidesPart) {
  imprimante->PasseALaLigne();
  imprimante->Finit();
  EXPECT_TRUE(travail().envoye);
  EXPECT_THAT(travail().pages, ElementsAre(IsEmpty()));
}

TEST_F(DocumentImprime, SansUneLigneNePartPas) {
  imprimante->PasseALaPage();
  imprimante->Finit();
  EXPECT_FALSE(travail().envoye);
  EXPECT_THAT(travail().pages, IsEmpty());
}

TEST_F(DocumentImprime, QuiNEstPasFiniNePartPas) {
  ImprimeUneLigne("a");
  imprimante.reset();
  EXPECT_FALSE(travail().envoye);
}

TEST_F(DocumentImprime, DontLaPremierePageNeSOuvrePasNePartPas) {
  imprimantes.EchoueALAppel(1);
  EXPECT_THROW(imprimante->Imprime("a"), ErreurExecution);
  imprimante->Finit();
  EXPECT_FALSE(travail().envoye);
}

TEST_F(DocumentImprime, DontLaDeuxiemePageNeSOuvrePasPartAvecLaPremiere) {
  ImprimeUneLigne("a");
  ImprimeUneLigne("b");
  imprimantes.EchoueALAppel(1);
  EXPECT_THROW(imprimante->Imprime("c"), ErreurExecution);
  imprimante->Finit();
  EXPECT_TRUE(travail().envoye);
  EXPECT_THAT(travail().Lignes(0), ElementsAre("a", "b"));
  EXPECT_THAT(travail().pages, SizeIs(1));
}

}  // namespace
}  // namespace gastrelle::essai
