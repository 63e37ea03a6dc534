// The factory copies as the build laid them, seen by the program that starts on a copy of them.

#include <algorithm>
#include <fstream>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/ListeVivants.h"
#include "doublures/Bibliotheque.h"
#include "recettes/ImageRecette.h"
#include "recettes/LectureRecettes.h"
#include "usine/FabriqueEssai.h"
#include "usine/SourcesEssai.h"

namespace gastrelle::usine {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::Ge;
using testing::Le;
using testing::SizeIs;
using testing::StartsWith;

namespace fs = std::filesystem;

TEST_F(Fabrique, PasseLeDepartSansUnMot) {
  EXPECT_THAT(b.messages.vus, SizeIs(0));
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(Fabrique, PorteLesNombresDeFiches) {
  EXPECT_THAT(Fiches(m->bufRegion), SizeIs(27));
  EXPECT_THAT(Fiches(m->bufVin), SizeIs(563));
  EXPECT_THAT(Fiches(m->bufFromage), SizeIs(122));
  EXPECT_THAT(Fiches(m->bufTruc), SizeIs(167));
  EXPECT_THAT(Fiches(m->bufMenu), SizeIs(15));
  EXPECT_THAT(Fiches(m->bufCategorie), SizeIs(3));
  EXPECT_THAT(Fiches(m->bufFavori), SizeIs(14));
  EXPECT_THAT(Fiches(m->bufFamille), SizeIs(24));
  EXPECT_THAT(Fiches(m->bufRecette), SizeIs(365));
}

TEST_F(Fabrique, NommeChaqueFicheUneFois) {
  AttendPleinsEtUniques(Noms(m->bufFamille));
  AttendPleinsEtUniques(Noms(m->bufRecette));
  AttendPleinsEtUniques(Noms(m->bufFromage));
  AttendPleinsEtUniques(Noms(m->bufMenu));
  AttendPleinsEtUniques(Noms(m->bufRegion));
  AttendPleinsEtUniques(Noms(m->bufVin));
  AttendPleinsEtUniques(Noms(m->bufTruc));
  AttendPleinsEtUniques(Noms(m->bufCategorie));
  AttendPleinsEtUniques(Noms(m->bufFavori));
}

TEST_F(Fabrique, NARienDeVideNiDeRepeteDansSesTextes) {
  std::vector<std::string> tous;
  for (const auto& textes :
       {Textes(m->bufRecette, m->textesRecettes), Textes(m->bufFromage, m->textesFromages),
        Textes(m->bufMenu, m->textesMenus), Textes(m->bufVin, m->textesVins),
        Textes(m->bufTruc, m->textesTrucs), Textes(m->bufFavori, m->textesFavoris)}) {
    tous.insert(tous.end(), textes.begin(), textes.end());
  }
  AttendPleinsEtUniques(tous);
}

TEST_F(Fabrique, DonneAChaqueVinUneNoteDeDeuxCentsCaracteres) {
  EXPECT_THAT(Textes(m->bufVin, m->textesVins), Each(SizeIs(AllOf(Ge(200U), Le(30000U)))));
}

/// Portraits of two paragraphs.
std::ptrdiff_t Portraits(const std::vector<std::string>& textes) {
  return std::count_if(textes.begin(), textes.end(), [](const std::string& texte) {
    return texte.find("\r\n\r\n") != std::string::npos;
  });
}

TEST_F(Fabrique, FaitLePortraitDesGrandsNoms) {
  EXPECT_GE(Portraits(Textes(m->bufVin, m->textesVins)), 30);
  EXPECT_GE(Portraits(Textes(m->bufFromage, m->textesFromages)), 10);
}

TEST_F(Fabrique, RangeLesFromagesSousUneVingtaineDeRegions) {
  std::set<std::string> regions;
  for (const RecFromage& fromage : Fiches(m->bufFromage)) {
    regions.emplace(Rogne(fromage.regionFromage.brut()));
  }
  EXPECT_THAT(regions, SizeIs(23));
}

TEST_F(Fabrique, DonneAuMoinsUnVinAChaqueRegion) {
  std::set<std::int32_t> peuplees;
  for (const RecVin& vin : Fiches(m->bufVin)) {
    peuplees.insert(vin.idRegion);
  }
  EXPECT_THAT(peuplees, SizeIs(27));
  EXPECT_EQ(*peuplees.begin(), 2);
  EXPECT_EQ(*peuplees.rbegin(), 28);
}

TEST_F(Fabrique, DonneUneAdresseAChaqueFavori) {
  for (const RecFavori& favori : Fiches(m->bufFavori)) {
    EXPECT_THAT(m->textesFavoris.Lit(favori.posAdresse, favori.lgAdresse),
                SizeIs(AllOf(Ge(1U), Le(512U))));
    EXPECT_THAT(favori.idCategorie, AllOf(Ge(2), Le(4)));
  }
}

TEST_F(Fabrique, LaisseLaCaveVide) {
  for (const RecVin& vin : Fiches(m->bufVin)) {
    EXPECT_EQ(vin.nbBlanc + vin.nbRouge + vin.nbRose + vin.nbChampagne + vin.nbVinDoux +
                  vin.nbJaune + vin.nbPaille + vin.nbMousseux + vin.nbGris,
              0);
    EXPECT_EQ(vin.posNotesCave, 0);
  }
}

TEST_F(Fabrique, NoteLesMillesimesDepuis1928) {
  const std::vector<Annee> annees = Annees();
  EXPECT_THAT(annees, SizeIs(Ge(2023U - 1927U)));
  EXPECT_THAT(annees, Each(Each(AllOf(Ge(0), Le(5)))));
  EXPECT_EQ(annees[1961 - 1928][0], 5);  // red Bordeaux of 1961: nobody disputes that one
}

TEST_F(Fabrique, LaisseLesRayonsVides) {
  EXPECT_THAT(m->texteRayon, Each(""));
  EXPECT_EQ(b.dossier.Lit("GLMC.stp").size(), 15U * 8U);
}

TEST_F(Fabrique, ListeAuMoinsDouzeRecettesDansChaqueFamille) {
  std::size_t recettes = 0;
  for (const auto& famille : ListeFamilles(*m)) {
    const Liste liste = RecettesDeFamille(*m, famille.numero);
    EXPECT_THAT(liste, SizeIs(Ge(12U))) << VersUtf8(famille.texte);
    recettes += liste.size();
  }
  EXPECT_EQ(recettes, Fiches(m->bufRecette).size());
}

TEST_F(Fabrique, MontreUneImageAChaqueRecette) {
  for (const auto& entree : ToutesRecettes(*m)) {
    const RecetteLue recette = LitRecette(*m, entree.numero);
    EXPECT_TRUE(recette.associee) << VersUtf8(entree.texte);
    EXPECT_EQ(recette.imagePerdue, std::nullopt);
    std::ifstream image(VersUtf8(recette.image), std::ios::binary);
    std::string debut(3, ' ');
    image.read(debut.data(), 3);
    EXPECT_EQ(debut, "\xFF\xD8\xFF") << VersUtf8(recette.image);
    EXPECT_EQ(GenreDe(recette.image), GenreImage::affichable);
  }
}

TEST_F(Fabrique, DonneUneImageAChaqueFamilleEtAQuaranteClassiques) {
  std::set<std::string> images;
  for (const RecRecette& recette : Fiches(m->bufRecette)) {
    images.insert(m->cheminsImages.Lit(recette.posImage, recette.lgImage));
  }
  EXPECT_GE(images.size(), Fiches(m->bufFamille).size() + 40);
  EXPECT_THAT(images, Each(StartsWith("/")));
}

/// What the build laid is what the sources say.
class FabriqueDesSources : public Fabrique {
 protected:
  template <class Entree>
  static std::vector<std::string> Colonne(const std::vector<Entree>& entrees,
                                          std::string Entree::*membre) {
    std::vector<std::string> valeurs;
    for (const Entree& entree : entrees) {
      valeurs.push_back(entree.*membre);
    }
    return valeurs;
  }

  Journal journal;
  Catalogues c = LitCatalogues(DOSSIER_CATALOGUES, fs::path(DOSSIER_PROGRAMME) / "IMAGE", journal);
};

TEST_F(FabriqueDesSources, NeRefuseRien) {
  EXPECT_THAT(journal.refus(), SizeIs(0));
}

TEST_F(FabriqueDesSources, RendLesNoms) {
  EXPECT_EQ(Noms(m->bufFamille), c.familles);
  EXPECT_EQ(Noms(m->bufRecette), Colonne(c.recettes, &Recette::titre));
  EXPECT_EQ(Noms(m->bufFromage), Colonne(c.fromages, &Fromage::nom));
  EXPECT_EQ(Noms(m->bufMenu), Colonne(c.menus, &Fiche::titre));
  EXPECT_EQ(Noms(m->bufRegion), c.regions);
  EXPECT_EQ(Noms(m->bufVin), Colonne(c.vins, &Vin::nom));
  EXPECT_EQ(Noms(m->bufTruc), Colonne(c.trucs, &Fiche::titre));
  EXPECT_EQ(Noms(m->bufCategorie), c.categories);
  EXPECT_EQ(Noms(m->bufFavori), Colonne(c.favoris, &Favori::nom));
}

TEST_F(FabriqueDesSources, RendLesTextes) {
  EXPECT_EQ(Textes(m->bufRecette, m->textesRecettes), Colonne(c.recettes, &Recette::texte));
  EXPECT_EQ(Textes(m->bufFromage, m->textesFromages), Colonne(c.fromages, &Fromage::texte));
  EXPECT_EQ(Textes(m->bufMenu, m->textesMenus), Colonne(c.menus, &Fiche::texte));
  EXPECT_EQ(Textes(m->bufVin, m->textesVins), Colonne(c.vins, &Vin::texte));
  EXPECT_EQ(Textes(m->bufTruc, m->textesTrucs), Colonne(c.trucs, &Fiche::texte));
  EXPECT_EQ(Textes(m->bufFavori, m->textesFavoris), Colonne(c.favoris, &Favori::notes));
}

TEST_F(FabriqueDesSources, RendLesAnnees) {
  EXPECT_EQ(Annees(), c.millesimes);
}

TEST(ProgrammeFabrique, EcritLesDixNeufCopiesDeBonnesSources) {
  const SourcesEssai sources;
  const SourcesEssai::Execution execution = sources.LanceFabrique();
  EXPECT_EQ(execution.statut, 0);
  EXPECT_THAT(execution.erreurs, SizeIs(0));
  EXPECT_THAT(execution.ecrits, AllOf(SizeIs(19), Each(StartsWith("GL"))));
}

TEST(ProgrammeFabrique, LaisseLesAnciennesCopiesQuandIlRefuse) {
  SourcesEssai sources;
  std::ofstream(sources.sortie() / "GLR1.stp") << "ancienne";
  sources.Supprime("menus.toml");
  EXPECT_EQ(sources.LanceFabrique().statut, 1);
  std::string reste;
  std::getline(std::ifstream(sources.sortie() / "GLR1.stp"), reste);
  EXPECT_EQ(reste, "ancienne");
}

TEST(ProgrammeFabrique, DitUnePanneALEcriture) {
  SourcesEssai sources;
  fs::create_directory(sources.sortie() / "GLV2.stp");
  const SourcesEssai::Execution execution = sources.LanceFabrique();
  EXPECT_EQ(execution.statut, 1);
  EXPECT_THAT(execution.erreurs, ElementsAre("fabrique : Erreur d'accès au fichier"));
}

}  // namespace
}  // namespace gastrelle::usine
