// Opening by association with real handlers, in a desktop of the test's own: one program opens
// pictures, one handler's program is missing, nothing opens texts; addresses have their programs,
// whose lines are written in every way that is met.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Entrees.h"
#include "plateforme/Association.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::filesystem::path* bureau = nullptr;

constexpr std::chrono::milliseconds unPas{10};

/// The arguments that a handler was given, once it has run; none if it doesn't within that time.
std::vector<std::string> Recus(std::chrono::milliseconds patience = std::chrono::seconds(5)) {
  const std::filesystem::path recu = *bureau / "recu";
  for (auto passe = unPas; passe < patience && !std::filesystem::exists(recu); passe += unPas) {
    std::this_thread::sleep_for(unPas);
  }
  std::ifstream entree(recu);
  std::vector<std::string> arguments;
  for (std::string argument; std::getline(entree, argument, '\0');) {
    arguments.push_back(argument);
  }
  std::filesystem::remove(recu);
  return arguments;
}

std::string Document(const std::string& nom, const std::string& contenu) {
  std::ofstream(*bureau / nom) << contenu;
  return (*bureau / nom).string();
}

TEST(AssociationReelle, OuvreUneImageAvecSonProgramme) {
  const std::string image = Document("Crème brûlée.png", "\x89PNG\r\n\x1a\n");
  EXPECT_EQ(AssociationSysteme().Ouvre(image), Ouverture::ouverte);
  EXPECT_THAT(Recus(), ElementsAre(image));
}

TEST(AssociationReelle, OuvreUneImageQuelQueSoitSonNom) {
  for (const char* nom : {"l'œuf \"dur\" $(touch x).png", "-tarte; à 50 %.png", "a:b#c?d.png",
                          "deux\nlignes.png", "100%25.png"}) {
    const std::string image = Document(nom, "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(AssociationSysteme().Ouvre(image), Ouverture::ouverte) << nom;
    EXPECT_THAT(Recus(), ElementsAre(image));
  }
}

TEST(AssociationReelle, OuvreUnDocumentASaSection) {
  const std::string image = Document("plan.png", "\x89PNG\r\n\x1a\n");
  EXPECT_EQ(AssociationSysteme().Ouvre("file://" + image + "#contact"), Ouverture::ouverte);
  EXPECT_THAT(Recus(), ElementsAre(image));
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

TEST(AssociationReelle, CeQuiNEstPasUnFichierNEstPasAttendu) {
  const DossierEssai dossier;
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(dossier.chemin() / entree.nom);
    EXPECT_NE(AssociationSysteme().Ouvre((dossier.chemin() / entree.nom).string()),
              Ouverture::ouverte)
        << entree.nom;
  }
}

TEST(AssociationReelle, SansProgrammeUneAdresseNAAucuneAssociation) {
  for (const char* adresse : {"ftp://ftp.exemple.fr/", "tel:0102030405", "localhost:8080"}) {
    EXPECT_EQ(AssociationSysteme().Ouvre(adresse), Ouverture::aucuneAssociation) << adresse;
  }
}

/// What stands behind the scheme of an address, and as what its program gets it.
struct Hostile {
  std::string texte;
  std::string recu;
};

const std::vector<Hostile>& TextesHostiles() {
  static const std::vector<Hostile> textes{
      {"cuisine@exemple.fr", "cuisine@exemple.fr"},
      {"a b", "a%20b"},
      {" a ", "%20a%20"},
      {"a\" --attach=/etc/passwd \"b", "a%22%20--attach=/etc/passwd%20%22b"},
      {"a' --attach=/etc/passwd 'b", "a%27%20--attach=/etc/passwd%20%27b"},
      {"$(touch x)", "$(touch%20x)"},
      {"$(touch${IFS}x)", "$(touch$%7BIFS%7Dx)"},
      {"`touch x`", "%60touch%20x%60"},
      {"a;touch x", "a;touch%20x"},
      {"a&touch x&", "a&touch%20x&"},
      {"a|touch x", "a%7Ctouch%20x"},
      {"a>x", "a%3Ex"},
      {"a\ntouch x\n", "a%0Atouch%20x%0A"},
      {"a\r\n\tb", "a%0D%0A%09b"},
      {"a\x1b[2Jb\x7f", "a%1B[2Jb%7F"},
      {"%u %f %s %% %", "%u%20%f%20%s%20%%%20%"},
      {"-oProxyCommand=touch", "-oProxyCommand=touch"},
      {"--help", "--help"},
      {"# a", "#%20a"},
      {"a\\", "a%5C"},
      {"C:\\x\\y", "C:%5Cx%5Cy"},
      {"*?[a]~!", "*?[a]~!"},
      {"déjà%20codé & crème", "déjà%20codé%20&%20crème"},
      {"", ""},
      {std::string(256, 'a'), std::string(256, 'a')},
  };
  return textes;
}

/// A program for addresses: its scheme, how its line names the address, what comes before the
/// address in the argument that holds it.
struct Programme {
  const char* schema;
  const char* ligne;
  const char* devant;
  const char* derriere;
};

/// Quotes around the place of an address aren't allowed, but met: they enclose those that the
/// system puts there.
constexpr Programme programmesDAdresses[]{
    {"mailto", " %u", "", ""},
    {"https", " -- %U", "", ""},
    {"web+entre-guillemets", " \"%u\"", "'", "'"},
    {"web+entre-apostrophes", " '%u'", "", ""},
    {"web+par-interprete", " -c \"exec $0 %u\"", "exec $0 '", "'"},
};

class AdresseReelle : public testing::TestWithParam<Programme> {
 protected:
  void SetUp() override { std::filesystem::current_path(vide_.chemin()); }
  void TearDown() override {
    EXPECT_TRUE(std::filesystem::is_empty(vide_.chemin()));  // nobody has made a file x
    std::filesystem::current_path("/");
  }

 private:
  DossierEssai vide_;
};

TEST_P(AdresseReelle, ArriveEnUnSeulArgument) {
  const Programme& programme = GetParam();
  const std::string schema = std::string(programme.schema) + ":";
  for (const auto& [texte, recu] : TextesHostiles()) {
    SCOPED_TRACE(texte);
    EXPECT_EQ(AssociationSysteme().Ouvre(schema + texte), Ouverture::ouverte);
    std::vector<std::string> recus = Recus();
    ASSERT_THAT(recus, testing::Not(IsEmpty()));
    EXPECT_EQ(recus.back(), programme.devant + schema + recu + programme.derriere);
    recus.pop_back();
    EXPECT_THAT(recus, testing::AnyOf(IsEmpty(), ElementsAre("--"), ElementsAre("-c")));
  }
}

INSTANTIATE_TEST_SUITE_P(Programmes, AdresseReelle, testing::ValuesIn(programmesDAdresses),
                         [](const testing::TestParamInfo<Programme>& cas) {
                           return "Ligne" + std::to_string(cas.index);
                         });

/// Nothing was opened.
void AttendRien() {
  EXPECT_THAT(Recus(std::chrono::milliseconds(200)), IsEmpty());
}

TEST(AdresseEntiere, SonSchemaSEcritAussiEnCapitales) {
  EXPECT_EQ(AssociationSysteme().Ouvre("MAILTO:a@exemple.fr"), Ouverture::ouverte);
  EXPECT_THAT(Recus(), ElementsAre("MAILTO:a@exemple.fr"));
}

TEST(AdresseEntiere, UnProgrammeQuiNeLaDemandePasNeLaRecoitPas) {
  EXPECT_EQ(AssociationSysteme().Ouvre("web+sourd:$(touch x)"), Ouverture::ouverte);
  EXPECT_THAT(Recus(), ElementsAre("sans adresse"));
}

TEST(TexteSansSchema, NeSOuvrePasDOuQueLeProgrammeParte) {
  std::filesystem::current_path(*bureau);
  for (const char* nom : {"photo.png", "www.exemple.fr", "-x", "a:b", "file:photo.png"}) {
    static_cast<void>(Document(nom, "\x89PNG\r\n\x1a\n"));
  }
  for (const std::string texte : {"",
                                  " ",
                                  "photo.png",
                                  "./photo.png",
                                  "../photo.png",
                                  "~/photo.png",
                                  "www.exemple.fr",
                                  "cuisine@exemple.fr",
                                  "//",
                                  "-x",
                                  "--help",
                                  "-oProxyCommand=touch x",
                                  "-x:y",
                                  "a:b",
                                  "C:\\x",
                                  "c:/photo.png",
                                  ":",
                                  ":a",
                                  "1a:b",
                                  "é:b",
                                  "a b:c",
                                  "$(touch x)",
                                  "$(touch x):a",
                                  "file:",
                                  "file:photo.png",
                                  "file:./photo.png",
                                  "\\\\serveur\\photo.png",
                                  " https://exemple.fr/",
                                  "\nhttps://exemple.fr/"}) {
    EXPECT_NE(AssociationSysteme().Ouvre(texte), Ouverture::ouverte) << texte;
  }
  AttendRien();
  std::filesystem::current_path("/");
}

TEST(TexteSansSchema, EchoueSansRienDire) {
  for (const char* texte : {"", "photo.png", "www.exemple.fr", "-x", "C:\\x", "a:b", ":a"}) {
    EXPECT_EQ(AssociationSysteme().Ouvre(texte), Ouverture::echec) << texte;
  }
}

TEST(TexteSansSchema, UnOctetNulNEnCacheRien) {
  const std::string image = Document("nul.png", "\x89PNG\r\n\x1a\n");
  for (const std::string& texte : {image, std::string("mailto:a@exemple.fr")}) {
    EXPECT_EQ(AssociationSysteme().Ouvre(texte + '\0' + "b"), Ouverture::echec);
    EXPECT_EQ(AssociationSysteme().Ouvre(texte + '\0'), Ouverture::echec);
  }
  AttendRien();
}

/// The desktop: programs for pictures and pages, and those for addresses. Each writes down its
/// arguments, a null byte behind each.
void Meuble(const DossierEssai& dossier) {
  namespace fs = std::filesystem;
  for (const char* nom : {"data/applications", "config", "systeme"}) {
    fs::create_directories(*bureau / nom);
  }
  fs::create_directory_symlink("/usr/share/mime", *bureau / "systeme/mime");
  const std::string recu = (*bureau / "recu").string();
  dossier.Ecrit("ouvreur", "#!/bin/sh\nprintf '%s\\0' \"$@\" > '" + recu + ".~' && mv '" + recu +
                               ".~' '" + recu + "'\n");
  fs::permissions(*bureau / "ouvreur", fs::perms::owner_all);
  const auto programme = [&](const std::string& nom, const std::string& commande,
                             const std::string& type) {
    dossier.Ecrit("data/applications/" + nom + ".desktop",
                  "[Desktop Entry]\nType=Application\nName=" + nom + "\nExec=" + commande +
                      "\nMimeType=" + type + ";\n");
  };
  const std::string ouvreur = (*bureau / "ouvreur").string();
  programme("images", ouvreur + " %f", "image/png");
  programme("pages", "/absent/navigateur %f", "text/html");
  programme("sourd", ouvreur + " \"sans adresse\"", "x-scheme-handler/web+sourd");
  for (const Programme& p : programmesDAdresses) {
    programme(p.schema, ouvreur + p.ligne, std::string("x-scheme-handler/") + p.schema);
  }
  ::setenv("HOME", bureau->c_str(), 1);
  ::setenv("XDG_DATA_HOME", (*bureau / "data").c_str(), 1);
  ::setenv("XDG_CONFIG_HOME", (*bureau / "config").c_str(), 1);
  ::setenv("XDG_DATA_DIRS", (*bureau / "systeme").c_str(), 1);
}

}  // namespace
}  // namespace gastrelle::essai

int main(int argc, char** argv) {
  using namespace gastrelle::essai;
  const DossierEssai dossier;
  bureau = &dossier.chemin();
  Meuble(dossier);
  if (std::system(
          ("update-desktop-database '" + (*bureau / "data/applications").string() + "'").c_str()) !=
      0) {
    return 2;  // the package desktop-file-utils is missing
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
