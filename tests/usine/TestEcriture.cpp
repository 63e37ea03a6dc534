// The factory copies, byte for byte.

#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/CatalogueFichiers.h"
#include "data/Enregistrements.h"
#include "doublures/Bibliotheque.h"
#include "usine/Ecriture.h"

namespace gastrelle::usine {
namespace {

using namespace std::string_literals;
using essai::Enregistrement;
using testing::Contains;
using testing::Each;
using testing::SizeIs;
using testing::StartsWith;

/// Two or three entries of each kind, all different.
Catalogues Petits() {
  Catalogues c;
  c.familles = {"Potages", "Desserts"};
  c.recettes = {{"Velout\xE9", 2, "Un velout\xE9.", "/potages.png"},
                {"Flan", 3, "Un flan.", ""},
                {"Bisque", 2, "Une bisque.", "/potages.png"}};
  c.fromages = {{"Abondance", "Savoie", 1, 6, 12, "Une meule."}, {"Brocciu", "Corse", 3, 0, 0, ""}};
  c.menus = {{"No\xEBl", "Une dinde."}};
  c.regions = {"Alsace", "Jura"};
  c.vins = {{"Riesling", 2, "Sec."}, {"Arbois", 3, "Rouge."}};
  c.millesimes = {{1, 2, 3, 4, 5, 0, 1, 2, 3}, {5, 5, 5, 5, 5, 5, 5, 5, 5}};
  c.trucs = {{"Abaisser", "Au rouleau."}, {"Barder", "De lard."}};
  c.categories = {"Institutions", "Lieux", "\xC9\x63oles"};
  c.favoris = {{"Mus\xE9\x65", 3, "1, rue\r\nDijon", "01", "02", "a@b", "https://c", "Ferm\xE9."},
               {"\xC9\x63ole", 4, "", "", "", "", "", "Libre."}};
  return c;
}

class Ecriture : public testing::Test {
 protected:
  Ecriture() { EcritFabrique(disque, Petits()); }

  [[nodiscard]] std::string Lit(Donnees fichier) const { return dossier.Lit(NomFabrique(fichier)); }
  /// The text at a reference, which must lie whole in its pool.
  [[nodiscard]] std::string Texte(Donnees pool, std::int32_t position,
                                  std::int32_t longueur) const {
    const std::string octets = Lit(pool);
    EXPECT_LE(position - 1 + longueur, static_cast<std::int32_t>(octets.size()));
    return octets.substr(static_cast<std::size_t>(position) - 1,
                         static_cast<std::size_t>(longueur));
  }
  template <class T>
  [[nodiscard]] T Lue(Donnees fichier, std::size_t numero) const {
    return Enregistrement<T>(dossier, NomFabrique(fichier), numero);
  }

  essai::DossierEssai dossier;
  essai::DisqueEssai disque{dossier.chemin()};
};

TEST_F(Ecriture, LaisseLesDixNeufCopiesEtRienDAutre) {
  for (std::size_t i = 0; i < static_cast<std::size_t>(Donnees::GLPREF); ++i) {
    EXPECT_TRUE(dossier.A(NomFabrique(static_cast<Donnees>(i)))) << i;
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier.chemin()), {}), 19);
}

struct CasEntete {
  const char* fichier;
  std::size_t longueur;
  char nombre;
  const char* signature;
  std::size_t decalage = 2;  ///< of the signature
};

class EnteteEcrit : public Ecriture, public testing::WithParamInterface<CasEntete> {};

TEST_P(EnteteEcrit, PorteLeNombreEtLaSignature) {
  const CasEntete& cas = GetParam();
  const std::string octets = dossier.Lit(cas.fichier);
  EXPECT_EQ(octets.size(), cas.longueur * (static_cast<std::size_t>(cas.nombre) + 1));
  EXPECT_EQ(octets.substr(0, cas.decalage),
            std::string{cas.nombre} + std::string(cas.decalage - 1, '\0'));
  EXPECT_EQ(octets.substr(cas.decalage, 64),
            cas.signature + std::string(64 - std::strlen(cas.signature), ' '));
}

INSTANTIATE_TEST_SUITE_P(Ecriture, EnteteEcrit,
                         testing::Values(CasEntete{"GLR1.stp", 130, 2, "GASTRELF.DAT"},
                                         CasEntete{"GLR2.stp", 150, 3, "GLR2.DAT", 6},
                                         CasEntete{"GLF1.stp", 208, 2, "GLF1.DAT"},
                                         CasEntete{"GLM1.stp", 138, 1, "GLM1.DAT"},
                                         CasEntete{"GLV1.stp", 66, 2, "GLV1.DAT"},
                                         CasEntete{"GLV2.stp", 104, 2, "GLV2.DAT"},
                                         CasEntete{"GLT1.stp", 138, 2, "GLT1.DAT"},
                                         CasEntete{"GLFV1.stp", 130, 3, "GLFV1.DAT"},
                                         CasEntete{"GLFV2.stp", 724, 2, "GLFV2.DAT"}),
                         [](const auto& cas) {
                           return std::string(cas.param.fichier,
                                              std::strcspn(cas.param.fichier, "."));
                         });

struct CasReserve {
  const char* fichier;
  const char* octets;  ///< the whole pool
};

class ReserveEcrite : public Ecriture, public testing::WithParamInterface<CasReserve> {};

TEST_P(ReserveEcrite, PorteSonNomPuisLesTextesBoutABout) {
  EXPECT_EQ(dossier.Lit(GetParam().fichier), GetParam().octets);
}

INSTANTIATE_TEST_SUITE_P(
    Ecriture, ReserveEcrite,
    testing::Values(CasReserve{"GLR3.stp", "GLR3.DATUn velout\xE9.Un flan.Une bisque."},
                    CasReserve{"GLR4.stp", "GLR4.DAT/potages.png/potages.png"},
                    CasReserve{"GLF2.stp", "GLF2.DATUne meule."},
                    CasReserve{"GLM2.stp", "GLM2.DATUne dinde."},
                    CasReserve{"GLV3.stp", "GLV3.DATSec.Rouge."},
                    CasReserve{"GLT2.stp", "GLT2.DATAu rouleau.De lard."},
                    CasReserve{"GLFV3.stp", "GLFV3.DAT1, rue\r\nDijonFerm\xE9.Libre."},
                    CasReserve{"GLMCN.stp", "GLMCN.DAT"}),
    [](const auto& cas) {
      return std::string(cas.param.fichier, std::strcspn(cas.param.fichier, "."));
    });

TEST_F(Ecriture, EcritUneRecetteOctetParOctet) {
  const std::string octets = Lit(Donnees::GLR2);
  EXPECT_EQ(octets.substr(150, 150), "\xFF\xFF"s + "\x02\0\0\0"s + "Velout\xE9" +
                                         std::string(121, ' ') + "\x09\0\0\0"s + "\x0B\0\0\0"s +
                                         "\x09\0\0\0"s + "\x0C\0\0\0"s);
}

TEST_F(Ecriture, MetLeTexteDeLaPremiereRecetteEnPosition9) {
  const auto recette = Lue<RecRecette>(Donnees::GLR2, 2);
  EXPECT_EQ(recette.posTexte, 9);
  EXPECT_EQ(Texte(Donnees::GLR3, recette.posTexte, recette.lgTexte), "Un velout\xE9.");
}

TEST_F(Ecriture, LaisseSansReferenceUneRecetteSansImage) {
  const auto flan = Lue<RecRecette>(Donnees::GLR2, 3);
  EXPECT_EQ(flan.idFamille, 3);
  EXPECT_EQ(flan.posImage, 0);
  EXPECT_EQ(flan.lgImage, 0);
}

TEST_F(Ecriture, RangeLesFichesDansLOrdreDesCatalogues) {
  EXPECT_THAT(Lue<RecRecette>(Donnees::GLR2, 2).nomRecette.brut(), StartsWith("Velout\xE9 "));
  EXPECT_THAT(Lue<RecRecette>(Donnees::GLR2, 3).nomRecette.brut(), StartsWith("Flan "));
  EXPECT_THAT(Lue<RecRecette>(Donnees::GLR2, 4).nomRecette.brut(), StartsWith("Bisque "));
  EXPECT_THAT(Lue<RecFamille>(Donnees::GLR1, 3).nomFamille.brut(), StartsWith("Desserts "));
  EXPECT_THAT(Lue<RecRegion>(Donnees::GLV1, 2).nomRegion.brut(), StartsWith("Alsace "));
  EXPECT_THAT(Lue<RecFamille>(Donnees::GLFV1, 4).nomFamille.brut(), StartsWith("\xC9\x63oles "));
}

TEST_F(Ecriture, EcritLesChampsDUnFromage) {
  const auto fromage = Lue<RecFromage>(Donnees::GLF1, 2);
  EXPECT_EQ(fromage.actif, vivant);
  EXPECT_THAT(fromage.regionFromage.brut(), StartsWith("Savoie "));
  EXPECT_EQ(fromage.lait, 1);
  EXPECT_EQ(fromage.premierMois, 6);
  EXPECT_EQ(fromage.dernierMois, 12);
  EXPECT_EQ(Texte(Donnees::GLF2, fromage.posTexte, fromage.lgTexte), "Une meule.");
}

TEST_F(Ecriture, LaisseSansReferenceUnFromageSansTexte) {
  const auto brocciu = Lue<RecFromage>(Donnees::GLF1, 3);
  EXPECT_EQ(brocciu.posTexte, 0);
  EXPECT_EQ(brocciu.lgTexte, 0);
}

TEST_F(Ecriture, EcritUnVinSansUneBouteilleEnCave) {
  const auto arbois = Lue<RecVin>(Donnees::GLV2, 3);
  EXPECT_EQ(arbois.idRegion, 3);
  EXPECT_EQ(Texte(Donnees::GLV3, arbois.posTexte, arbois.lgTexte), "Rouge.");
  EXPECT_EQ(Lit(Donnees::GLV2).substr(2 * 104 + 70, 18), std::string(18, '\0'));
  EXPECT_EQ(Lit(Donnees::GLV2).substr(2 * 104 + 96, 8), std::string(8, '\0'));
}

TEST_F(Ecriture, EcritUnMenuEtUnTruc) {
  const auto menu = Lue<RecFiche>(Donnees::GLM1, 2);
  EXPECT_EQ(Texte(Donnees::GLM2, menu.posTexte, menu.lgTexte), "Une dinde.");
  const auto truc = Lue<RecFiche>(Donnees::GLT1, 3);
  EXPECT_THAT(truc.titre.brut(), StartsWith("Barder "));
  EXPECT_EQ(Texte(Donnees::GLT2, truc.posTexte, truc.lgTexte), "De lard.");
}

TEST_F(Ecriture, EcritLesChampsDUnFavori) {
  const auto favori = Lue<RecFavori>(Donnees::GLFV2, 2);
  EXPECT_EQ(favori.idCategorie, 3);
  EXPECT_EQ(Texte(Donnees::GLFV3, favori.posAdresse, favori.lgAdresse), "1, rue\r\nDijon");
  EXPECT_THAT(favori.telephone.brut(), StartsWith("01 "));
  EXPECT_THAT(favori.fax.brut(), StartsWith("02 "));
  EXPECT_THAT(favori.email.brut(), StartsWith("a@b "));
  EXPECT_THAT(favori.siteWeb.brut(), StartsWith("https://c "));
  EXPECT_EQ(Texte(Donnees::GLFV3, favori.posTexte, favori.lgTexte), "Ferm\xE9.");
}

TEST_F(Ecriture, LaisseSansReferenceUnFavoriSansAdresse) {
  const auto favori = Lue<RecFavori>(Donnees::GLFV2, 3);
  EXPECT_EQ(favori.posAdresse, 0);
  EXPECT_EQ(Texte(Donnees::GLFV3, favori.posTexte, favori.lgTexte), "Libre.");
}

TEST_F(Ecriture, FaitDeLaFicheNLAnnee1927PlusN) {
  EXPECT_EQ(Lit(Donnees::GLMV),
            "\1\0\2\0\3\0\4\0\5\0\0\0\1\0\2\0\3\0"
            "\5\0\5\0\5\0\5\0\5\0\5\0\5\0\5\0\5\0"s);
  EXPECT_EQ(Lue<RecMillesime>(Donnees::GLMV, 1928 - 1927).crusDuBeaujolais, 3);
  EXPECT_EQ(Lue<RecMillesime>(Donnees::GLMV, 1929 - 1927).crusDuBeaujolais, 5);
}

TEST_F(Ecriture, LaisseLesQuinzeRayonsVides) {
  EXPECT_EQ(Lit(Donnees::GLMC), std::string(15 * 8, '\0'));
}

TEST_F(Ecriture, DonneDeuxFoisLesMemesOctets) {
  essai::DossierEssai autre;
  essai::DisqueEssai ailleurs(autre.chemin());
  EcritFabrique(ailleurs, Petits());
  for (std::size_t i = 0; i < static_cast<std::size_t>(Donnees::GLPREF); ++i) {
    const std::string nom = NomFabrique(static_cast<Donnees>(i));
    EXPECT_EQ(autre.Lit(nom), dossier.Lit(nom)) << nom;
  }
}

TEST_F(Ecriture, RemplaceEntierementUneAncienneCopie) {
  const std::string avant = Lit(Donnees::GLR3);
  dossier.Ecrit("GLR3.stp", std::string(5000, 'x'));
  EcritFabrique(disque, Petits());
  EXPECT_EQ(Lit(Donnees::GLR3), avant);
}

TEST_F(Ecriture, DitUnePanneDuDisque) {
  disque.EchoueSur("écrit GLV3.stp", Panne::disquePlein);
  EXPECT_THROW(EcritFabrique(disque, Petits()), ErreurExecution);
}

TEST_F(Ecriture, NAccepteQuUnNombreQuiTientDansLEntete) {
  Catalogues trop = Petits();
  trop.familles.resize(32768);
  EXPECT_THROW(EcritFabrique(disque, trop), ErreurExecution);
}

}  // namespace
}  // namespace gastrelle::usine
