// The disk of the machine as Windows has it: its names, its lengths, files that may only be read.

#include <filesystem>
#include <string>
#include <windows.h>

#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "plateforme/DisqueReel.h"
#include "plateforme/TexteChemin.h"

namespace gastrelle::essai {
namespace {

TEST_F(DisqueReel, NeDistinguePasLaCasse) {
  dossier.Ecrit("GLR1.DAT", "contenu");
  EXPECT_TRUE(disque.Existe("glr1.dat"));
  EXPECT_EQ(disque.OuvrePourLire("Glr1.Dat")->Longueur(), 7);
}

TEST_F(DisqueReel, PrendLesDeuxSeparateursEtRendLesSiens) {
  disque.CreeDossier("SAUVE");
  disque.Ouvre("SAUVE\\X")->Ecrit(0, "x");
  EXPECT_TRUE(disque.Existe("SAUVE/X"));
  EXPECT_EQ(disque.CheminEntier("SAUVE/X"), EnUtf8(dossier.chemin()) + "\\SAUVE\\X");
}

TEST_F(DisqueReel, TrouveLesFichiersDontLeNomAUnAccent) {
  disque.Ouvre("Crème brûlée œuf.jpg")->Ecrit(0, "x");
  EXPECT_EQ(disque.FichiersDe(""), std::vector<std::string>{"Crème brûlée œuf.jpg"});
  EXPECT_TRUE(
      std::filesystem::exists(dossier.chemin() / L"Cr\u00e8me br\u00fbl\u00e9e \u0153uf.jpg"));
}

TEST_F(DisqueReel, VaAuDelaDesAnciennesLongueursDeChemin) {
  std::string nom;
  for (int i = 0; i < 3; ++i) {
    nom += std::string(100, static_cast<char>('a' + i));
    disque.CreeDossier(nom);
    nom += '/';
  }
  disque.Ouvre(nom + "X")->Ecrit(0, "loin");
  disque.Copie(nom + "X", nom + "Y");
  EXPECT_EQ(disque.OuvrePourLire(nom + "Y")->Longueur(), 4);
  EXPECT_EQ(disque.FichiersDe(nom), (std::vector<std::string>{"X", "Y"}));
  disque.Supprime(nom + "X");
  EXPECT_FALSE(disque.Existe(nom + "X"));
}

TEST_F(DisqueReel, NeTrouveRienSousUnNomQueRienNePeutPorter) {
  for (const char* nom : {"a*b", "a?b", "a|b", "a\"b", "a<b"}) {
    EXPECT_FALSE(disque.Existe(nom)) << nom;
    EXPECT_FALSE(disque.ExisteAilleurs(std::string("C:\\absent\\") + nom)) << nom;
  }
  EXPECT_FALSE(disque.ExisteAilleurs("Q:\\photo.jpg"));
  EXPECT_FALSE(disque.ExisteAilleurs("/home/anne/photo.jpg"));
}

TEST_F(DisqueReel, RefuseUnPeripheriqueQuiPorteUnNomReserve) {
  EXPECT_EQ(PanneDe([&] { static_cast<void>(disque.Ouvre("NUL")); }), Panne::accesFichier);
}

TEST_F(DisqueReel, OteEtRemplaceUnFichierQuOnNePeutQueLire) {
  for (const char* nom : {"ote", "remplace"}) {
    dossier.Ecrit(nom, "ancien");
    ASSERT_NE(::SetFileAttributesW((dossier.chemin() / nom).c_str(), FILE_ATTRIBUTE_READONLY), 0);
  }
  disque.Supprime("ote");
  EXPECT_FALSE(dossier.A("ote"));
  dossier.Ecrit("X", "neuf");
  disque.Copie("X", "remplace");
  EXPECT_EQ(dossier.Lit("remplace"), "neuf");
}

/// As whoever scans files for viruses, or indexes them, may still hold it.
TEST_F(DisqueReel, LibereAussitotLeNomDUnFichierQuUnAutreTient) {
  dossier.Ecrit("MesNotes.txt", "vieilles");
  const auto autre = disque.OuvrePourLire("MesNotes.txt");
  disque.Supprime("MesNotes.txt");
  EXPECT_FALSE(disque.Existe("MesNotes.txt"));
  disque.Cree("MesNotes.txt")->Ecrit(0, "neuves");
  EXPECT_EQ(dossier.Lit("MesNotes.txt"), "neuves");
  EXPECT_EQ(autre->Longueur(), 8);
}

TEST_F(DisqueReel, NeTouchePasAUnFichierDontLeNomEstTenuPourDeBon) {
  dossier.Ecrit("X", "contenu");
  const HANDLE tenu = ::CreateFileW((dossier.chemin() / "X").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(PanneDe([&] { disque.Supprime("X"); }), Panne::permissionRefusee);
  EXPECT_EQ(PanneDe([&] { disque.Renomme("X", "Y"); }), Panne::permissionRefusee);
  ::CloseHandle(tenu);
  EXPECT_EQ(dossier.Lit("X"), "contenu");
  EXPECT_EQ(Noms(), std::set<std::string>{"X"});
}

TEST_F(DisqueReel, GardeLeDossierDontOnVeutOterUnFichier) {
  disque.CreeDossier("D");
  EXPECT_EQ(PanneDe([&] { disque.Supprime("D"); }), Panne::accesFichier);
  EXPECT_TRUE(disque.DossierExiste("D"));
}

}  // namespace
}  // namespace gastrelle::essai
