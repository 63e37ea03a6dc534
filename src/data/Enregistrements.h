// The nine record types of the data files, and the row of the aisle directory.
//
// Record 1 of every catalogue file is a header with the layout of its data records: the first field
// is then the number of live records, the first text field the signature. In the data records the
// first field tells live (-1) from deleted (0). docs/formats.md shows every byte.
#pragma once

#include "data/Champs.h"

namespace gastrelle {

inline constexpr std::int16_t vivant = -1;
inline constexpr std::int16_t supprime = 0;

/// A family of recipes, or a category of favourites.
struct RecFamille {
  std::int16_t actif = 0;
  TexteFixe<128> nomFamille;
  static constexpr auto champNom = &RecFamille::nomFamille;
};

/// In the header `idFamille` holds `dateFichiers`, the day of the restoration from the factory
/// copy.
struct RecRecette {
  std::int16_t actif = 0;
  std::int32_t idFamille = 0;
  TexteFixe<128> nomRecette;
  std::int32_t posTexte = 0;
  std::int32_t lgTexte = 0;
  std::int32_t posImage = 0;
  std::int32_t lgImage = 0;
  static constexpr auto champNom = &RecRecette::nomRecette;
};

/// Codes: milk 0 "?", 1 cow, 2 goat, 3 ewe; months 0 "?", 1 January to 12 December.
struct RecFromage {
  std::int16_t actif = 0;
  TexteFixe<128> nomFromage;
  TexteFixe<64> regionFromage;
  std::int16_t lait = 0;
  std::int16_t premierMois = 0;
  std::int16_t dernierMois = 0;
  std::int32_t posTexte = 0;
  std::int32_t lgTexte = 0;
  static constexpr auto champNom = &RecFromage::nomFromage;
};

/// A titled text: a menu, or a term, tip or trick.
struct RecFiche {
  std::int16_t actif = 0;
  TexteFixe<128> titre;
  std::int32_t posTexte = 0;
  std::int32_t lgTexte = 0;
  static constexpr auto champNom = &RecFiche::titre;
};

struct RecRegion {
  std::int16_t actif = 0;
  TexteFixe<64> nomRegion;
  static constexpr auto champNom = &RecRegion::nomRegion;
};

/// The nine counts are bottles in the cellar, by colour.
struct RecVin {
  std::int16_t actif = 0;
  TexteFixe<64> nomVin;
  std::int32_t idRegion = 0;
  std::int16_t nbBlanc = 0;
  std::int16_t nbRouge = 0;
  std::int16_t nbRose = 0;
  std::int16_t nbChampagne = 0;
  std::int16_t nbVinDoux = 0;
  std::int16_t nbJaune = 0;
  std::int16_t nbPaille = 0;
  std::int16_t nbMousseux = 0;
  std::int16_t nbGris = 0;
  std::int32_t posTexte = 0;
  std::int32_t lgTexte = 0;
  std::int32_t posNotesCave = 0;
  std::int32_t lgNotesCave = 0;
  static constexpr auto champNom = &RecVin::nomVin;
};

/// The grades of one year, 0 "Non classé" to 5 "Exceptionnelle". No header, no live flag: record n
/// is the year 1927 + n.
struct RecMillesime {
  std::int16_t bordeauxRouges = 0;
  std::int16_t bordeauxBlancs = 0;
  std::int16_t bourgognesRouges = 0;
  std::int16_t bourgognesBlancs = 0;
  std::int16_t crusDesCotesDuRhone = 0;
  std::int16_t alsace = 0;
  std::int16_t pouillySancerre = 0;
  std::int16_t anjouTouraineMuscadet = 0;
  std::int16_t crusDuBeaujolais = 0;
};

struct RecFavori {
  std::int16_t actif = 0;
  TexteFixe<128> nomFavori;
  std::int16_t idCategorie = 0;
  std::int32_t posAdresse = 0;
  std::int32_t lgAdresse = 0;
  TexteFixe<32> telephone;
  TexteFixe<32> fax;
  TexteFixe<256> email;
  TexteFixe<256> siteWeb;
  std::int32_t posTexte = 0;
  std::int32_t lgTexte = 0;
  static constexpr auto champNom = &RecFavori::nomFavori;
};

/// The one record of the preferences file.
struct RecPreferences {
  std::int16_t fenetreNormale = 0;  ///< 0: the first window opens maximised
  std::int16_t policeGrande = 0;    ///< 0: recipes print in 10 point, else in 20
  std::int16_t sansCopie = 0;       ///< 0: backup copy at the end
};

/// A row of the aisle directory: where the text of one aisle lies. Position 0: no text.
struct LigneRayon {
  std::int32_t posTexte = 0;
  std::int32_t lgTexte = 0;
};

template <>
inline constexpr auto champs<RecFamille> = std::tuple{
    Champ{"actif", 0, &RecFamille::actif},
    Champ{"nomFamille", 2, &RecFamille::nomFamille},
};

template <>
inline constexpr auto champs<RecRecette> = std::tuple{
    Champ{"actif", 0, &RecRecette::actif},           Champ{"idFamille", 2, &RecRecette::idFamille},
    Champ{"nomRecette", 6, &RecRecette::nomRecette}, Champ{"posTexte", 134, &RecRecette::posTexte},
    Champ{"lgTexte", 138, &RecRecette::lgTexte},     Champ{"posImage", 142, &RecRecette::posImage},
    Champ{"lgImage", 146, &RecRecette::lgImage},
};

template <>
inline constexpr auto champs<RecFromage> = std::tuple{
    Champ{"actif", 0, &RecFromage::actif},
    Champ{"nomFromage", 2, &RecFromage::nomFromage},
    Champ{"regionFromage", 130, &RecFromage::regionFromage},
    Champ{"lait", 194, &RecFromage::lait},
    Champ{"premierMois", 196, &RecFromage::premierMois},
    Champ{"dernierMois", 198, &RecFromage::dernierMois},
    Champ{"posTexte", 200, &RecFromage::posTexte},
    Champ{"lgTexte", 204, &RecFromage::lgTexte},
};

template <>
inline constexpr auto champs<RecFiche> = std::tuple{
    Champ{"actif", 0, &RecFiche::actif},
    Champ{"titre", 2, &RecFiche::titre},
    Champ{"posTexte", 130, &RecFiche::posTexte},
    Champ{"lgTexte", 134, &RecFiche::lgTexte},
};

template <>
inline constexpr auto champs<RecRegion> = std::tuple{
    Champ{"actif", 0, &RecRegion::actif},
    Champ{"nomRegion", 2, &RecRegion::nomRegion},
};

template <>
inline constexpr auto champs<RecVin> = std::tuple{
    Champ{"actif", 0, &RecVin::actif},
    Champ{"nomVin", 2, &RecVin::nomVin},
    Champ{"idRegion", 66, &RecVin::idRegion},
    Champ{"nbBlanc", 70, &RecVin::nbBlanc},
    Champ{"nbRouge", 72, &RecVin::nbRouge},
    Champ{"nbRose", 74, &RecVin::nbRose},
    Champ{"nbChampagne", 76, &RecVin::nbChampagne},
    Champ{"nbVinDoux", 78, &RecVin::nbVinDoux},
    Champ{"nbJaune", 80, &RecVin::nbJaune},
    Champ{"nbPaille", 82, &RecVin::nbPaille},
    Champ{"nbMousseux", 84, &RecVin::nbMousseux},
    Champ{"nbGris", 86, &RecVin::nbGris},
    Champ{"posTexte", 88, &RecVin::posTexte},
    Champ{"lgTexte", 92, &RecVin::lgTexte},
    Champ{"posNotesCave", 96, &RecVin::posNotesCave},
    Champ{"lgNotesCave", 100, &RecVin::lgNotesCave},
};

template <>
inline constexpr auto champs<RecMillesime> = std::tuple{
    Champ{"bordeauxRouges", 0, &RecMillesime::bordeauxRouges},
    Champ{"bordeauxBlancs", 2, &RecMillesime::bordeauxBlancs},
    Champ{"bourgognesRouges", 4, &RecMillesime::bourgognesRouges},
    Champ{"bourgognesBlancs", 6, &RecMillesime::bourgognesBlancs},
    Champ{"crusDesCotesDuRhone", 8, &RecMillesime::crusDesCotesDuRhone},
    Champ{"alsace", 10, &RecMillesime::alsace},
    Champ{"pouillySancerre", 12, &RecMillesime::pouillySancerre},
    Champ{"anjouTouraineMuscadet", 14, &RecMillesime::anjouTouraineMuscadet},
    Champ{"crusDuBeaujolais", 16, &RecMillesime::crusDuBeaujolais},
};

template <>
inline constexpr auto champs<RecFavori> = std::tuple{
    Champ{"actif", 0, &RecFavori::actif},
    Champ{"nomFavori", 2, &RecFavori::nomFavori},
    Champ{"idCategorie", 130, &RecFavori::idCategorie},
    Champ{"posAdresse", 132, &RecFavori::posAdresse},
    Champ{"lgAdresse", 136, &RecFavori::lgAdresse},
    Champ{"telephone", 140, &RecFavori::telephone},
    Champ{"fax", 172, &RecFavori::fax},
    Champ{"email", 204, &RecFavori::email},
    Champ{"siteWeb", 460, &RecFavori::siteWeb},
    Champ{"posTexte", 716, &RecFavori::posTexte},
    Champ{"lgTexte", 720, &RecFavori::lgTexte},
};

template <>
inline constexpr auto champs<RecPreferences> = std::tuple{
    Champ{"fenetreNormale", 0, &RecPreferences::fenetreNormale},
    Champ{"policeGrande", 2, &RecPreferences::policeGrande},
    Champ{"sansCopie", 4, &RecPreferences::sansCopie},
};

template <>
inline constexpr auto champs<LigneRayon> = std::tuple{
    Champ{"posTexte", 0, &LigneRayon::posTexte},
    Champ{"lgTexte", 4, &LigneRayon::lgTexte},
};

template <class Enregistrement, std::size_t longueur>
inline constexpr bool bienForme =
    detail::SeSuivent<Enregistrement>() && longueurEnregistrement<Enregistrement> == longueur;

static_assert(bienForme<RecFamille, 130>);
static_assert(bienForme<RecRecette, 150>);
static_assert(bienForme<RecFromage, 208>);
static_assert(bienForme<RecFiche, 138>);
static_assert(bienForme<RecRegion, 66>);
static_assert(bienForme<RecVin, 104>);
static_assert(bienForme<RecMillesime, 18>);
static_assert(bienForme<RecFavori, 724>);
static_assert(bienForme<RecPreferences, 6>);
static_assert(bienForme<LigneRayon, 8>);

/// What names a record (its `champNom`); a header keeps its signature there.
template <class Enregistrement>
auto& NomOuSignature(Enregistrement& e) {
  return e.*Enregistrement::champNom;
}

}  // namespace gastrelle
