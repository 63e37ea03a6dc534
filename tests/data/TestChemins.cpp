// The program's folder as a text, under both conventions, and the short form of picture paths.

#include <gtest/gtest.h>

#include "data/Chemins.h"
#include "data/Texte1252.h"

namespace gastrelle::essai {
namespace {

Chemins Windows(std::string_view dossier = "C:\\GASTRELLE") {
  return {Convention::windows, dossier};
}

Chemins Posix(std::string_view dossier = "/home/anne/Gastrelle") {
  return {Convention::posix, dossier};
}

TEST(Chemins, FinissentLeDossierParUnSeulSeparateur) {
  EXPECT_EQ(Posix("/home/anne/Gastrelle").cheminAppli(), "/home/anne/Gastrelle/");
  EXPECT_EQ(Posix("/home/anne/Gastrelle/").cheminAppli(), "/home/anne/Gastrelle/");
  EXPECT_EQ(Windows("C:\\GASTRELLE").cheminAppli(), "C:\\GASTRELLE\\");
  EXPECT_EQ(Windows("C:\\").cheminAppli(), "C:\\");
  EXPECT_EQ(Posix("/").cheminAppli(), "/");
}

TEST(Chemins, MettentLeDossierEnCapitalesSousWindowsSeulement) {
  EXPECT_EQ(Windows("c:\\Mes dîners"_1252).cheminAppli(), "C:\\MES DÎNERS\\"_1252);
  EXPECT_EQ(Posix("/home/Dîners"_1252).cheminAppli(), "/home/Dîners/"_1252);
}

TEST(Chemins, MettentUnNomDerriereLeDossierSansLeChanger) {
  EXPECT_EQ(Windows().De("MesNotes.txt"), "C:\\GASTRELLE\\MesNotes.txt");
  EXPECT_EQ(Posix().De("gl32.hlp"), "/home/anne/Gastrelle/gl32.hlp");
}

TEST(Chemins, ReconnaissentLesLecteursDeDisquettes) {
  EXPECT_TRUE(Windows("A:\\").EstDisquette());
  EXPECT_TRUE(Windows("b:\\gastrelle").EstDisquette());
  EXPECT_FALSE(Windows("C:\\").EstDisquette());
  EXPECT_FALSE(Windows("d:\\gastrelle").EstDisquette());
}

TEST(Chemins, NePrennentPasPourDisquetteUnCheminSansLecteur) {
  EXPECT_FALSE(Windows("\\\\SERVEUR\\GASTRELLE").EstDisquette());
  EXPECT_FALSE(Posix("/").EstDisquette());
  EXPECT_FALSE(Posix("/a:/gastrelle").EstDisquette());
}

TEST(Chemins, RaccourcissentUneImageDuDossierDesImages) {
  EXPECT_EQ(Windows().FormeCourte("c:\\Gastrelle\\Image\\Tarte.JPG"), "/Tarte.JPG");
  EXPECT_EQ(Posix().FormeCourte("/home/anne/Gastrelle/IMAGE/Tarte.JPG"), "/Tarte.JPG");
}

TEST(Chemins, GardentEntierUnCheminDUnSousDossierOuDAilleurs) {
  for (const char* entier : {"C:\\GASTRELLE\\IMAGE\\ETE\\Tarte.jpg", "C:\\GASTRELLE\\Tarte.jpg",
                             "D:\\IMAGE\\Tarte.jpg", "Tarte.jpg"}) {
    EXPECT_EQ(Windows().FormeCourte(entier), entier);
  }
  for (const char* entier :
       {"/home/anne/Gastrelle/IMAGE/ete/Tarte.jpg", "/home/anne/Gastrelle/Tarte.jpg",
        "/home/anne/IMAGE/Tarte.jpg", "Tarte.jpg"}) {
    EXPECT_EQ(Posix().FormeCourte(entier), entier);
  }
}

TEST(Chemins, DistinguentLaCasseHorsDeWindows) {
  EXPECT_EQ(Posix().FormeCourte("/home/anne/Gastrelle/Image/x.jpg"),
            "/home/anne/Gastrelle/Image/x.jpg");
  EXPECT_EQ(Posix().FormeCourte("/home/anne/gastrelle/IMAGE/x.jpg"),
            "/home/anne/gastrelle/IMAGE/x.jpg");
}

TEST(Chemins, CompletentUneFormeCourte) {
  EXPECT_EQ(Windows().Developpe("/Tarte.JPG"), "C:\\GASTRELLE\\IMAGE\\Tarte.JPG");
  EXPECT_EQ(Posix().Developpe("/Tarte.JPG"), "/home/anne/Gastrelle/IMAGE/Tarte.JPG");
}

TEST(Chemins, SuiventLeDossierQuandIlDemenage) {
  const std::string texte = Posix("/media/ancien").FormeCourte("/media/ancien/IMAGE/x.jpg");
  EXPECT_EQ(Posix("/media/nouveau").Developpe(texte), "/media/nouveau/IMAGE/x.jpg");
}

TEST(Chemins, RendentTelQuelUnCheminEntier) {
  for (const char* entier : {"C:\\PHOTOS\\Tarte.jpg", "Tarte.jpg", ""}) {
    EXPECT_EQ(Windows().Developpe(entier), entier);
    EXPECT_EQ(Posix().Developpe(entier), entier);
  }
  EXPECT_EQ(Posix().Developpe("/home/anne/x.jpg"), "/home/anne/x.jpg");
}

TEST(Chemins, TiennentSousWindowsTouteBarreDeTetePourLaFormeCourte) {
  EXPECT_EQ(Windows().Developpe("/ete/x.jpg"), "C:\\GASTRELLE\\IMAGE\\ete/x.jpg");
}

TEST(Chemins, DoublentLaBarreDUnFichierALaRacine) {
  EXPECT_EQ(Posix().FormeCourte("/x.jpg"), "//x.jpg");
  EXPECT_EQ(Posix().Developpe("//x.jpg"), "//x.jpg");
  EXPECT_EQ(Posix().FormeCourte("//x.jpg"), "//x.jpg");
}

TEST(Chemins, RaccourcissentAussiDansUnProgrammeALaRacine) {
  EXPECT_EQ(Posix("/").FormeCourte("/IMAGE/x.jpg"), "/x.jpg");
  EXPECT_EQ(Posix("/").Developpe("/x.jpg"), "/IMAGE/x.jpg");
  EXPECT_EQ(Windows("C:\\").FormeCourte("C:\\IMAGE\\x.jpg"), "/x.jpg");
}

TEST(Chemins, DonnentCeQuiSuitLeDossier) {
  EXPECT_EQ(Posix().Relatif("/home/anne/Gastrelle/IMAGE/x.jpg"), "IMAGE/x.jpg");
  EXPECT_EQ(Windows().Relatif("c:\\gastrelle\\IMAGE\\x.jpg"), "IMAGE\\x.jpg");
  EXPECT_EQ(Posix().Relatif("/home/anne/Gastrelle/"), "");
  EXPECT_EQ(Posix().Relatif("/home/anne/Gastrelles/x.jpg"), "");
  EXPECT_EQ(Posix().Relatif("x.jpg"), "");
}

}  // namespace
}  // namespace gastrelle::essai
