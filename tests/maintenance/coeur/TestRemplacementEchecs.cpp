// The replacement of all recipes that can't be done: the program ends, the old recipes stay.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Depart.h"
#include "doublures/Pannes.h"
#include "maintenance/MaintenanceEssai.h"
#include "maintenance/Remplacement.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class RemplacementManque : public testing::TestWithParam<FabriqueRecettes> {
 protected:
  void SetUp() override {
    b.AjouteFamille("Desserts");
    b.Demarre();
    b.AjouteRecette(3, "Tarte", "Une tarte.", "/tarte.png");
    b.Redemarre();
    avant = LesQuatre(b.dossier);
  }

  void AttendFatal() {
    b.messages.vus.clear();
    b.pointeur.Sablier();
    EXPECT_EQ(FinDe([&] { RemplaceRecettes(*b.module, GetParam()); }), 1);
    EXPECT_THAT(b.messages.vus, ElementsAre(Fatal()));
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_TRUE(b.module->erreurFatale);  // a stop while the message is up must know
  }
  /// The old files, whole, under the names that they were put aside by.
  void AttendMisDeCote() const {
    for (std::size_t i = 0; i < avant.size(); ++i) {
      const std::string nom = NomTemporaire(fichiersRecettes.at(i));
      EXPECT_EQ(b.dossier.Lit(nom), avant.at(i)) << nom;
    }
  }

  Bibliotheque b;
  std::array<std::string, 4> avant;
};

TEST_P(RemplacementManque, UnFichierQuiNeSeRenommePasLeurRendLeursNoms) {
  for (const char* debut :
       {"renomme GLR1.DAT", "renomme GLR2.DAT", "renomme GLR3.DAT", "renomme GLR4.DAT"}) {
    b.disque.EchoueSur(debut, Panne::permissionRefusee);
    AttendFatal();
    EXPECT_EQ(LesQuatre(b.dossier), avant) << debut;
    b.disque.Guerit();
    b.Redemarre();
  }
}

TEST_P(RemplacementManque, CeQuiResteDUnAutreTempsNePrendLaPlaceDAucunFichier) {
  b.dossier.Ecrit("GLR3.tmp", "d'un autre temps");
  b.dossier.Ecrit("GLR4.tmp", "d'un autre temps");
  b.disque.EchoueSur("renomme GLR2.DAT", Panne::permissionRefusee);
  AttendFatal();
  EXPECT_EQ(LesQuatre(b.dossier), avant);
  EXPECT_EQ(b.dossier.Lit("GLR3.tmp"), "d'un autre temps");
}

TEST_P(RemplacementManque, UnDossierDuNomProvisoireLeurRendAussiLeursNoms) {
  fs::create_directory(b.dossier.chemin() / "GLR3.tmp");
  AttendFatal();
  EXPECT_EQ(LesQuatre(b.dossier), avant);
}

TEST_P(RemplacementManque, UnFichierAbsentLaisseLesAutresALeurNom) {
  b.dossier.Supprime("GLR4.DAT");
  avant[3].clear();
  AttendFatal();
  EXPECT_EQ(LesQuatre(b.dossier), avant);
  EXPECT_FALSE(b.dossier.A("GLR4.DAT"));
}

/// A factory copy that isn't one.
struct MauvaiseOrigine {
  const char* nom;
  std::string (*abime)(std::string octets);
};

const std::array<MauvaiseOrigine, 6> mauvaises{{
    {"GLR1.stp", [](std::string o) { return AvecCompte(std::move(o), 0); }},
    {"GLR2.stp", [](std::string o) { return AvecCompte(std::move(o), 0); }},
    {"GLR1.stp", [](std::string o) { return o.replace(2, 12, "AUTRENOM.DAT"); }},
    {"GLR2.stp", [](std::string o) { return o.replace(6, 9, " GLR2.DAT"); }},
    {"GLR1.stp", [](std::string) { return std::string(); }},
    {"GLR2.stp", [](std::string) { return std::string(); }},
}};

TEST_P(RemplacementManque, UneMauvaiseOrigineLaisseLesAnciennesEntieresDeCote) {
  for (const MauvaiseOrigine& mauvaise : mauvaises) {
    const std::string bonne = b.dossier.Lit(mauvaise.nom);
    b.dossier.Ecrit(mauvaise.nom, mauvaise.abime(bonne));
    AttendFatal();
    AttendMisDeCote();
    b.dossier.Ecrit(mauvaise.nom, bonne);
    for (std::size_t i = 0; i < avant.size(); ++i) {
      b.dossier.Ecrit(nomsRecettes.at(i), avant.at(i));
    }
    b.Redemarre();
  }
}

TEST_P(RemplacementManque, LaSignatureDesFamillesSeRogneDesDeuxBouts) {
  std::string octets = b.dossier.Lit("GLR1.stp");
  octets.replace(2, 16, "   GASTRELF.DAT ");
  b.dossier.Ecrit("GLR1.stp", octets);
  RemplaceRecettes(*b.module, GetParam());
  EXPECT_FALSE(b.dossier.A("GLR1.tmp"));
}

TEST_P(RemplacementManque, UneOrigineQuiPartEntreTempsLaisseLesAnciennesDeCote) {
  for (const char* nom : {"GLR1.stp", "GLR2.stp", "GLR3.stp", "GLR4.stp"}) {
    const std::string bonne = b.dossier.Lit(nom);
    b.dossier.Supprime(nom);
    AttendFatal();
    AttendMisDeCote();
    b.dossier.Ecrit(nom, bonne);
    for (std::size_t i = 0; i < avant.size(); ++i) {
      b.dossier.Ecrit(nomsRecettes.at(i), avant.at(i));
    }
    b.Redemarre();
  }
}

INSTANTIATE_TEST_SUITE_P(LesDeux, RemplacementManque,
                         testing::Values(FabriqueUneRecette, FabriqueOrigines),
                         [](const auto& cas) { return cas.index == 0 ? "Vide" : "Reinitialise"; });

// Only the whole copies are looked at as pools: the others are made of pieces.
class ReinitialisationManquee : public RemplacementManque {};

TEST_P(ReinitialisationManquee, UneReserveSansSignatureLaisseLesAnciennesDeCote) {
  for (const char* nom : {"GLR3.stp", "GLR4.stp"}) {
    const std::string bonne = b.dossier.Lit(nom);
    b.dossier.Ecrit(nom, "x" + bonne);
    AttendFatal();
    AttendMisDeCote();
    b.dossier.Ecrit(nom, bonne);
    for (std::size_t i = 0; i < avant.size(); ++i) {
      b.dossier.Ecrit(nomsRecettes.at(i), avant.at(i));
    }
    b.Redemarre();
  }
}

INSTANTIATE_TEST_SUITE_P(Seule, ReinitialisationManquee, testing::Values(FabriqueOrigines));

}  // namespace
}  // namespace gastrelle::essai
