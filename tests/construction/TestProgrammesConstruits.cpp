// What was built and what is installed, read from the files themselves.

#include <cstdlib>
#include <elf.h>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "construction/Elf.h"
#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ContainsRegex;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Releve {
  std::vector<std::string> chargeables;
  std::vector<std::string> avecDossiers;
};

Releve Parcourt(const fs::path& dossier) {
  constexpr std::size_t tete = 256;  // enough to know a program by
  Releve releve;
  for (const auto& entree : fs::recursive_directory_iterator(dossier)) {
    if (!entree.is_regular_file() || !EstChargeable(OctetsDe(entree.path(), tete))) {
      continue;
    }
    releve.chargeables.push_back(entree.path().string());
    if (NommeDesDossiers(OctetsDe(entree.path()))) {
      releve.avecDossiers.push_back(entree.path().string());
    }
  }
  return releve;
}

TEST(ProgrammesConstruits, NeDisentPasOuChercherLeursBibliotheques) {
  const Releve releve = Parcourt(DOSSIER_CONSTRUIT);
  EXPECT_THAT(releve.chargeables, Contains(EndsWith("Gastrelle/gastrelle")));
  EXPECT_THAT(releve.chargeables, Contains(EndsWith("Gastrelle/imprimante.so")));
  EXPECT_THAT(releve.chargeables, Contains(EndsWith("usine/fabrique")));
  EXPECT_THAT(releve.chargeables, Contains(EndsWith("libpiege.so")));
  EXPECT_THAT(releve.avecDossiers, IsEmpty());
}

TEST(ProgrammesConstruits, NeLeDisentPasNonPlusUneFoisInstalles) {
  const DossierEssai la;
  const std::string commande =
      std::string("'" COMMANDE_CMAKE "' --install '" DOSSIER_CONSTRUIT "' --prefix '") +
      la.chemin().string() + "' >/dev/null";
  ASSERT_EQ(std::system(commande.c_str()), 0);
  const Releve releve = Parcourt(la.chemin());
  EXPECT_THAT(releve.chargeables, Contains(EndsWith("/gastrelle")));
  EXPECT_THAT(releve.chargeables, Contains(EndsWith("/imprimante.so")));
  EXPECT_THAT(releve.avecDossiers, IsEmpty());
}

TEST(ProgrammesConstruits, UnDossierNommeSeVoit) {
  for (const Elf64_Sxword etiquette : {DT_RPATH, DT_RUNPATH}) {
    std::string octets = OctetsDe(PROGRAMME);
    ASSERT_FALSE(NommeDesDossiers(octets));
    const auto ou = Entree(octets, DT_DEBUG);  // an entry that nobody misses here
    ASSERT_TRUE(ou);
    octets.replace(*ou, sizeof etiquette, reinterpret_cast<const char*>(&etiquette),
                   sizeof etiquette);
    EXPECT_TRUE(NommeDesDossiers(octets));
  }
}

TEST(ProgrammesConstruits, LImpressionNEstDemandeeQueParSonModule) {
  EXPECT_THAT(BibliothequesDe(OctetsDe(MODULE_IMPRIMANTE)), Contains(HasSubstr("PrintSupport")));
  const std::vector<std::string> duProgramme = BibliothequesDe(OctetsDe(PROGRAMME));
  EXPECT_THAT(duProgramme, Contains(HasSubstr("libQt6Widgets")));
  EXPECT_THAT(duProgramme, Each(Not(ContainsRegex("PrintSupport|cups"))));
}

TEST(ProgrammesConstruits, UnFichierTronqueNEnEstPasUn) {
  const std::string octets = OctetsDe(PROGRAMME);
  EXPECT_TRUE(EstChargeable(octets));
  EXPECT_FALSE(EstChargeable(octets.substr(0, 40)));
  EXPECT_FALSE(Entree(octets.substr(0, 80), DT_NEEDED));
}

}  // namespace
}  // namespace gastrelle::essai
