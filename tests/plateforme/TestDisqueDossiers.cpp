// What a folder of the disk holds, and what has reached the device.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "plateforme/FichiersDUnDossier.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(FichiersDUnDossier, VidesNeSontRien) {
  EXPECT_THAT(disque.FichiersDe("D"), IsEmpty());
}

TEST_F(FichiersDUnDossier, SontDansLOrdreDeLeursOctets) {
  for (const char* nom : {"D/b", "D/a", "D/C", "D/\xc3\xa9", "D/a b", "D/.cache", "D/10", "D/9"}) {
    dossier.Ecrit(nom, "x");
  }
  EXPECT_THAT(disque.FichiersDe("D"),
              ElementsAre(".cache", "10", "9", "C", "a", "a b", "b", "\xc3\xa9"));
}

TEST_F(FichiersDUnDossier, NeSontNiSesDossiersNiCeQuIlsContiennent) {
  std::filesystem::create_directory(Place("D/dedans"));
  dossier.Ecrit("D/dedans/x", "x");
  dossier.Ecrit("D/y", "y");
  EXPECT_THAT(disque.FichiersDe("D"), ElementsAre("y"));
}

TEST_F(FichiersDUnDossier, AbsentEchouent) {
  EXPECT_EQ(PanneDe([&] { disque.FichiersDe("absent"); }), PanneDuSysteme(ENOENT));
}

TEST_F(FichiersDUnDossier, QuiEstUnFichierEchouent) {
  dossier.Ecrit("f", "x");
  EXPECT_EQ(PanneDe([&] { disque.FichiersDe("f"); }), PanneDuSysteme(ENOTDIR));
}

TEST_F(FichiersDUnDossier, UnFichierSynchroniseEstTelQuIlAEteEcrit) {
  const auto fichier = disque.Ouvre("X");
  fichier->Ecrit(0, "octets");
  fichier->Synchronise();
  fichier->Synchronise();
  EXPECT_EQ(dossier.Lit("X"), "octets");
  EXPECT_EQ(fichier->Longueur(), 6);
}

TEST_F(FichiersDUnDossier, UnFichierVideOuOuvertPourLireSeSynchroniseAussi) {
  disque.Ouvre("X")->Synchronise();
  disque.OuvrePourLire("X")->Synchronise();
  EXPECT_EQ(dossier.Lit("X"), "");
}

}  // namespace
}  // namespace gastrelle::essai
