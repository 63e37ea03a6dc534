// The file of the notes: its lines, read from whatever editor wrote them; its writing, step by
// step.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "listes/coeur/CoeurNotes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

TEST_F(Notes, SontVidesSansFichierEtNEnFontPas) {
  EXPECT_EQ(LitNotes(*b.module), "");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe MesNotes.txt"));
  EXPECT_FALSE(b.dossier.A("MesNotes.txt"));
}

TEST_F(Notes, SeLisentEnTroisAppels) {
  EXPECT_EQ(Lues("Un\r\nDeux\r\n"), "Un\r\nDeux");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe MesNotes.txt", "consulte MesNotes.txt",
                                              "longueur MesNotes.txt", "lit MesNotes.txt 0+10"));
}

TEST_F(Notes, NeGardentPasLaDerniereFinDeLigneMaisLesLignesVidesDeLaFin) {
  EXPECT_EQ(Lues("Un"), "Un");
  EXPECT_EQ(Lues("Un\r\n"), "Un");
  EXPECT_EQ(Lues("Un\r\n\r\n\r\n"), "Un\r\n\r\n");
}

TEST_F(Notes, PerdentLesLignesVidesDeLaTete) {
  EXPECT_EQ(Lues("\r\n\r\nUn\r\n\r\nDeux\r\n"), "Un\r\n\r\nDeux");
  EXPECT_EQ(Lues("\r\n\r\n"), "");
  EXPECT_EQ(Lues(" \r\nUn"), " \r\nUn");  // a blank is no empty line
}

TEST_F(Notes, SontVidesDUnFichierVide) {
  EXPECT_EQ(Lues(""), "");
}

TEST_F(Notes, SeLisentAvecLesFinsDeLigneDesAutresSystemes) {
  EXPECT_EQ(Lues("Un\nDeux\n\nTrois\n"), "Un\r\nDeux\r\n\r\nTrois");
  EXPECT_EQ(Lues("Un\rDeux\r\rTrois\r"), "Un\r\nDeux\r\n\r\nTrois");
  EXPECT_EQ(Lues("\n\rUn\r\n\n\rDeux"), "Un\r\n\r\n\r\nDeux");
}

TEST_F(Notes, SeLisentOctetParOctet) {
  std::string tous;
  for (int octet = 0; octet < 256; ++octet) {
    if (octet != '\r' && octet != '\n') {
      tous += static_cast<char>(octet);
    }
  }
  EXPECT_EQ(Lues(tous), tous);
  EXPECT_EQ(Ecrites(tous), tous + "\r\n");
}

TEST_F(Notes, SeLisentPlusLonguesQueLaBoiteNEnPrend) {
  const std::string longue(100'000, 'x');
  EXPECT_EQ(Lues(longue + "\r\nfin"), longue + "\r\nfin");
}

TEST_F(Notes, SontRefuseesQuandEllesRempliraientLaMemoire) {
  Lues("x");
  b.disque.Ouvre("MesNotes.txt")->Ecrit(std::int64_t{1} << 40U, "x");
  b.disque.OublieJournal();
  EXPECT_EQ(PanneDe([&] { static_cast<void>(LitNotes(*b.module)); }), Panne::memoireInsuffisante);
  EXPECT_EQ(b.disque.journal().back(), "longueur MesNotes.txt");
}

TEST_F(Notes, EchouentAChaqueAppelDeLaLectureEtNeChangentRien) {
  for (std::size_t n = 2; n <= 4; ++n) {
    b.dossier.Ecrit("MesNotes.txt", "Un\r\n");
    b.disque.EchoueALAppel(n, Panne::permissionRefusee);
    EXPECT_EQ(PanneDe([&] { static_cast<void>(LitNotes(*b.module)); }), Panne::permissionRefusee);
    EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Un\r\n");
  }
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Notes, UneRechercheQuiEchoueVautUnFichierAbsent) {
  b.dossier.Ecrit("MesNotes.txt", "Un\r\n");
  b.disque.EchoueALAppel(1, Panne::entreeSortie);
  EXPECT_EQ(LitNotes(*b.module), "");
}

TEST_F(Notes, SEcriventAvecUneSeuleFinDeLigne) {
  EXPECT_EQ(Ecrites("Un\r\nDeux\r\nTrois"), "Un\r\nDeux\r\nTrois\r\n");
  EXPECT_EQ(LitNotes(*b.module), "Un\r\nDeux\r\nTrois");
  EXPECT_EQ(Ecrites("Un"), "Un\r\n");  // nothing is left of the longer one
}

TEST_F(Notes, GardentLeursLignesVidesDeLaFinDUneFoisALAutre) {
  EXPECT_EQ(Ecrites("Un\r\n\r\n"), "Un\r\n\r\n\r\n");
  EXPECT_EQ(LitNotes(*b.module), "Un\r\n\r\n");
}

TEST_F(Notes, SupprimentPuisCreentPuisEcrivent) {
  b.dossier.Ecrit("MesNotes.txt", "Vieux\r\n");
  EcritNotes(*b.module, "Neuf");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("supprime MesNotes.txt", "crée MesNotes.txt", "écrit MesNotes.txt 0+6"));
}

TEST_F(Notes, VidesSupprimentLeFichierEtNEnFontPas) {
  b.dossier.Ecrit("MesNotes.txt", "Vieux\r\n");
  EcritNotes(*b.module, "");
  EXPECT_THAT(b.disque.journal(), ElementsAre("supprime MesNotes.txt"));
  EXPECT_FALSE(b.dossier.A("MesNotes.txt"));
  EcritNotes(*b.module, "");  // the deletion fails, without a word
  EXPECT_FALSE(b.dossier.A("MesNotes.txt"));
}

/// What is on file when the n-th step of the writing fails, over "Vieux".
struct EtapeManquee {
  std::size_t n;
  Maniere maniere;
  std::vector<std::string> journal;
  std::string reste;
};

TEST_F(Notes, PassentOutreAChaqueEtapeQuiEchoue) {
  const std::string supprime = "supprime MesNotes.txt";
  const std::string cree = "crée MesNotes.txt";
  const std::string ecrit = "écrit MesNotes.txt 0+6";
  for (const EtapeManquee& etape :
       {EtapeManquee{1, Maniere::rienFait, {supprime, cree, ecrit}, "Neuf\r\n"},
        EtapeManquee{2, Maniere::rienFait, {supprime, cree}, ""},
        EtapeManquee{3, Maniere::rienFait, {supprime, cree, ecrit}, ""},
        EtapeManquee{3, Maniere::moitieEcrite, {supprime, cree, ecrit}, "Neu"}}) {
    SCOPED_TRACE(etape.n);
    b.dossier.Ecrit("MesNotes.txt", "Vieux, et plus long\r\n");
    b.disque.OublieJournal();
    b.disque.EchoueALAppel(etape.n, Panne::disquePlein, etape.maniere);
    EcritNotes(*b.module, "Neuf");
    b.disque.Guerit();
    EXPECT_EQ(b.disque.journal(), etape.journal);
    EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), etape.reste);
    EXPECT_EQ(b.dossier.A("MesNotes.txt"), etape.n != 2);
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(b.messages.bips, 0);
    EXPECT_FALSE(b.module->erreurFatale);
  }
}

TEST_F(Notes, RemplacentUnFichierEnLectureSeule) {
  b.dossier.Ecrit("MesNotes.txt", "Vieux\r\n");
  fs::permissions(b.dossier.chemin() / "MesNotes.txt", fs::perms::owner_read);
  EXPECT_EQ(Ecrites("Neuf"), "Neuf\r\n");
}

TEST_F(Notes, LaissentUnDossierDeLeurNomCommeIlEst) {
  fs::create_directory(b.dossier.chemin() / "MesNotes.txt");
  b.dossier.Ecrit("MesNotes.txt/dedans", "x");
  EXPECT_EQ(LitNotes(*b.module), "");
  EcritNotes(*b.module, "Neuf");
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt/dedans"), "x");
}

}  // namespace
}  // namespace gastrelle::essai
