// Documents of the program, sent to the programs that a desktop associates with them.

#include <chrono>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "association/BureauEssai.h"
#include "association/EnvoiReel.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const BureauEssai* bureau = nullptr;

std::vector<std::string> Recus() {
  return bureau->Recus(std::chrono::seconds(5));
}

TEST(DocumentEnvoye, ArriveAuProgrammeDeSonExtension) {
  EnvoiReel envoi;
  const std::string chemin = envoi.b.dossier.chemin().string();
  envoi.Envoie(Extension::txt);
  EXPECT_THAT(Recus(), ElementsAre("bloc-notes", chemin + "/truc.txt"));
  envoi.Envoie(Extension::doc);
  EXPECT_THAT(Recus(), ElementsAre("traitement de texte", chemin + "/truc.doc"));
  EXPECT_THAT(envoi.b.messages.vus, IsEmpty());
}

TEST(DocumentEnvoye, ArriveDUnDossierQuelQueSoitSonNom) {
  for (const char* nom :
       {"Ma cave à vins", "l'œuf \"dur\"", "$(touch x)", "`touch x`", "a;touch x", "a&touch x",
        "a|touch x", "a>x", "-tarte", "a:b#c?d", "100%25 %f %u", "cuillère\nà soupe", "日本"}) {
    EnvoiReel envoi(nom);
    const std::string chemin = envoi.b.dossier.chemin().string();
    for (const auto& [extension, document] :
         {std::pair{Extension::txt, "/truc.txt"}, std::pair{Extension::doc, "/truc.doc"}}) {
      envoi.Envoie(extension);
      const std::vector<std::string> recus = Recus();
      ASSERT_EQ(recus.size(), 2U) << nom;
      EXPECT_EQ(recus.back(), chemin + document);
    }
    EXPECT_THAT(envoi.b.messages.vus, IsEmpty());
  }
}

TEST(DocumentEnvoye, EstEcritQuandLeProgrammeLOuvre) {
  EnvoiReel envoi;
  envoi.b.horloge.date = std::chrono::year{2026} / 3 / 5;
  envoi.Envoie(Extension::doc);
  ASSERT_EQ(Recus().size(), 2U);
  EXPECT_EQ(envoi.b.dossier.Lit("truc.doc").substr(0, 36), "Gastrelle 2005 (Edition du 5/3/2026)");
}

}  // namespace
}  // namespace gastrelle::essai

int main(int argc, char** argv) {
  using namespace gastrelle::essai;
  const BureauEssai nouveau;
  bureau = &nouveau;
  nouveau.Installe("bloc-notes", nouveau.ouvreur() + " bloc-notes %f", "text/plain");
  nouveau.Installe("traitement", nouveau.ouvreur() + " \"traitement de texte\" %f",
                   "application/msword");
  if (!nouveau.Publie()) {
    return 2;  // the package desktop-file-utils is missing
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
