// What the comparison of two folders tells, and what it lets pass.

#include <gmock/gmock.h>

#include "promenade/PromenadeReelle.h"

namespace gastrelle::essai {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string EnteteRecettes(std::int32_t jour) {
  RecRecette entete;
  entete.actif = 1;
  entete.idFamille = jour;
  entete.nomRecette = "GLR2.DAT";
  return Octets(entete);
}

class Comparaison : public testing::Test {
 protected:
  Comparaison() {
    constexpr std::int32_t jour = 46'347;
    for (const DossierEssai* dossier : {&un, &autre}) {
      std::filesystem::create_directory(dossier->chemin() / "IMAGE");
      std::filesystem::create_directory(dossier->chemin() / "SAUVE");
      dossier->Ecrit("GLR2.DAT", EnteteRecettes(jour));
      dossier->Ecrit("SAUVE/GLR2.DAT", EnteteRecettes(jour));
      dossier->Ecrit("GLR4.DAT", "GLR4.DAT/a.jpg");
      dossier->Ecrit("GLR4.stp", std::string("\0\n\r\xFF", 4));
      dossier->Ecrit("IMAGE/a.jpg", std::string("\xFF\xD8\0\xFF", 4));
      dossier->Ecrit("MesNotes.txt", "Notes");
      dossier->Ecrit("gl32.hlp", dossier->chemin().string());
    }
  }
  void Attend(int statut, const std::string& dit, const QStringList& options = {}) {
    const Issue issue = Compare(un, autre, options);
    EXPECT_EQ(issue.statut, statut) << issue.dit;
    EXPECT_THAT(issue.dit, HasSubstr(dit));
  }

  DossierEssai un{"un [dossier] à l'œuvre. "};
  DossierEssai autre{"autre * "};
};

TEST_F(Comparaison, DeuxDossiersPareilsLeSont) {
  Attend(0, "6 fichiers comparés octet par octet, 0 écarts");
}

TEST_F(Comparaison, UnSeulOctetChangeSeDit) {
  for (const char* nom :
       {"GLR4.DAT", "GLR4.stp", "IMAGE/a.jpg", "MesNotes.txt", "SAUVE/GLR2.DAT"}) {
    const std::string avant = autre.Lit(nom);
    std::string octets = avant;
    octets.back() = static_cast<char>(octets.back() ^ 1);
    autre.Ecrit(nom, octets);
    Attend(1, "DIFFÉRENT : " + std::string(nom) + ", " + std::to_string(octets.size()) + " et ");
    Attend(1, "1 qui diffèrent, le premier au " + std::to_string(octets.size()) + "e");
    Attend(1, " 1 écarts");
    autre.Ecrit(nom, avant);
  }
  Attend(0, " 0 écarts");
}

TEST_F(Comparaison, UnFichierPlusCourtSeDit) {
  autre.Ecrit("MesNotes.txt", "Note");
  Attend(1, "DIFFÉRENT : MesNotes.txt, 5 et 4 octets");
}

TEST_F(Comparaison, UnFichierQuiManqueSeDitDesDeuxCotes) {
  un.Supprime("MesNotes.txt");
  autre.Supprime("IMAGE/a.jpg");
  autre.Supprime("gl32.hlp");
  Attend(1, "SEULEMENT dans " + autre.chemin().string() + " : MesNotes.txt");
  Attend(1, "SEULEMENT dans " + un.chemin().string() + " : IMAGE/a.jpg");
  Attend(1, "SEULEMENT dans " + un.chemin().string() + " : gl32.hlp");
  Attend(1, " 3 écarts");
}

TEST_F(Comparaison, CeQueChaqueSystemeAPourLuiNeComptePas) {
  std::filesystem::create_directory(autre.chemin() / "platforms");
  for (const char* nom : {"gastrelle.exe", "Qt6Core.dll", "platforms/qwindows.dll", "qt.conf"}) {
    autre.Ecrit(nom, "x");
  }
  un.Ecrit("gastrelle", "y");
  un.Ecrit("imprimante.so", "y");
  Attend(0, " 0 écarts");
}

TEST_F(Comparaison, LeCheminDuDossierPeutDifferer) {
  un.Ecrit("GLR4.DAT", "GLR4.DATD:\\CUISINE D'\xC9T\xC9\\a.jpgD:\\CUISINE D'\xC9T\xC9\\b.jpg");
  autre.Ecrit("GLR4.DAT", "GLR4.DAT/home/\xE9/a.jpg/home/\xE9/b.jpg");
  const QStringList chemins{"--chemin-a", "D:\\CUISINE D'ÉTÉ", "--chemin-b", "/home/é"};
  Attend(0, "permis : GLR4.DAT, le chemin du dossier (2 fois)", chemins);
  Attend(1, "DIFFÉRENT : GLR4.DAT");
  autre.Ecrit("GLR4.DAT", "GLR4.DAT/home/\xE9/a.jpg/home/\xE9/c.jpg");
  Attend(1, "DIFFÉRENT : GLR4.DAT", chemins);
}

TEST_F(Comparaison, LeJourPeutDifferer) {
  constexpr std::int32_t veille = 46'346;
  autre.Ecrit("GLR2.DAT", EnteteRecettes(veille));
  un.Ecrit("recette.txt", "Gastrelle 2005 (Edition du 31/12/2026)\r\n1/2/2026");
  autre.Ecrit("recette.txt", "Gastrelle 2005 (Edition du 1/1/2027)\r\n1/2/2026");
  Attend(0, "permis : GLR2.DAT, les promenades sont de jours différents, 46347 et 46346");
  Attend(0,
         "permis : recette.txt, les promenades sont de jours différents, 31/12/2026 et 1/1/2027");
  autre.Ecrit("recette.txt", "Gastrelle 2005 (Edition du 1/1/2027)\r\n2/2/2026");
  Attend(1, "DIFFÉRENT : recette.txt");
}

TEST_F(Comparaison, SansPromenadeIlNYARienAComparer) {
  const DossierEssai vide;
  EXPECT_EQ(Compare(un, vide).statut, 2);
  EXPECT_EQ(Compare(un, un).statut, 2);
  EXPECT_THAT(Compare(un, autre, {"--autre", "x"}).dit,
              AllOf(HasSubstr("option inconnue"), Not(HasSubstr("écarts"))));
}

}  // namespace
}  // namespace gastrelle::essai
