// Opening by association with real handlers, in a desktop of the test's own: one program opens
// pictures, one handler's program is missing, nothing opens texts.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/Association.h"

namespace gastrelle::essai {
namespace {

const std::filesystem::path* bureau = nullptr;

/// The path that the handler was given, once it has run; empty if it doesn't within five seconds.
std::string CheminRecu() {
  const std::filesystem::path recu = *bureau / "recu";
  for (int i = 0; i < 500 && !std::filesystem::exists(recu); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  std::ifstream entree(recu);
  return {std::istreambuf_iterator<char>(entree), {}};
}

std::string Document(const std::string& nom, const std::string& contenu) {
  std::ofstream(*bureau / nom) << contenu;
  return (*bureau / nom).string();
}

TEST(AssociationReelle, OuvreUneImageAvecSonProgramme) {
  const std::string image = Document("Crème brûlée.png", "\x89PNG\r\n\x1a\n");
  EXPECT_EQ(AssociationSysteme().Ouvre(image), Ouverture::ouverte);
  EXPECT_EQ(CheminRecu(), image);
}

TEST(AssociationReelle, OuvreUnDocumentASaSection) {
  const std::string image = Document("plan.png", "\x89PNG\r\n\x1a\n");
  EXPECT_EQ(AssociationSysteme().Ouvre("file://" + image + "#contact"), Ouverture::ouverte);
  EXPECT_EQ(CheminRecu(), image);
}

TEST(AssociationReelle, DitQuAucunProgrammeNOuvreUnTexte) {
  EXPECT_EQ(AssociationSysteme().Ouvre(Document("notes.txt", "texte")),
            Ouverture::aucuneAssociation);
}

TEST(AssociationReelle, UnProgrammeQuiManqueVautAucun) {
  EXPECT_EQ(AssociationSysteme().Ouvre(Document("page.html", "<html></html>")),
            Ouverture::aucuneAssociation);
}

TEST(AssociationReelle, UnDocumentQuiManqueEstUnAutreEchec) {
  EXPECT_EQ(AssociationSysteme().Ouvre((*bureau / "absente.png").string()), Ouverture::echec);
}

TEST(AssociationReelle, SansNavigateurUneAdresseNAAucuneAssociation) {
  EXPECT_EQ(AssociationSysteme().Ouvre("https://fr.wikibooks.org/"), Ouverture::aucuneAssociation);
}

}  // namespace
}  // namespace gastrelle::essai

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  using namespace gastrelle::essai;
  const DossierEssai dossier;
  bureau = &dossier.chemin();
  const fs::path applications = *bureau / "data/applications";
  fs::create_directories(applications);
  fs::create_directories(*bureau / "config");
  fs::create_directories(*bureau / "systeme");
  fs::create_directory_symlink("/usr/share/mime", *bureau / "systeme/mime");
  dossier.Ecrit("ouvreur", "#!/bin/sh\nprintf %s \"$1\" > '" + (*bureau / "recu").string() + "'\n");
  fs::permissions(*bureau / "ouvreur", fs::perms::owner_all);
  const auto programme = [&](const std::string& nom, const std::string& commande,
                             const std::string& type) {
    dossier.Ecrit("data/applications/" + nom + ".desktop",
                  "[Desktop Entry]\nType=Application\nName=" + nom + "\nExec=" + commande +
                      " %f\nMimeType=" + type + ";\n");
  };
  programme("images", (*bureau / "ouvreur").string(), "image/png");
  programme("pages", "/absent/navigateur", "text/html");
  ::setenv("HOME", bureau->c_str(), 1);
  ::setenv("XDG_DATA_HOME", (*bureau / "data").c_str(), 1);
  ::setenv("XDG_CONFIG_HOME", (*bureau / "config").c_str(), 1);
  ::setenv("XDG_DATA_DIRS", (*bureau / "systeme").c_str(), 1);
  if (std::system(("update-desktop-database '" + applications.string() + "'").c_str()) != 0) {
    return 2;  // the package desktop-file-utils is missing
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
