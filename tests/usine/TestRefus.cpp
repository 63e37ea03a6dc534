// Every fault that the factory compiler refuses: by the reading itself, then by the program.

#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "usine/SourcesEssai.h"

namespace gastrelle::usine {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// One fault in good sources, and the one refusal that it brings.
struct Cas {
  const char* nom;
  std::function<void(SourcesEssai&)> faute;
  const char* fichier;
  const char* entree;
  const char* raison;  ///< its beginning
};

/// Replaces the first `ancien` of a source.
auto Remplace(const char* fichier, std::string ancien, std::string nouveau) {
  return [=](SourcesEssai& sources) { sources.Remplace(fichier, ancien, nouveau); };
}

auto Ajoute(const char* fichier, std::string suite) {
  return [=](SourcesEssai& sources) { sources.Ajoute(fichier, suite); };
}

/// Replaces a name by one of `longueur` bytes.
auto Allonge(const char* fichier, const std::string& nom, std::size_t longueur) {
  return Remplace(fichier, "\"" + nom + "\"", "\"" + std::string(longueur, 'x') + "\"");
}

/// Replaces the text of one of the entries `TexteLong(numero, longueur)`.
auto Retaille(const char* fichier, std::size_t numero, std::size_t longueur, std::size_t nouvelle) {
  return Remplace(fichier, TexteLong(numero, longueur), TexteLong(numero, nouvelle));
}

auto Supprime(const char* fichier) {
  return [=](SourcesEssai& sources) { sources.Supprime(fichier); };
}

/// Takes away the last entry of a rubric that is the last one of its file.
auto OteDerniere(const char* fichier, std::string rubrique) {
  return [=](SourcesEssai& sources) {
    const std::string contenu = sources.Lit(fichier);
    sources.Ecrit(fichier, contenu.substr(0, contenu.rfind("[[" + rubrique + "]]")));
  };
}

/// Takes away a whole section of the first recipe.
auto OteSection(const std::string& debut, const std::string& fin) {
  return [=](SourcesEssai& sources) {
    std::string contenu = sources.Lit("recettes/potages.toml");
    const std::size_t place = contenu.find(debut);
    contenu.erase(place, contenu.find(fin, place) - place);
    sources.Ecrit("recettes/potages.toml", contenu);
  };
}

/// Lets the first `nombre` texts of a source explain themselves after a colon.
auto Explique(const char* fichier, std::size_t nombre, std::string ancien = " mots",
              std::string nouveau = " : mots") {
  return [=](SourcesEssai& sources) {
    std::string contenu = sources.Lit(fichier);
    std::size_t place = 0;
    for (std::size_t i = 0; i < nombre; ++i) {
      place = contenu.find(ancien, contenu.find("[[", place));
      contenu.replace(place, ancien.size(), nouveau);
    }
    sources.Ecrit(fichier, contenu);
  };
}

constexpr const char* familles = "recettes/familles.toml";
constexpr const char* potages = "recettes/potages.toml";
constexpr const char* desserts = "recettes/desserts.toml";
constexpr const char* regions = "vins/regions.toml";
constexpr const char* vins = "vins/region-1.toml";
constexpr const char* derniersVins = "vins/region-27.toml";
constexpr const char* fromages = "fromages.toml";
constexpr const char* menus = "menus.toml";
constexpr const char* trucs = "trucs.toml";
constexpr const char* favoris = "favoris.toml";
constexpr const char* millesimes = "millesimes.toml";

const std::vector<Cas>& CasDeCaracteres() {
  static const std::vector<Cas> cas{
      {"CaractereHorsDeLaPageDansUnTitre", Remplace(potages, "\"Bisque\"", "\"Bisque ☕\""), potages,
       "Bisque ☕", "titre : [☕] (U+2615) ne tient pas en Windows-1252"},
      {"CaractereHorsDeLaPageDansUneEtape", Remplace(potages, "Éplucher", "Éplucher ½ ou ⅓"),
       potages, "Velouté", "etapes : [⅓] (U+2153) ne tient pas en Windows-1252"},
      {"CaractereHorsDeLaPageDansUneNote", Remplace(vins, "mots", "mořs"), vins, "Vin 1",
       "texte : [ř] (U+0159) ne tient pas en Windows-1252"},
      {"ApostropheCourbe", Remplace(fromages, "mots", "m’ts"), fromages, "Fromage 1",
       "texte : guillemets « », apostrophe droite"},
      {"PonctuationCollee", Remplace(trucs, "mots", "mots;"), trucs, "Truc 1",
       "texte : blanc attendu devant ;"},
      {"LigatureOubliee", Remplace(menus, "\"Menu 2\"", "\"Oeufs\""), menus, "Oeufs",
       "titre : ligature œ attendue"},
      {"TitreSurDeuxLignes", Remplace(menus, "\"Menu 2\"", "\"Menu\\n2\""), menus, "Menu",
       "titre : une seule ligne attendue"},
  };
  return cas;
}

const std::vector<Cas>& CasDeLongueurs() {
  static const std::string x65(65, 'x');
  static const std::string x129(129, 'x');
  static const std::vector<Cas> cas{
      {"FamilleTropLongue", Allonge(familles, "Potages", 129), familles, x129.c_str(),
       "nom : 129 caractères, au plus 128 permis"},
      {"TitreDeRecetteTropLong", Allonge(potages, "Bisque", 129), potages, x129.c_str(),
       "titre : 129 caractères, au plus 128 permis"},
      {"RegionTropLongue", Allonge(regions, "Région 1", 65), regions, x65.c_str(),
       "nom : 65 caractères, au plus 64 permis"},
      {"VinTropLong", Allonge(vins, "Vin 1", 65), vins, x65.c_str(),
       "nom : 65 caractères, au plus 64 permis"},
      {"FromageTropLong", Allonge(fromages, "Fromage 1", 129), fromages, x129.c_str(),
       "nom : 129 caractères, au plus 128 permis"},
      {"TitreDeMenuTropLong", Allonge(menus, "Menu 1", 129), menus, x129.c_str(),
       "titre : 129 caractères, au plus 128 permis"},
      {"TitreDeTrucTropLong", Allonge(trucs, "Truc 1", 129), trucs, x129.c_str(),
       "titre : 129 caractères, au plus 128 permis"},
      {"CategorieTropLongue", Allonge(favoris, "Catégorie 1", 129), favoris, x129.c_str(),
       "nom : 129 caractères, au plus 128 permis"},
      {"FavoriTropLong", Allonge(favoris, "Favori 1", 129), favoris, x129.c_str(),
       "nom : 129 caractères, au plus 128 permis"},
      {"TelephoneTropLong", Allonge(favoris, "01 02 03 04 05", 33), favoris, "Favori 1",
       "telephone : 33 caractères, au plus 32 permis"},
      {"FaxTropLong", Remplace(favoris, "fax = \"\"", "fax = \"" + std::string(33, '0') + "\""),
       favoris, "Favori 1", "fax : 33 caractères, au plus 32 permis"},
      {"CourrielTropLong", Allonge(favoris, "a@exemple.fr", 257), favoris, "Favori 1",
       "email : 257 caractères, au plus 256 permis"},
      {"SiteTropLong", Allonge(favoris, "https://exemple.fr", 257), favoris, "Favori 1",
       "siteWeb : 257 caractères, au plus 256 permis"},
      {"AdresseTropLongue", Remplace(favoris, "1, rue du Four", std::string(500, 'x')), favoris,
       "Favori 1", "adresse : 513 caractères, au plus 512 permis"},
      {"NotesDeFavoriTropLongues", Remplace(favoris, "Note numéro 1.", TexteLong(1, 30001)),
       favoris, "Favori 1", "notes : 30001 caractères, au plus 30000 permis"},
      {"NoteDeVinTropLongue", Retaille(vins, 1, 200, 30001), vins, "Vin 1",
       "texte : 30001 caractères, au plus 30000 permis"},
      {"NoteDeFromageTropLongue", Retaille(fromages, 1, 201, 30001), fromages, "Fromage 1",
       "texte : 30001 caractères, au plus 30000 permis"},
      {"MenuTropLong", Retaille(menus, 1, 121, 30001), menus, "Menu 1",
       "texte : 30001 caractères, au plus 30000 permis"},
      {"TrucTropLong", Retaille(trucs, 1, 120, 30001), trucs, "Truc 1",
       "texte : 30001 caractères, au plus 30000 permis"},
      {"EtapeTropLongue", Remplace(potages, "Éplucher.", TexteLong(1, 2001)), potages, "Velouté",
       "etapes : 2001 caractères, au plus 2000 permis"},
      {"RecetteTropLongueEnTout",
       [](SourcesEssai& sources) {
         std::string etapes;
         for (std::size_t i = 0; i < 15; ++i) {
           etapes += "\"" + TexteLong(i, 2000) + "\",\n";
         }
         sources.Remplace(potages, "\"Éplucher.\",\n", etapes);
       },
       potages, "Velouté", "30288 caractères en tout, au plus 30000 permis"},
      {"NoteDeVinTropCourte", Retaille(vins, 1, 200, 199), vins, "Vin 1",
       "texte : 199 caractères, au moins 200 attendus"},
      {"NoteDeFromageTropCourte", Retaille(fromages, 1, 201, 199), fromages, "Fromage 1",
       "texte : 199 caractères, au moins 200 attendus"},
      {"MenuTropCourt", Retaille(menus, 1, 121, 119), menus, "Menu 1",
       "texte : 119 caractères, au moins 120 attendus"},
      {"TrucTropCourt", Retaille(trucs, 1, 120, 119), trucs, "Truc 1",
       "texte : 119 caractères, au moins 120 attendus"},
      {"ConseilTropCourt", Remplace(potages, "Ce plat se prépare très bien la veille.", "Bien."),
       potages, "Velouté", "conseil : 5 caractères, au moins 25 attendus"},
      {"NomVide", Allonge(fromages, "Fromage 1", 0), fromages, "",
       "nom : 0 caractères, au moins 1 attendus"},
  };
  return cas;
}

const std::vector<Cas>& CasDInconnus() {
  static const std::vector<Cas> cas{
      {"FichierDeFamilleInconnu", Remplace(familles, "\"potages\"", "\"soupes\""), familles,
       "Potages", "fichier : [recettes/soupes.toml] n'existe pas"},
      {"FichierDeFamilleAilleurs", Remplace(familles, "\"potages\"", "\"../fromages\""), familles,
       "Potages", "fichier : [recettes/../fromages.toml] n'existe pas"},
      {"FichierDeRegionInconnu", Supprime(vins), regions, "Région 1",
       "fichier : [vins/region-1.toml] n'existe pas"},
      {"FamilleSansFichier", Remplace(familles, "fichier = \"desserts\"", ""), familles, "Desserts",
       "fichier : texte attendu"},
      {"SourceQueRienNeNomme",
       [](SourcesEssai& sources) { sources.Ecrit("vins/jura.toml", "# à venir\n"); },
       "vins/jura.toml", "fichier", "rien ne le nomme"},
      {"SourceAbsente", Supprime(menus), menus, "fichier", "introuvable"},
      {"CategorieInconnue",
       Remplace(favoris, "categorie = \"Catégorie 2\"", "categorie = \"Catégorie 4\""), favoris,
       "Favori 1", "categorie : [Catégorie 4] inconnue"},
      {"ImageAbsente", [](SourcesEssai& sources) { sources.SupprimeImage("potages.png"); },
       familles, "Potages", "illustration : [potages.png] n'existe pas"},
      {"ImageDansUnAutreDossier",
       Remplace(familles, "\"potages.png\"", "\"../images/potages.png\""), familles, "Potages",
       "illustration : [../images/potages.png] n'existe pas"},
      {"ImageQuiEstUnDossier", Remplace(familles, "\"potages.png\"", "\".\""), familles, "Potages",
       "illustration : [.] n'existe pas"},
      {"LaitInconnu", Remplace(fromages, "\"vache\"", "\"bufflonne\""), fromages, "Fromage 1",
       "lait : [bufflonne] inconnu"},
      {"PremierMoisInconnu", Remplace(fromages, "de = \"mai\"", "de = \"floréal\""), fromages,
       "Fromage 1", "de : [floréal] inconnu"},
      {"DernierMoisInconnu", Remplace(fromages, "a = \"octobre\"", "a = \"Octobre\""), fromages,
       "Fromage 1", "a : [Octobre] inconnu"},
      {"RegionDeFromageInconnue", Remplace(fromages, "\"Savoie\"", "\"Haut-Doubs\""), fromages,
       "Fromage 1", "region : [Haut-Doubs] inconnu"},
      {"FromageSansRegion", Remplace(fromages, "region = \"Savoie\"\n", ""), fromages, "Fromage 1",
       "region : [] inconnu"},
      {"SaisonInconnue", Remplace(potages, "\"été\"", "\"l'été\""), potages, "Velouté",
       "saison : [l'été] inconnu"},
      {"RegionDeRecetteInconnue", Remplace(potages, "pour = ", "region = \"Brie\"\npour = "),
       potages, "Velouté", "region : [Brie] inconnu"},
      {"ImageDeRecetteAbsente", Remplace(potages, "pour = ", "image = \"bisque.png\"\npour = "),
       potages, "Velouté", "image : [bisque.png] n'existe pas"},
      {"DegreTropHaut", Remplace(millesimes, "alsace = 2", "alsace = 6"), millesimes, "1928",
       "alsace : nombre de 0 à 5 attendu"},
      {"DegreNegatif", Remplace(millesimes, "alsace = 2", "alsace = -1"), millesimes, "1928",
       "alsace : nombre de 0 à 5 attendu"},
      {"DegreOublie", Remplace(millesimes, "alsace = 2\n", ""), millesimes, "1928",
       "alsace : nombre de 0 à 5 attendu"},
      {"AnneeSautee", Remplace(millesimes, "an = 1930", "an = 1931"), millesimes, "1931",
       "an : 1930 attendu"},
      {"AnneeRepetee", Remplace(millesimes, "an = 1930", "an = 1929"), millesimes, "1929",
       "an : 1930 attendu"},
      {"AnneeTropAncienne", Remplace(millesimes, "an = 1928", "an = 1927"), millesimes, "1927",
       "an : nombre de 1928 à 2100 attendu"},
      {"CleInconnue", Remplace(vins, "texte = ", "note = \"\"\ntexte = "), vins, "Vin 1",
       "clé inconnue : note"},
      {"CleInconnueDUneCategorie", Remplace(favoris, "[[categorie]]", "[[categorie]]\nx = 1"),
       favoris, "Catégorie 1", "clé inconnue : x"},
      {"CleInconnueDUneAnnee", Ajoute(millesimes, "jura = 3\n"), millesimes, "1930",
       "clé inconnue : jura"},
      {"RubriqueInconnue", Ajoute(potages, "[[recete]]\n"), potages, "recete", "rubrique inconnue"},
      {"TomlCasse", Remplace(trucs, "titre = \"Truc 5\"", "titre = \"Truc 5"), trucs, "fichier",
       "TOML : "},
      {"CleRepetee", Remplace(menus, "titre = \"Menu 5\"", "titre = \"a\"\ntitre = \"b\""), menus,
       "fichier", "TOML : "},
  };
  return cas;
}

const std::vector<Cas>& CasDeNombres() {
  static const std::vector<Cas> cas{
      {"TropPeuDeFromages", OteDerniere(fromages, "fromage"), fromages, "fromage",
       "121 entrées, au moins 122 attendues"},
      {"TropPeuDeMenus", OteDerniere(menus, "menu"), menus, "menu",
       "14 entrées, au moins 15 attendues"},
      {"TropPeuDeTrucs", OteDerniere(trucs, "truc"), trucs, "truc",
       "166 entrées, au moins 167 attendues"},
      {"TropPeuDeVins", OteDerniere(derniersVins, "vin"), "vins", "vin",
       "562 entrées, au moins 563 attendues"},
      {"TropPeuDeFavoris", OteDerniere(favoris, "favori"), favoris, "favori",
       "13 entrées, au moins 14 attendues"},
      {"TropPeuDeCategories", Remplace(favoris, "[[categorie]]\nnom = \"Catégorie 3\"\n", ""),
       favoris, "categorie", "2 entrées, au moins 3 attendues"},
      {"TropPeuDeRegions",
       [](SourcesEssai& sources) {
         OteDerniere(regions, "region")(sources);
         sources.Ajoute(vins, sources.Lit(derniersVins));
         sources.Supprime(derniersVins);
       },
       regions, "region", "26 entrées, au moins 27 attendues"},
      {"AucuneRecetteDansUneFamille",
       [](SourcesEssai& sources) { sources.Ecrit(desserts, "# à venir\n"); }, desserts, "recette",
       "aucune entrée"},
      {"AucuneFamille", [](SourcesEssai& sources) { sources.Ecrit(familles, ""); }, familles,
       "famille", "aucune entrée"},
  };
  return cas;
}

const std::vector<Cas>& CasDeDoubles() {
  static const std::vector<Cas> cas{
      {"FamilleEnDouble", Remplace(familles, "\"Desserts\"", "\"POTAGES\""), familles, "POTAGES",
       "nom : déjà donné en recettes/familles.toml:1"},
      {"FichierDeFamilleEnDouble", Remplace(familles, "\"desserts\"", "\"potages\""), familles,
       "Desserts", "fichier : déjà donné en recettes/familles.toml:1"},
      {"TitreDeRecetteEnDouble", Remplace(desserts, "\"Flan\"", "\"Velouté\""), desserts, "Velouté",
       "titre : déjà donné en recettes/potages.toml:1"},
      {"RegionEnDouble", Remplace(regions, "\"Région 2\"", "\"Région 1\""), regions, "Région 1",
       "nom : déjà donné en vins/regions.toml:1"},
      {"VinEnDouble", Remplace(derniersVins, "\"Vin 27\"", "\"vin 1\""), derniersVins, "vin 1",
       "nom : déjà donné en vins/region-1.toml:1"},
      {"FromageEnDouble", Remplace(fromages, "\"Fromage 2\"", "\"Fromage 1\""), fromages,
       "Fromage 1", "nom : déjà donné en fromages.toml:1"},
      {"MenuEnDouble", Remplace(menus, "\"Menu 2\"", "\"Menu 1\""), menus, "Menu 1",
       "titre : déjà donné en menus.toml:1"},
      {"TrucEnDouble", Remplace(trucs, "\"Truc 2\"", "\"Truc 1\""), trucs, "Truc 1",
       "titre : déjà donné en trucs.toml:1"},
      {"CategorieEnDouble", Remplace(favoris, "\"Catégorie 3\"", "\"CATÉGORIE 1\""), favoris,
       "CATÉGORIE 1", "nom : déjà donné en favoris.toml:1"},
      {"FavoriEnDouble", Remplace(favoris, "\"Favori 2\"", "\"Favori 1\""), favoris, "Favori 1",
       "nom : déjà donné en favoris.toml:10"},
      {"TexteDeVinEnDouble", Remplace(derniersVins, TexteLong(27, 200), TexteLong(1, 200)),
       derniersVins, "Vin 27", "texte : déjà donné en vins/region-1.toml:1"},
      {"TexteDUnAutreCatalogue", Remplace(menus, TexteLong(1, 121), TexteLong(1, 201)), menus,
       "Menu 1", "texte : déjà donné en fromages.toml:1"},
      {"NotesDeFavoriEnDouble", Remplace(favoris, "numéro 2", "numéro 1"), favoris, "Favori 2",
       "notes : déjà donné en favoris.toml:10"},
      {"TexteDeRecetteEnDouble", Remplace(desserts, "le tout : Flan", "le tout : Bisque"), desserts,
       "Flan", "etapes : déjà donné en recettes/potages.toml:18"},
  };
  return cas;
}

const std::vector<Cas>& CasDeSections() {
  static const std::vector<Cas> cas{
      {"SansTitre", OteSection("titre", "saison"), potages, "entrée 1", "titre : texte attendu"},
      {"SansSaison", OteSection("saison", "pour"), potages, "Velouté", "saison : [] inconnu"},
      {"SansPour", OteSection("pour", "preparation"), potages, "Velouté", "pour : texte attendu"},
      {"SansPreparation", OteSection("preparation", "cuisson"), potages, "Velouté",
       "preparation : texte attendu"},
      {"SansIngredients", OteSection("ingredients", "etapes"), potages, "Velouté",
       "ingredients : au moins 2 attendus"},
      {"SansEtapes", OteSection("etapes", "conseil"), potages, "Velouté",
       "etapes : au moins 3 attendus"},
      {"SansConseil", OteSection("conseil", "\n[["), potages, "Velouté", "conseil : texte attendu"},
      {"UnSeulIngredient", Remplace(potages, "\"Sel\",", ""), potages, "Velouté",
       "ingredients : au moins 2 attendus"},
      {"DeuxEtapes", Remplace(potages, "\"Servir.\",", ""), potages, "Velouté",
       "etapes : au moins 3 attendus"},
      {"EtapeVide", Remplace(potages, "Servir.", ""), potages, "Velouté",
       "etapes : 0 caractères, au moins 1 attendus"},
  };
  return cas;
}

/// The ways of the house: each catalogue under those that hold for it.
const std::vector<Cas>& CasDUsages() {
  static const std::vector<Cas> cas{
      {"DureeEnToutesLettres", Remplace(potages, "\"20 min\"", "\"20 minutes\""), potages,
       "Velouté", "preparation : min, h ou s attendu"},
      {"DureeTropPrecise", Remplace(potages, "Éplucher.", "Cuire 33 min."), potages, "Velouté",
       "etapes : au-dessus de 10 min"},
      {"FourSansThermostat", Remplace(potages, "Éplucher.", "Chauffer le four à 180 °C."), potages,
       "Velouté", "etapes : thermostat attendu"},
      {"ConseilALImperatif", Remplace(potages, "Ce plat se prépare", "Préparez ce plat"), potages,
       "Velouté", "conseil : le lecteur n'est pas interpellé"},
      {"PersilEnBotte", Remplace(potages, "1 oignon", "1 botte de persil"), potages, "Velouté",
       "ingredients : persil compté en brins"},
      {"FourDUnTruc", Remplace(trucs, "mots mots", "mots au four à 180 °C"), trucs, "Truc 1",
       "texte : thermostat attendu"},
      {"AgeDUnVinEnLettres", Remplace(vins, "mots mots", "garder dix ans"), vins, "Vin 1",
       "texte : âge en chiffres attendu"},
      {"ServiceDUnVin", Remplace(vins, "mots mots", "servir à 14 à 16 °C"), vins, "Vin 1",
       "texte : trait d'union attendu"},
      {"ServiceDUnFromage", Remplace(fromages, "mots mots", "servir à 14 à 16 °C"), fromages,
       "Fromage 1", "texte : trait d'union attendu"},
      {"ServiceDUnMenu", Remplace(menus, "mots mots", "servir à 14 à 16 °C"), menus, "Menu 1",
       "texte : trait d'union attendu"},
      {"FourDUnMenu", Remplace(menus, "mots mots", "enfourner à 180 °C"), menus, "Menu 1",
       "texte : thermostat attendu"},
      {"NoteDeFavoriALImperatif", Remplace(favoris, "Note numéro 1.", "Goûtez la note 1."), favoris,
       "Favori 1", "notes : le lecteur n'est pas interpellé"},
      {"TropDeDeuxPointsAuxTrucs", Explique(trucs, 84), trucs, "deux-points",
       "84 textes sur 167 s'expliquent"},
      {"TropDeDeuxPointsAuxFromages", Explique(fromages, 62), fromages, "deux-points",
       "62 textes sur 122 s'expliquent"},
      {"TropDeDeuxPointsAuxVins", Explique(derniersVins, 282), "vins", "deux-points",
       "282 textes sur 563 s'expliquent"},
      {"TropDeDeuxPointsAuxConseils", Explique(potages, 2, "Ce plat se", "Ce plat : se"),
       "recettes", "deux-points", "2 textes sur 3 s'expliquent"},
  };
  return cas;
}

class Refuse : public testing::TestWithParam<Cas> {
 protected:
  void SetUp() override { GetParam().faute(sources); }

  SourcesEssai sources;
};

TEST_P(Refuse, UneFautePourUnRefus) {
  sources.Compile();
  EXPECT_THAT(sources.journal.refus(),
              ElementsAre(AllOf(Field(&Refus::lieu, Field(&Lieu::fichier, GetParam().fichier)),
                                Field(&Refus::entree, GetParam().entree),
                                Field(&Refus::raison, StartsWith(GetParam().raison)))));
}

TEST_P(Refuse, LeProgrammeLeDitEtNEcritRien) {
  const SourcesEssai::Execution execution = sources.LanceFabrique();
  EXPECT_EQ(execution.statut, 1);
  EXPECT_THAT(execution.ecrits, IsEmpty());
  EXPECT_THAT(execution.erreurs,
              Contains(AllOf(StartsWith(GetParam().fichier), HasSubstr(GetParam().raison))));
  EXPECT_EQ(execution.erreurs.back(), "1 refus, rien n'est écrit");
}

std::string NomDuCas(const testing::TestParamInfo<Cas>& cas) {
  return cas.param.nom;
}

INSTANTIATE_TEST_SUITE_P(Caractere, Refuse, testing::ValuesIn(CasDeCaracteres()), NomDuCas);
INSTANTIATE_TEST_SUITE_P(Longueur, Refuse, testing::ValuesIn(CasDeLongueurs()), NomDuCas);
INSTANTIATE_TEST_SUITE_P(Inconnu, Refuse, testing::ValuesIn(CasDInconnus()), NomDuCas);
INSTANTIATE_TEST_SUITE_P(Nombre, Refuse, testing::ValuesIn(CasDeNombres()), NomDuCas);
INSTANTIATE_TEST_SUITE_P(Double, Refuse, testing::ValuesIn(CasDeDoubles()), NomDuCas);
INSTANTIATE_TEST_SUITE_P(Usage, Refuse, testing::ValuesIn(CasDUsages()), NomDuCas);
INSTANTIATE_TEST_SUITE_P(Section, Refuse, testing::ValuesIn(CasDeSections()), NomDuCas);

}  // namespace
}  // namespace gastrelle::usine
