// The table of the twenty files.

#include <gtest/gtest.h>

#include "data/CatalogueFichiers.h"

namespace gastrelle::essai {
namespace {

struct FichierAttendu {
  Donnees fichier;
  const char* nom;
  std::size_t longueur;
  Controle controle;
  std::int16_t moindre;
  Rognage rognage;
  const char* signature;
};

constexpr FichierAttendu attendus[] = {
    {Donnees::GLR1, "GLR1.DAT", 130, Controle::entete, 1, Rognage::deuxBouts, "GASTRELF.DAT"},
    {Donnees::GLR2, "GLR2.DAT", 150, Controle::entete, 1, Rognage::droite, "GLR2.DAT"},
    {Donnees::GLR3, "GLR3.DAT", 0, Controle::signature, 0, Rognage::droite, "GLR3.DAT"},
    {Donnees::GLR4, "GLR4.DAT", 0, Controle::signature, 0, Rognage::droite, "GLR4.DAT"},
    {Donnees::GLF1, "GLF1.DAT", 208, Controle::entete, 122, Rognage::droite, "GLF1.DAT"},
    {Donnees::GLF2, "GLF2.DAT", 0, Controle::signature, 0, Rognage::droite, "GLF2.DAT"},
    {Donnees::GLM1, "GLM1.DAT", 138, Controle::entete, 15, Rognage::droite, "GLM1.DAT"},
    {Donnees::GLM2, "GLM2.DAT", 0, Controle::signature, 0, Rognage::droite, "GLM2.DAT"},
    {Donnees::GLV1, "GLV1.DAT", 66, Controle::entete, 27, Rognage::droite, "GLV1.DAT"},
    {Donnees::GLV2, "GLV2.DAT", 104, Controle::entete, 563, Rognage::droite, "GLV2.DAT"},
    {Donnees::GLV3, "GLV3.DAT", 0, Controle::signature, 0, Rognage::droite, "GLV3.DAT"},
    {Donnees::GLMV, "GLMV.DAT", 18, Controle::aucun, 0, Rognage::droite, "GLMV.DAT"},
    {Donnees::GLT1, "GLT1.DAT", 138, Controle::entete, 167, Rognage::droite, "GLT1.DAT"},
    {Donnees::GLT2, "GLT2.DAT", 0, Controle::signature, 0, Rognage::droite, "GLT2.DAT"},
    {Donnees::GLFV1, "GLFV1.DAT", 130, Controle::entete, 3, Rognage::deuxBouts, "GLFV1.DAT"},
    {Donnees::GLFV2, "GLFV2.DAT", 724, Controle::entete, 14, Rognage::deuxBouts, "GLFV2.DAT"},
    {Donnees::GLFV3, "GLFV3.DAT", 0, Controle::signature, 0, Rognage::droite, "GLFV3.DAT"},
    {Donnees::GLMC, "GLMC.DAT", 8, Controle::aucun, 0, Rognage::droite, "GLMC.DAT"},
    {Donnees::GLMCN, "GLMCN.DAT", 0, Controle::signature, 0, Rognage::droite, "GLMCN.DAT"},
    {Donnees::GLPREF, "GLPREF.DAT", 6, Controle::aucun, 0, Rognage::droite, "GLPREF.DAT"},
};

TEST(CatalogueFichiers, TientLesVingtFichiersDansLOrdre) {
  ASSERT_EQ(std::size(attendus), catalogueFichiers.size());
  for (std::size_t i = 0; i < catalogueFichiers.size(); ++i) {
    const FichierAttendu& attendu = attendus[i];
    const LigneCatalogue& ligne = Ligne(attendu.fichier);
    EXPECT_EQ(ligne.nom, catalogueFichiers[i].nom);
    EXPECT_EQ(Nom(attendu.fichier), attendu.nom);
    EXPECT_EQ(ligne.longueur, attendu.longueur) << attendu.nom;
    EXPECT_EQ(ligne.controle, attendu.controle) << attendu.nom;
    EXPECT_EQ(ligne.moindre, attendu.moindre) << attendu.nom;
    EXPECT_EQ(ligne.rognage, attendu.rognage) << attendu.nom;
    EXPECT_EQ(Signature(attendu.fichier), attendu.signature);
  }
}

TEST(CatalogueFichiers, NommeLesCopiesDeFabriqueEnStpMinuscule) {
  EXPECT_EQ(NomFabrique(Donnees::GLR1), "GLR1.stp");
  EXPECT_EQ(NomFabrique(Donnees::GLFV3), "GLFV3.stp");
  EXPECT_EQ(NomFabrique(Donnees::GLMCN), "GLMCN.stp");
}

TEST(CatalogueFichiers, ProtegeLesEnregistrementsDeLaFabrique) {
  EXPECT_EQ(DernierProtege(Donnees::GLR1), 2);
  EXPECT_EQ(DernierProtege(Donnees::GLR2), 2);
  EXPECT_EQ(DernierProtege(Donnees::GLF1), 123);
  EXPECT_EQ(DernierProtege(Donnees::GLM1), 16);
  EXPECT_EQ(DernierProtege(Donnees::GLV1), 28);
  EXPECT_EQ(DernierProtege(Donnees::GLV2), 564);
  EXPECT_EQ(DernierProtege(Donnees::GLT1), 168);
  EXPECT_EQ(DernierProtege(Donnees::GLFV1), 4);
  EXPECT_EQ(DernierProtege(Donnees::GLFV2), 15);
}

}  // namespace
}  // namespace gastrelle::essai
