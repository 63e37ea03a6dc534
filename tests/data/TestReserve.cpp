// Text pools: how texts come in, are replaced, lose their reference, byte for byte.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Limites.h"
#include "data/Reserve.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ReserveTextes : public testing::Test {
 protected:
  ReserveTextes() {
    dossier.Ecrit("GLR3.DAT", "GLR3.DAT");
    place = disque.Ouvre("GLR3.DAT");
    disque.OublieJournal();
  }

  [[nodiscard]] std::string Octets3() const { return dossier.Lit("GLR3.DAT"); }
  ReferenceTexte Reference() { return {position, longueur}; }

  DossierEssai dossier;
  DisqueEssai disque{dossier.chemin()};
  std::unique_ptr<Fichier> place;
  Reserve reserve{place};
  std::int32_t position = 0;
  std::int32_t longueur = 0;
};

TEST_F(ReserveTextes, MetLePremierTexteDerriereSaSignature) {
  EXPECT_EQ(reserve.Longueur(), 8);
  reserve.Ajoute(Reference(), "Un consommé.");
  EXPECT_EQ(position, 9);
  EXPECT_EQ(longueur, 13);
  EXPECT_EQ(Octets3(), "GLR3.DATUn consommé.");
}

TEST_F(ReserveTextes, CommenceALaPosition10DerriereUnNomDeNeufOctets) {
  dossier.Ecrit("GLFV3.DAT", "GLFV3.DAT");
  place = disque.Ouvre("GLFV3.DAT");
  EXPECT_EQ(reserve.Longueur(), 9);
  reserve.Ajoute(Reference(), "rue Haute");
  EXPECT_EQ(position, 10);
  EXPECT_EQ(dossier.Lit("GLFV3.DAT"), "GLFV3.DATrue Haute");
}

TEST_F(ReserveTextes, MetLesTextesBoutABout) {
  reserve.Ajoute(Reference(), "un");
  reserve.Ajoute(Reference(), "deux\r\n");
  EXPECT_EQ(position, 11);
  EXPECT_EQ(longueur, 6);
  EXPECT_EQ(Octets3(), "GLR3.DATundeux\r\n");
}

TEST_F(ReserveTextes, DemandeSaLongueurAuFichierAChaqueAjout) {
  reserve.Ajoute(Reference(), "un");
  dossier.Ecrit("GLR3.DAT", "GLR3.DATun, et bien plus");
  reserve.Ajoute(Reference(), "deux");
  EXPECT_EQ(position, 25);
  EXPECT_EQ(Octets3(), "GLR3.DATun, et bien plusdeux");
}

TEST_F(ReserveTextes, EcritUnTexteEnUneFoisApresAvoirDemandeSaLongueur) {
  reserve.Ajoute(Reference(), "un");
  EXPECT_THAT(disque.journal(), ElementsAre("longueur GLR3.DAT", "écrit GLR3.DAT 8+2"));
}

TEST_F(ReserveTextes, AjouteUnPremierTexteQuiRemplaceRien) {
  reserve.Remplace(Reference(), "premier");
  EXPECT_EQ(position, 9);
  EXPECT_EQ(longueur, 7);
  EXPECT_EQ(Octets3(), "GLR3.DATpremier");
}

TEST_F(ReserveTextes, RemplaceEnPlaceUnTexteDeMemeLongueur) {
  reserve.Ajoute(Reference(), "0123456789");
  reserve.Remplace(Reference(), "abcdefghij");
  EXPECT_EQ(position, 9);
  EXPECT_EQ(longueur, 10);
  EXPECT_EQ(Octets3(), "GLR3.DATabcdefghij");
}

TEST_F(ReserveTextes, RemplaceEnPlaceUnTextePlusCourtEtLaisseLaFinDeLAncien) {
  reserve.Ajoute(Reference(), "0123456789");
  reserve.Remplace(Reference(), "abcd");
  EXPECT_EQ(position, 9);
  EXPECT_EQ(longueur, 4);
  EXPECT_EQ(Octets3(), "GLR3.DATabcd456789");
}

TEST_F(ReserveTextes, MetALaFinUnTextePlusLongEtLaisseLAncien) {
  reserve.Ajoute(Reference(), "0123456789");
  reserve.Remplace(Reference(), "abcdefghijk");
  EXPECT_EQ(position, 19);
  EXPECT_EQ(longueur, 11);
  EXPECT_EQ(Octets3(), "GLR3.DAT0123456789abcdefghijk");
}

TEST_F(ReserveTextes, CompareALaLongueurCouranteNonALaPremiere) {
  reserve.Ajoute(Reference(), "0123456789");
  reserve.Remplace(Reference(), "abcd");
  reserve.Remplace(Reference(), "ABCDE");
  EXPECT_EQ(position, 19);
  EXPECT_EQ(Octets3(), "GLR3.DATabcd456789ABCDE");
}

TEST_F(ReserveTextes, PerdLaReferenceDUnTexteVideSansToucherAuFichier) {
  reserve.Ajoute(Reference(), "0123456789");
  disque.OublieJournal();
  reserve.Remplace(Reference(), "");
  EXPECT_EQ(position, 0);
  EXPECT_EQ(longueur, 0);
  EXPECT_THAT(disque.journal(), IsEmpty());
  EXPECT_EQ(Octets3(), "GLR3.DAT0123456789");
}

TEST_F(ReserveTextes, NeRevientPasALAnciennePlaceApresUnTexteVide) {
  reserve.Ajoute(Reference(), "0123456789");
  reserve.Remplace(Reference(), "");
  reserve.Remplace(Reference(), "abc");
  EXPECT_EQ(position, 19);
  EXPECT_EQ(longueur, 3);
  EXPECT_EQ(Octets3(), "GLR3.DAT0123456789abc");
}

TEST_F(ReserveTextes, EffaceUneReferenceSansToucherAuFichier) {
  reserve.Ajoute(Reference(), "0123456789");
  disque.OublieJournal();
  Reference().Efface();
  EXPECT_EQ(position, 0);
  EXPECT_EQ(longueur, 0);
  EXPECT_THAT(disque.journal(), IsEmpty());
}

TEST_F(ReserveTextes, PoseLaReferenceAvantDEcrireLesOctets) {
  disque.EchoueSur("écrit", Panne::disquePlein);
  EXPECT_EQ(PanneDe([&] { reserve.Ajoute(Reference(), "perdu"); }), Panne::disquePlein);
  EXPECT_EQ(position, 9);
  EXPECT_EQ(longueur, 5);
  EXPECT_EQ(Octets3(), "GLR3.DAT");
}

TEST_F(ReserveTextes, AjouteDerriereUneAncienneLongueurNegative) {
  position = 9;
  longueur = -3;
  reserve.Remplace(Reference(), "x");
  EXPECT_EQ(position, 9);
  EXPECT_EQ(longueur, 1);
  EXPECT_EQ(Octets3(), "GLR3.DATx");
}

TEST_F(ReserveTextes, NEcritNiALaPositionZeroNiAvant) {
  for (const std::int32_t mauvaise : {0, -5}) {
    position = mauvaise;
    longueur = 10;
    EXPECT_EQ(PanneDe([&] { reserve.Remplace(Reference(), "abc"); }), Panne::numeroEnregistrement);
  }
  EXPECT_EQ(Octets3(), "GLR3.DAT");
}

TEST_F(ReserveTextes, EcritAuDelaDeLaFinOuUneReferenceEtrangereLEnvoie) {
  position = 12;
  longueur = 2;
  reserve.Remplace(Reference(), "ab");
  EXPECT_EQ(Octets3(), std::string("GLR3.DAT\0\0\0ab", 13));
}

TEST_F(ReserveTextes, MetUnTexteALaDernierePositionPossible) {
  std::filesystem::resize_file(dossier.chemin() / "GLR3.DAT", 2'147'483'646);
  reserve.Ajoute(Reference(), "ab");
  EXPECT_EQ(position, 2'147'483'647);
  EXPECT_EQ(reserve.Lit(position, longueur), "ab");
}

TEST_F(ReserveTextes, EchoueQuandLaPositionNeTientPlus) {
  std::filesystem::resize_file(dossier.chemin() / "GLR3.DAT", 2'147'483'647);
  EXPECT_EQ(PanneDe([&] { reserve.Ajoute(Reference(), "ab"); }), Panne::depassement);
  EXPECT_EQ(position, 0);
  EXPECT_EQ(reserve.Longueur(), 2'147'483'647);
}

TEST_F(ReserveTextes, LitUnTexteParPositionEtLongueur) {
  dossier.Ecrit("GLR3.DAT", "GLR3.DATundeuxtrois");
  EXPECT_EQ(reserve.Lit(11, 4), "deux");
  EXPECT_EQ(reserve.Lit(1, 8), "GLR3.DAT");
  EXPECT_EQ(reserve.Lit(11, 0), "");
}

TEST_F(ReserveTextes, NeLitQueLesPremiersOctetsDUneLimite) {
  dossier.Ecrit("GLR3.DAT", "GLR3.DATundeuxtrois");
  EXPECT_EQ(reserve.Lit(11, 9, 5), "deuxt");
  EXPECT_EQ(reserve.Lit(11, 4, 5), "deux");
}

TEST_F(ReserveTextes, CoupeUneRecetteA30000OctetsPourLAfficher) {
  const std::string texte = std::string(30000, 'a') + "b";
  reserve.Ajoute(Reference(), texte);
  EXPECT_EQ(reserve.Lit(position, longueur, limiteTexte), std::string(30000, 'a'));
  EXPECT_EQ(reserve.Lit(position, longueur), texte);
}

TEST_F(ReserveTextes, LitCeQuIlYAQuandLaReferenceDepasseLaFin) {
  dossier.Ecrit("GLR3.DAT", "GLR3.DATabc");
  EXPECT_EQ(reserve.Lit(10, 100), "bc");
  EXPECT_EQ(reserve.Lit(10, Reserve::sansLimite), "bc");
  EXPECT_EQ(reserve.Lit(12, 5), "");
  EXPECT_EQ(reserve.Lit(2'147'483'647, 5), "");
}

TEST_F(ReserveTextes, RefuseUnTexteQuiRempliraitLaMemoire) {
  std::filesystem::resize_file(dossier.chemin() / "GLR3.DAT", std::int64_t{1} << 31);
  disque.OublieJournal();
  EXPECT_EQ(PanneDe([&] { (void)reserve.Lit(9, Reserve::sansLimite); }),
            Panne::memoireInsuffisante);
  EXPECT_EQ(PanneDe([&] { (void)reserve.Lit(1, Reserve::plafond + 1); }),
            Panne::memoireInsuffisante);
  EXPECT_THAT(disque.journal(), testing::Each("longueur GLR3.DAT"));
  EXPECT_EQ(reserve.Lit(9, Reserve::sansLimite, limiteTexte), std::string(30000, '\0'));
}

TEST_F(ReserveTextes, LitUnTexteDePlusieursMegaoctetsEnEntier) {
  const std::string texte(5'000'000, 'x');
  reserve.Ajoute(Reference(), texte);
  EXPECT_EQ(reserve.Lit(position, longueur), texte);
  EXPECT_EQ(reserve.Lit(position, Reserve::sansLimite), texte);
  std::filesystem::resize_file(dossier.chemin() / "GLR3.DAT", Reserve::plafond);
  EXPECT_EQ(reserve.Lit(1, Reserve::plafond).size(), std::size_t{Reserve::plafond});
}

TEST_F(ReserveTextes, NeLitRienEnPositionZeroEtRendUnTexteVide) {
  place.reset();
  EXPECT_EQ(reserve.Lit(0, 1), "");
  EXPECT_EQ(reserve.Lit(0, -1), "");
}

TEST_F(ReserveTextes, NeLitNiUneLongueurNegativeNiUnePositionNegative) {
  EXPECT_EQ(PanneDe([&] { (void)reserve.Lit(9, -1); }), Panne::appelIncorrect);
  EXPECT_EQ(PanneDe([&] { (void)reserve.Lit(-1, 1); }), Panne::numeroEnregistrement);
}

TEST_F(ReserveTextes, EchoueFermee) {
  place.reset();
  EXPECT_EQ(PanneDe([&] { (void)reserve.Lit(1, 1); }), Panne::fichierFerme);
  EXPECT_EQ(PanneDe([&] { reserve.Ajoute(Reference(), "x"); }), Panne::fichierFerme);
}

}  // namespace
}  // namespace gastrelle::essai
