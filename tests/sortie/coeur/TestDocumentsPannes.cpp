// A document that can't be written: what is then on the disk, what is said, what isn't opened.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "sortie/Documents.h"
#include "sortie/DocumentsEssai.h"
#include "sortie/coeur/DocumentEnPanne.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_P(DocumentEnPanne, UneSuppressionManqueeNeChangeRien) {
  PourChaqueCommande([](Essai& essai) {
    essai.disque.EchoueALAppel(1, Panne::permissionRefusee);
    essai.Envoie();
    essai.AttendReussite();
  });
}

TEST_P(DocumentEnPanne, SansFichierCreeIlNEnResteAucun) {
  PourChaqueCommande([](Essai& essai) {
    essai.disque.EchoueALAppel(2, Panne::accesFichier);
    essai.Envoie();
    EXPECT_FALSE(essai.dossier.A(essai.nom));
    essai.AttendEchec();
  });
}

TEST_P(DocumentEnPanne, SansEcritureIlResteUnFichierVide) {
  PourChaqueCommande([](Essai& essai) {
    essai.disque.EchoueALAppel(3, Panne::disquePlein);
    essai.Envoie();
    EXPECT_TRUE(essai.dossier.A(essai.nom));
    EXPECT_EQ(essai.dossier.Lit(essai.nom), "");
    essai.AttendEchec();
  });
}

TEST_P(DocumentEnPanne, UneDemiEcritureResteAMoitie) {
  PourChaqueCommande([](Essai& essai) {
    essai.disque.EchoueALAppel(3, Panne::disquePlein, Maniere::moitieEcrite);
    essai.Envoie();
    const std::string entier = Modele(GetParam().modele);
    EXPECT_EQ(essai.dossier.Lit(essai.nom), entier.substr(0, entier.size() / 2));
    essai.AttendEchec();
  });
}

TEST_P(DocumentEnPanne, UneEcritureManqueeNEstPasRetentee) {
  PourChaqueCommande([](Essai& essai) {
    essai.disque.EchoueALAppel(3, Panne::disquePlein);
    essai.Envoie();
    EXPECT_EQ(essai.disque.journal().size(), 3U);
  });
}

TEST_P(DocumentEnPanne, UnEditeurQuiLeTientGardeLAncien) {
  PourChaqueCommande([](Essai& essai) {
    essai.disque.EchoueSur("", Panne::permissionRefusee);
    essai.Envoie();
    EXPECT_EQ(essai.dossier.Lit(essai.nom), ancien);
    essai.AttendEchec();
    EXPECT_THAT(essai.disque.journal(), ElementsAre("supprime " + essai.nom, "crée " + essai.nom));
  });
}

TEST_P(DocumentEnPanne, LeSuivantRepartDeRien) {
  PourChaqueCommande([](Essai& essai) {
    essai.disque.EchoueALAppel(3, Panne::disquePlein, Maniere::moitieEcrite);
    essai.Envoie();
    essai.messages.vus.clear();
    essai.Envoie();
    essai.AttendReussite();
  });
}

TEST_P(DocumentEnPanne, UnDossierDeSonNomReste) {
  PourChaqueCommande([](Essai& essai) {
    const auto dossier = essai.dossier.chemin() / essai.nom;
    std::filesystem::remove(dossier);
    std::filesystem::create_directory(dossier);
    essai.dossier.Ecrit(essai.nom + "/dedans", "gardé");
    essai.Envoie();
    EXPECT_EQ(essai.dossier.Lit(essai.nom + "/dedans"), "gardé");
    essai.AttendEchec();
  });
}

INSTANTIATE_TEST_SUITE_P(Onze, DocumentEnPanne, testing::ValuesIn(DocumentsEssai()),
                         [](const testing::TestParamInfo<DocumentEssai>& cas) {
                           std::string nom = cas.param.modele;
                           std::replace(nom.begin(), nom.end(), '-', '_');
                           return nom;
                         });

/// A cellar of several writes, whose bytes are known.
class LongDocumentEnPanne : public testing::Test {
 protected:
  LongDocumentEnPanne() {
    for (int i = 0; i < 40'000; ++i) {
      cave.lignes.push_back(".. Rouge ........... " + std::to_string(i));
    }
    Bibliotheque temoin;
    EnvoieDocument(*temoin.module, cave, Extension::txt);
    entier = temoin.dossier.Lit("vincave.txt");
    ecritures = temoin.disque.journal().size() - 2;
  }

  VueCave cave;
  std::string entier;
  std::size_t ecritures = 0;
};

TEST_F(LongDocumentEnPanne, ResteJusquALEcritureQuiManque) {
  ASSERT_GT(ecritures, 2U);
  for (const Maniere maniere : {Maniere::rienFait, Maniere::moitieEcrite}) {
    std::size_t precedent = 0;
    for (std::size_t n = 1; n <= ecritures; ++n) {
      SCOPED_TRACE(n);
      Bibliotheque b;
      b.disque.EchoueALaNiemeEcriture(n, Panne::disquePlein, maniere);
      EnvoieDocument(*b.module, cave, Extension::txt);
      const std::string reste = b.dossier.Lit("vincave.txt");
      EXPECT_EQ(reste, entier.substr(0, reste.size()));
      EXPECT_LT(reste.size(), entier.size());
      EXPECT_TRUE(n == 1 || reste.size() > precedent);
      precedent = reste.size();
      EXPECT_EQ(b.messages.vus.size(), 1U);
      EXPECT_EQ(b.disque.journal().size(), 2 + n);  // nothing is written behind the gap
      EXPECT_THAT(b.association.cibles, IsEmpty());
    }
  }
}

}  // namespace
}  // namespace gastrelle::essai
