// Opening by association with real handlers, in a desktop of the test's own: one program opens
// pictures, one handler's program is missing, nothing opens texts; addresses have their programs,
// whose lines are written in every way that is met.

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "association/BureauEssai.h"
#include "association/EnvoiReel.h"
#include "data/Texte1252.h"
#include "doublures/Entrees.h"
#include "plateforme/Association.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const BureauEssai* bureau = nullptr;

std::vector<std::string> Recus(std::chrono::milliseconds patience = std::chrono::seconds(5)) {
  return bureau->Recus(patience);
}

std::string Document(const std::string& nom, const std::string& contenu) {
  std::ofstream(bureau->chemin() / nom) << contenu;
  return (bureau->chemin() / nom).string();
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

TEST(AssociationReelle, DitQuAucunProgrammeNOuvreUnDocumentEnvoye) {
  EnvoiReel envoi;
  envoi.Envoie(Extension::txt);
  envoi.Envoie(Extension::doc);
  std::vector<std::string> dits;
  for (const MessageVu& message : envoi.b.messages.vus) {
    EXPECT_EQ(message.icone, Icone::information);
    dits.push_back(VersUtf8(message.texte));
  }
  EXPECT_THAT(dits, ElementsAre("Aucune association n'est définie pour les fichiers *.TXT",
                                "Aucune association n'est définie pour les fichiers *.DOC"));
  EXPECT_TRUE(envoi.b.dossier.A("truc.txt"));
  EXPECT_TRUE(envoi.b.dossier.A("truc.doc"));
}

TEST(AssociationReelle, UnProgrammeQuiManqueVautAucun) {
  EXPECT_EQ(AssociationSysteme().Ouvre(Document("page.html", "<html></html>")),
            Ouverture::aucuneAssociation);
}

TEST(AssociationReelle, UnDocumentQuiManqueEstUnAutreEchec) {
  EXPECT_EQ(AssociationSysteme().Ouvre((bureau->chemin() / "absente.png").string()),
            Ouverture::echec);
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
  std::filesystem::current_path(bureau->chemin());
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

/// Programs for pictures and pages, and those for addresses.
void Meuble(const BureauEssai& nouveau) {
  const std::string& ouvreur = nouveau.ouvreur();
  nouveau.Installe("images", ouvreur + " %f", "image/png");
  nouveau.Installe("pages", "/absent/navigateur %f", "text/html");
  nouveau.Installe("sourd", ouvreur + " \"sans adresse\"", "x-scheme-handler/web+sourd");
  for (const Programme& p : programmesDAdresses) {
    nouveau.Installe(p.schema, ouvreur + p.ligne, std::string("x-scheme-handler/") + p.schema);
  }
}

}  // namespace
}  // namespace gastrelle::essai

int main(int argc, char** argv) {
  using namespace gastrelle::essai;
  const BureauEssai nouveau;
  bureau = &nouveau;
  Meuble(nouveau);
  if (!nouveau.Publie()) {
    return 2;  // the package desktop-file-utils is missing
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
