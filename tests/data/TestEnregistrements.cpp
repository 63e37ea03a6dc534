// The record types: where each field lies, how it is written, that nothing is lost.

#include <gtest/gtest.h>

#include "data/Enregistrements.h"
#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {
namespace {

/// The table of fields as "name offset+width, ...".
template <class T>
std::string Table() {
  std::string table;
  const auto ajoute = [&](const auto& champ) {
    table += (table.empty() ? "" : ", ") + std::string(champ.nom) + " " +
             std::to_string(champ.decalage) + "+" + std::to_string(champ.largeur);
  };
  std::apply([&](const auto&... champ) { (ajoute(champ), ...); }, champs<T>);
  return table;
}

std::string Blancs(std::size_t n) {
  return std::string(n, ' ');
}

TEST(Enregistrements, PlacentLeursChamps) {
  EXPECT_EQ(Table<RecFamille>(), "actif 0+2, nomFamille 2+128");
  EXPECT_EQ(Table<RecRecette>(),
            "actif 0+2, idFamille 2+4, nomRecette 6+128, posTexte 134+4, lgTexte 138+4, "
            "posImage 142+4, lgImage 146+4");
  EXPECT_EQ(Table<RecFromage>(),
            "actif 0+2, nomFromage 2+128, regionFromage 130+64, lait 194+2, premierMois 196+2, "
            "dernierMois 198+2, posTexte 200+4, lgTexte 204+4");
  EXPECT_EQ(Table<RecFiche>(), "actif 0+2, titre 2+128, posTexte 130+4, lgTexte 134+4");
  EXPECT_EQ(Table<RecRegion>(), "actif 0+2, nomRegion 2+64");
  EXPECT_EQ(Table<LigneRayon>(), "posTexte 0+4, lgTexte 4+4");
}

TEST(Enregistrements, PlacentLesNeufCouleursDeLaCave) {
  EXPECT_EQ(Table<RecVin>(),
            "actif 0+2, nomVin 2+64, idRegion 66+4, nbBlanc 70+2, nbRouge 72+2, nbRose 74+2, "
            "nbChampagne 76+2, nbVinDoux 78+2, nbJaune 80+2, nbPaille 82+2, nbMousseux 84+2, "
            "nbGris 86+2, posTexte 88+4, lgTexte 92+4, posNotesCave 96+4, lgNotesCave 100+4");
}

TEST(Enregistrements, PlacentLesNeufVignobles) {
  EXPECT_EQ(Table<RecMillesime>(),
            "bordeauxRouges 0+2, bordeauxBlancs 2+2, bourgognesRouges 4+2, bourgognesBlancs 6+2, "
            "crusDesCotesDuRhone 8+2, alsace 10+2, pouillySancerre 12+2, "
            "anjouTouraineMuscadet 14+2, crusDuBeaujolais 16+2");
}

TEST(Enregistrements, PlacentLesFavorisEtLesPreferences) {
  EXPECT_EQ(Table<RecFavori>(),
            "actif 0+2, nomFavori 2+128, idCategorie 130+2, posAdresse 132+4, lgAdresse 136+4, "
            "telephone 140+32, fax 172+32, email 204+256, siteWeb 460+256, posTexte 716+4, "
            "lgTexte 720+4");
  EXPECT_EQ(Table<RecPreferences>(), "fenetreNormale 0+2, policeGrande 2+2, sansCopie 4+2");
}

template <class T>
class TousEnregistrements : public testing::Test {};

using Types = testing::Types<RecFamille, RecRecette, RecFromage, RecFiche, RecRegion, RecVin,
                             RecMillesime, RecFavori, RecPreferences, LigneRayon>;
TYPED_TEST_SUITE(TousEnregistrements, Types);

TYPED_TEST(TousEnregistrements, RendentTousLeursOctetsApresUnAllerEtRetour) {
  for (unsigned depart = 0; depart < 256; depart += 17) {
    std::string octets(longueurEnregistrement<TypeParam>, '\0');
    for (std::size_t i = 0; i < octets.size(); ++i) {
      octets[i] = static_cast<char>(depart + i * 7);
    }
    TypeParam e;
    Decode(e, octets.data());
    EXPECT_EQ(Octets(e), octets);
  }
}

TYPED_TEST(TousEnregistrements, NaissentAZeroEtEnBlancs) {
  for (const char octet : Octets(TypeParam{})) {
    EXPECT_TRUE(octet == '\0' || octet == ' ');
  }
}

TEST(Enregistrements, EcriventLesEntiersPoidsFaibleEnTete) {
  RecRecette recette;
  recette.actif = vivant;
  recette.idFamille = 0x01020304;
  recette.posTexte = -2;
  recette.lgTexte = 258;
  EXPECT_EQ(Octets(recette), "\xFF\xFF\x04\x03\x02\x01" + Blancs(128) +
                                 std::string("\xFE\xFF\xFF\xFF\x02\x01\0\0\0\0\0\0\0\0\0\0", 16));
}

TEST(Enregistrements, LisentLesEntiersExtremes) {
  LigneRayon ligne;
  Decode(ligne, "\x00\x00\x00\x80\xFF\xFF\xFF\x7F");
  EXPECT_EQ(ligne.posTexte, std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ligne.lgTexte, std::numeric_limits<std::int32_t>::max());
  RecPreferences prefs;
  Decode(prefs, "\x00\x80\xFF\x7F\xFF\xFF");
  EXPECT_EQ(prefs.fenetreNormale, -32768);
  EXPECT_EQ(prefs.policeGrande, 32767);
  EXPECT_EQ(prefs.sansCopie, -1);
}

TEST(Enregistrements, RemplissentUnChampDUnNomDe128Caracteres) {
  RecFamille famille;
  famille.nomFamille = std::string(128, 'x');
  EXPECT_EQ(famille.nomFamille.brut(), std::string(128, 'x'));
  EXPECT_EQ(Octets(famille).size(), 130U);
}

TEST(Enregistrements, CoupentUnNomPlusLongQueSonChamp) {
  RecFamille famille;
  famille.nomFamille = std::string(127, 'x') + "yz";
  EXPECT_EQ(famille.nomFamille.brut(), std::string(127, 'x') + "y");
}

TEST(Enregistrements, CompletentUnNomPlusCourtParDesBlancs) {
  RecFamille famille;
  famille.nomFamille = std::string(128, 'x');
  famille.nomFamille = "Potages";
  EXPECT_EQ(famille.nomFamille.brut(), "Potages" + Blancs(121));
  famille.nomFamille = "";
  EXPECT_EQ(famille.nomFamille.brut(), Blancs(128));
}

TEST(Enregistrements, RangentUneLettreAccentueeDansUnOctet) {
  RecRegion region;
  region.nomRegion = "Côtes & cœur"_1252;
  EXPECT_EQ(Octets(region), std::string("\0\0C\xF4tes & c\x9Cur", 14) + Blancs(52));
}

TEST(Enregistrements, AcceptentLeurPropreTexteRogne) {
  RecFamille famille;
  famille.nomFamille = "  Potages";
  famille.nomFamille = Rogne(famille.nomFamille.brut());
  EXPECT_EQ(famille.nomFamille.brut(), "Potages" + Blancs(121));
}

TEST(Enregistrements, DonnentLeNomOuLaSignature) {
  RecFamille famille;
  NomOuSignature(famille) = "GASTRELF.DAT";
  EXPECT_EQ(Octets(famille), std::string(2, '\0') + "GASTRELF.DAT" + Blancs(116));
  RecRecette recette;
  NomOuSignature(recette) = "GLR2.DAT";
  EXPECT_EQ(Octets(recette).substr(6, 128), "GLR2.DAT" + Blancs(120));
  const RecFavori favori;
  EXPECT_EQ(&NomOuSignature(favori), &favori.nomFavori);
}

}  // namespace
}  // namespace gastrelle::essai
