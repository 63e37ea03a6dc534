// Opening by association, where no program can answer.

#include <gtest/gtest.h>

#include "plateforme/Association.h"

namespace gastrelle::essai {
namespace {

TEST(Association, DitQuAucunProgrammeNOuvreUneAdresseInconnue) {
  EXPECT_EQ(AssociationSysteme().Ouvre("gastrelle-sans-programme:rien"),
            Ouverture::aucuneAssociation);
}

TEST(Association, EchoueSurUnFichierQuiManque) {
  EXPECT_NE(AssociationSysteme().Ouvre("/dossier/absent/photo.jpg"), Ouverture::ouverte);
}

}  // namespace
}  // namespace gastrelle::essai
