// A user's folder that gets another edition: what the factory brings is renewed, what the user has
// stays as it is.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accidents/Accident.h"
#include "data/DossierPersonnel.h"
#include "doublures/DisqueEssai.h"
#include "doublures/FabriqueInstallee.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;

const std::vector<std::string> imagesNouvelles{"agneau.jpg", "boeuf.jpg", "porc.jpg"};

class Renouvellement : public testing::Test {
 protected:
  Renouvellement() {
    PoseFabrique(usine.chemin(), "1.1.0", imagesNouvelles);
    Vieillit();
  }

  /// The user's folder as the edition before left it, after some use.
  void Vieillit() {
    fs::remove_all(chezLui.chemin());
    PoseFabrique(chezLui.chemin(), "1.0.0");
    for (const auto& [nom, octets] : siens) {
      if (octets == "/") {
        fs::create_directory(chezLui.chemin() / nom);
      } else {
        chezLui.Ecrit(nom, octets);
      }
    }
    avant = ContenuDe(chezLui.chemin());
  }

  void Tente() { RenouvelleDossierPersonnel(modeles, personnel); }

  /// The new edition, with all that is the user's.
  [[nodiscard]] Contenu Attendu() const {
    Contenu attendu = siens;
    attendu.merge(ContenuDe(usine.chemin()));
    attendu["IMAGE/agneau.jpg"] = avant.at("IMAGE/agneau.jpg");
    return attendu;
  }

  /// What the folder holds, but for the empty folders that stay where the clearing up itself was
  /// cut short.
  [[nodiscard]] Contenu SansRestes() const {
    Contenu trouve = ContenuDe(chezLui.chemin());
    trouve.erase("EDITION~/IMAGE");
    trouve.erase("EDITION~");
    return trouve;
  }

  /// Names of the factory's pieces, among all.
  static bool EstPiece(const std::string& nom) {
    return nom.ends_with(".stp") || nom.ends_with(".html") || nom == "gl32.hlp" ||
           nom == "Exclamation" || nom == "EDITION";
  }

  const Contenu siens{{"GLR1.DAT", "mes recettes"},    {"GLV2.DAT", "ma cave"},
                      {"GLPREF.DAT", "abcdef"},        {"MesNotes.txt", "notes"},
                      {"recette.txt", "document"},     {"SAUVE", "/"},
                      {"SAUVE/GLR1.DAT", "d'hier"},    {"IMAGE/moi.jpg", "ma photo"},
                      {"IMAGE/porc.jpg", "la mienne"}, {"GLR1.DAT~", "à quelqu'un"}};
  DossierEssai usine;
  DossierEssai chezLui;
  DisqueEssai modeles{usine.chemin()};
  DisqueEssai personnel{chezLui.chemin()};
  Contenu avant;
};

TEST_F(Renouvellement, RemplaceLaFabriqueEtLaisseLeReste) {
  Tente();
  EXPECT_EQ(ContenuDe(chezLui.chemin()), Attendu());
}

TEST_F(Renouvellement, DeLaMemeEditionNeChangeRien) {
  usine.Ecrit("EDITION", "1.0.0\n");
  Tente();
  EXPECT_THAT(personnel.changements(), IsEmpty());
  EXPECT_EQ(ContenuDe(chezLui.chemin()), avant);
}

TEST_F(Renouvellement, DUneEditionPlusAncienneVautAussi) {
  usine.Ecrit("EDITION", "0.9.0\n");
  Tente();
  EXPECT_EQ(ContenuDe(chezLui.chemin()), Attendu());
}

TEST_F(Renouvellement, DUnDossierSansEditionVautAussi) {
  chezLui.Supprime("EDITION");
  Tente();
  EXPECT_EQ(ContenuDe(chezLui.chemin()), Attendu());
}

TEST_F(Renouvellement, CommenceUneFoisToutEcritEtFinitParLEdition) {
  Tente();
  const std::vector<std::string> changements = personnel.changements();
  const auto premier =
      std::find_if(changements.begin(), changements.end(),
                   [](const std::string& ligne) { return ligne.starts_with("renomme EDITION~/"); });
  EXPECT_TRUE(std::none_of(premier, changements.end(), [](const std::string& ligne) {
    return ligne.starts_with("écrit ") || ligne.starts_with("copie ");
  }));
  const auto dernier =
      std::find_if(changements.rbegin(), changements.rend(),
                   [](const std::string& ligne) { return ligne.starts_with("renomme "); });
  ASSERT_NE(dernier, changements.rend());
  EXPECT_EQ(*dernier, "renomme EDITION~/EDITION EDITION");
}

TEST_F(Renouvellement, SurUnDisquePleinLaisseLAncienneEntiere) {
  personnel.EchoueSur("écrit ", Panne::disquePlein);
  EXPECT_EQ(PanneDe([&] { Tente(); }), Panne::disquePlein);
  EXPECT_EQ(ContenuDe(chezLui.chemin()), avant);
  personnel.Guerit();
  Tente();
  EXPECT_EQ(ContenuDe(chezLui.chemin()), Attendu());
}

TEST_F(Renouvellement, QuiEchoueNImporteOuGardeUnFichierEntierSousChaqueNom) {
  for (DisqueEssai* disque : {&modeles, &personnel}) {
    std::size_t n = 1;
    for (bool atteint = true; atteint; ++n) {
      SCOPED_TRACE(n);
      Vieillit();
      disque->OublieJournal();
      disque->EchoueALAppel(n, Panne::entreeSortie, Maniere::moitieEcrite);
      PasseOutre([&] { Tente(); });
      atteint = disque->journal().size() >= n;
      disque->Guerit();
      const Contenu attendu = Attendu();
      for (const auto& [nom, octets] : SansRestes()) {
        ASSERT_TRUE(attendu.contains(nom)) << nom;
        EXPECT_TRUE(octets == attendu.at(nom) || (EstPiece(nom) && octets == avant.at(nom))) << nom;
      }
      Tente();
      ASSERT_EQ(SansRestes(), attendu);
    }
    EXPECT_GT(n, 50U);
  }
}

TEST_F(Renouvellement, CoupeNImporteOuSAcheveAuDepartSuivant) {
  Tente();
  const std::vector<Coup> coups = CoupsDe(personnel.journal());
  ASSERT_GT(coups.size(), 100U);
  for (const Coup& coup : coups) {
    SCOPED_TRACE(coup.ligne);
    Vieillit();
    Tue(personnel, coup, [&] { Tente(); });
    for (const auto& [nom, octets] : siens) {
      ASSERT_EQ(ContenuDe(chezLui.chemin())[nom], octets) << nom;
    }
    Tente();
    ASSERT_EQ(SansRestes(), Attendu());
  }
}

TEST_F(Renouvellement, NeSuitPasDeLien) {
  const DossierEssai ailleurs;
  ailleurs.Ecrit("GLR1.stp", "à moi");
  for (const char* nom : {"GLR1.stp", "EDITION"}) {
    chezLui.Supprime(nom);
    fs::create_symlink(ailleurs.chemin() / "GLR1.stp", chezLui.chemin() / nom);
  }
  fs::create_symlink(ailleurs.chemin(), chezLui.chemin() / "EDITION~");
  fs::create_symlink("/nulle/part", chezLui.chemin() / "IMAGE/boeuf.jpg");
  Tente();
  Contenu attendu = Attendu();
  attendu["EDITION~"] = "-> " + ailleurs.chemin().string();
  attendu["IMAGE/boeuf.jpg"] = "-> /nulle/part";
  EXPECT_EQ(ContenuDe(chezLui.chemin()), attendu);
  EXPECT_EQ(ContenuDe(ailleurs.chemin()), (Contenu{{"GLR1.stp", "à moi"}}));
}

TEST_F(Renouvellement, AjouteAuDossierDImagesQueLUsagerGardeAilleurs) {
  const DossierEssai ailleurs;
  fs::remove_all(chezLui.chemin() / "IMAGE");
  ailleurs.Ecrit("porc.jpg", "la mienne");
  fs::create_directory_symlink(ailleurs.chemin(), chezLui.chemin() / "IMAGE");
  personnel.EchoueSur("renomme EDITION~/IMAGE/", Panne::accesFichier);  // another disk
  Tente();
  EXPECT_EQ(ailleurs.Lit("porc.jpg"), "la mienne");
  EXPECT_EQ(ailleurs.Lit("boeuf.jpg"), usine.Lit("IMAGE/boeuf.jpg"));
  EXPECT_TRUE(fs::is_symlink(chezLui.chemin() / "IMAGE"));
  EXPECT_EQ(chezLui.Lit("EDITION"), "1.1.0\n");
  EXPECT_FALSE(chezLui.A("EDITION~"));
}

TEST_F(Renouvellement, RefaitLeDossierDImagesQuiManque) {
  fs::remove_all(chezLui.chemin() / "IMAGE");
  Tente();
  EXPECT_EQ(chezLui.Lit("IMAGE/porc.jpg"), usine.Lit("IMAGE/porc.jpg"));
}

TEST_F(Renouvellement, UnDossierALaPlaceDUneCopieLArreteAvantTout) {
  fs::remove(chezLui.chemin() / "GLMC.stp");
  fs::create_directory(chezLui.chemin() / "GLMC.stp");
  avant = ContenuDe(chezLui.chemin());
  EXPECT_THROW(Tente(), ErreurExecution);
  EXPECT_EQ(ContenuDe(chezLui.chemin()), avant);
  EXPECT_THAT(personnel.changements(), IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
