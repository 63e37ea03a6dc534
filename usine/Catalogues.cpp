#include "usine/Catalogues.h"

#include <algorithm>
#include <set>

#include "data/CatalogueFichiers.h"
#include "data/Limites.h"
#include "data/Texte1252.h"
#include "usine/Source.h"
#include "usine/Usages.h"

namespace gastrelle::usine {
namespace {

using namespace std::string_view_literals;

constexpr Mesure nomLong{1, limiteNom, formes::nom};
constexpr Mesure nomCourt{1, 64, formes::nom};
constexpr Mesure nomFichier{1, 64, formes::brut};
constexpr Mesure portrait{200, std::size_t{limiteTexte},
                          formes::Soumet(formes::prose, usages::portrait)};
constexpr Mesure noteDeVin{200, std::size_t{limiteTexte},
                           formes::Soumet(formes::prose, usages::portrait | usages::vin)};
constexpr Mesure menu{
    120, std::size_t{limiteTexte},
    formes::Soumet(formes::prose, usages::portrait | usages::cuisine | usages::fourneau)};
constexpr Mesure truc{120, std::size_t{limiteTexte},
                      formes::Soumet(formes::prose, usages::cuisine)};
constexpr Forme deRecette =
    formes::Soumet(formes::phrase, usages::recette | usages::cuisine | usages::fourneau);
constexpr Mesure ligne{1, 2000, deRecette};
constexpr Mesure ligneLibre{0, 2000, deRecette};
constexpr Mesure ingredient{1, 2000, formes::Soumet(formes::phrase, usages::ingredient)};
constexpr Mesure conseil{25, 2000, deRecette};

/// What the advice of a recipe begins with, in the form that goes to file.
constexpr std::string_view legendeConseil = "Conseil\xA0: ";

constexpr std::array laits{"?"sv, "vache"sv, "chèvre"sv, "brebis"sv};
constexpr std::array mois{"?"sv,       "janvier"sv,  "février"sv, "mars"sv, "avril"sv,
                          "mai"sv,     "juin"sv,     "juillet"sv, "août"sv, "septembre"sv,
                          "octobre"sv, "novembre"sv, "décembre"sv};
/// The great regions that cheeses and recipes stand under; a recipe may have none.
constexpr std::array grandesRegions{""sv,
                                    "Alsace"sv,
                                    "Aquitaine"sv,
                                    "Auvergne"sv,
                                    "Bourgogne"sv,
                                    "Bretagne"sv,
                                    "Champagne"sv,
                                    "Corse"sv,
                                    "Dauphiné et Vivarais"sv,
                                    "Franche-Comté"sv,
                                    "Gascogne et Pyrénées"sv,
                                    "Île-de-France"sv,
                                    "Languedoc et Roussillon"sv,
                                    "Limousin"sv,
                                    "Lorraine"sv,
                                    "Lyonnais"sv,
                                    "Nord et Picardie"sv,
                                    "Normandie"sv,
                                    "Pays basque et Béarn"sv,
                                    "Pays de la Loire"sv,
                                    "Périgord et Quercy"sv,
                                    "Poitou et Charentes"sv,
                                    "Provence"sv,
                                    "Rouergue"sv,
                                    "Savoie"sv,
                                    "Val de Loire"sv};
constexpr std::array saisons{"toute l'année"sv,
                             "printemps"sv,
                             "printemps et été"sv,
                             "du printemps à l'automne"sv,
                             "été"sv,
                             "été et automne"sv,
                             "de l'été à l'hiver"sv,
                             "automne"sv,
                             "automne et hiver"sv,
                             "de l'automne au printemps"sv,
                             "hiver"sv,
                             "hiver et printemps"sv,
                             "de l'hiver à l'été"sv};
constexpr std::array clesFamille{"nom"sv, "fichier"sv, "illustration"sv};
constexpr std::array clesRegion{"nom"sv, "fichier"sv};
constexpr std::array clesRecette{"titre"sv,       "saison"sv,  "region"sv, "pour"sv,
                                 "preparation"sv, "cuisson"sv, "repos"sv,  "ingredients"sv,
                                 "etapes"sv,      "conseil"sv, "image"sv};
constexpr std::array clesVin{"nom"sv, "texte"sv};
constexpr std::array clesFromage{"nom"sv, "region"sv, "lait"sv, "de"sv, "a"sv, "texte"sv};
constexpr std::array clesFiche{"titre"sv, "texte"sv};
constexpr std::array clesCategorie{"nom"sv};
constexpr std::array clesFavori{"nom"sv, "categorie"sv, "adresse"sv, "telephone"sv,
                                "fax"sv, "email"sv,     "siteWeb"sv, "notes"sv};
/// The year, then its growing areas in the order of the record.
constexpr std::array<const char*, 1 + nombreTerroirs> colonnes{"an",
                                                               "bordeauxRouges",
                                                               "bordeauxBlancs",
                                                               "bourgognesRouges",
                                                               "bourgognesBlancs",
                                                               "crusDesCotesDuRhone",
                                                               "alsace",
                                                               "pouillySancerre",
                                                               "anjouTouraineMuscadet",
                                                               "crusDuBeaujolais"};
const std::vector<std::string_view> clesAnnee(colonnes.begin(), colonnes.end());

/// Record 1 is the header, so the first entry of a list is record 2.
template <class Nombre>
Nombre Numero(std::size_t rang) {
  return static_cast<Nombre>(rang + 2);
}

/// A bare file name can't lead out of its folder.
bool EstNomNu(std::string_view fichier) {
  return fichier.find_first_of("/\\") == std::string_view::npos && !fichier.starts_with('.');
}

/// A group of entries with a source file of its own: a recipe family, a wine region.
struct Groupe {
  std::string fichier;  ///< empty if there is none to read
  std::string illustration;
};

class Lecture {
 public:
  Lecture(std::filesystem::path dossier, std::filesystem::path images, Journal& journal)
      : dossier_(std::move(dossier)), images_(std::move(images)), journal_(journal) {}

  Catalogues Tout() {
    Recettes();
    Vins();
    Fromages();
    Fiches("menus.toml", "menu", menu, lus_.menus);
    Fiches("trucs.toml", "truc", truc, lus_.trucs);
    Favoris();
    Millesimes();
    if (journal_.refus().empty()) {  // an unread entry would be missed again in the counts
      ExigeNombres();
      ExigeToutLu();
      ExigeVariete();
    }
    return std::move(lus_);
  }

 private:
  void Lit(const std::string& fichier, std::initializer_list<Rubrique> rubriques) {
    sourcesLues_.insert(fichier);
    LitSource(dossier_, fichier, rubriques, journal_);
  }

  /// The groups of a catalogue, their names going to `noms`.
  std::vector<Groupe> Groupes(const std::string& dossier, const std::string& fichier,
                              Rubrique rubrique, Mesure mesure, std::vector<std::string>& noms) {
    std::vector<Groupe> groupes;
    Uniques nomsUniques;
    Uniques fichiersUniques;
    rubrique.pourChaque = [&](const Entree& e) {
      noms.push_back(e.Texte("nom", mesure));
      nomsUniques.Exige(e, "nom", noms.back());
      const std::string source = e.Texte("fichier", nomFichier);
      const bool neuf = fichiersUniques.Exige(e, "fichier", source);
      groupes.push_back(
          {neuf ? FichierDe(e, dossier, source) : "", Illustration(e, "illustration")});
    };
    Lit(dossier + "/" + fichier, {rubrique});
    return groupes;
  }

  [[nodiscard]] std::string FichierDe(const Entree& e, const std::string& dossier,
                                      const std::string& source) const {
    std::string fichier = dossier + "/" + source + ".toml";
    if (!EstNomNu(source) || !std::filesystem::is_regular_file(dossier_ / fichier)) {
      e.Refuse("fichier", "[" + VersUtf8(fichier) + "] n'existe pas");
      return {};
    }
    return fichier;
  }

  [[nodiscard]] std::string Illustration(const Entree& e, const char* cle) const {
    constexpr Mesure mesure{0, nomFichier.plus, formes::brut};
    std::string illustration = e.Texte(cle, mesure);
    if (!illustration.empty() &&
        (!EstNomNu(illustration) || !std::filesystem::is_regular_file(images_ / illustration))) {
      e.Refuse(cle, "[" + VersUtf8(illustration) + "] n'existe pas");
    }
    return illustration;
  }

  /// The word of a table that a value is, as it goes to file.
  static std::string Mot(const Entree& e, const char* cle, std::span<const std::string_view> mots) {
    return DepuisUtf8(mots[static_cast<std::size_t>(e.Code(cle, mots))]);
  }

  std::string TexteRecette(const Entree& e) {
    std::string texte = "Pour " + e.Texte("pour", ligne);
    const auto rubrique = [&](std::string_view legende, const std::string& valeur) {
      if (!valeur.empty()) {
        texte += "\n" + std::string(legende) + " : " + valeur;
      }
    };
    rubrique("Préparation"_1252, e.Texte("preparation", ligne));
    rubrique("Cuisson", e.Texte("cuisson", ligneLibre));
    rubrique("Repos", e.Texte("repos", ligneLibre));
    rubrique("Saison", Mot(e, "saison", saisons));
    rubrique("Région"_1252, Mot(e, "region", grandesRegions));
    texte += "\n\n" + std::string("Ingrédients"_1252);
    for (const std::string& deLaListe : e.Textes("ingredients", 2, ingredient)) {
      texte += "\n- " + deLaListe;
    }
    const std::vector<std::string> etapes = e.Textes("etapes", 3, ligne);
    texte += "\n\n" + std::string("Étapes"_1252);
    for (std::size_t i = 0; i < etapes.size(); ++i) {
      texte += "\n" + std::to_string(i + 1) + ". " + etapes[i];
    }
    texte = Compose(texte + "\n\n" + std::string(legendeConseil) + e.Texte("conseil", conseil));
    if (texte.size() > std::size_t{limiteTexte}) {
      e.Refuse(std::to_string(texte.size()) + " caractères en tout, au plus " +
               std::to_string(std::size_t{limiteTexte}) + " permis");
    }
    return texte;
  }

  void Recettes() {
    const std::vector<Groupe> familles = Groupes(
        "recettes", "familles.toml", {"famille", "nom", clesFamille, {}}, nomLong, lus_.familles);
    Uniques titres;
    for (std::size_t i = 0; i < familles.size(); ++i) {
      LitGroupe(familles[i],
                {"recette", "titre", clesRecette, [&](const Entree& e) {
                   Recette recette{
                       e.Texte("titre", nomLong), Numero<std::int32_t>(i), TexteRecette(e), {}};
                   const std::string sienne = Illustration(e, "image");
                   const std::string& image = sienne.empty() ? familles[i].illustration : sienne;
                   recette.image = image.empty() ? "" : "/" + image;
                   titres.Exige(e, "titre", recette.titre);
                   textes_.Exige(e, "etapes", recette.texte);
                   lus_.recettes.push_back(std::move(recette));
                 }});
    }
  }

  void LitGroupe(const Groupe& groupe, Rubrique rubrique) {
    if (!groupe.fichier.empty()) {
      Lit(groupe.fichier, {std::move(rubrique)});
    }
  }

  void Vins() {
    const std::vector<Groupe> regions =
        Groupes("vins", "regions.toml", {"region", "nom", clesRegion, {}}, nomCourt, lus_.regions);
    Uniques noms;
    for (std::size_t i = 0; i < regions.size(); ++i) {
      LitGroupe(regions[i], {"vin", "nom", clesVin, [&](const Entree& e) {
                               lus_.vins.push_back({e.Texte("nom", nomCourt),
                                                    Numero<std::int32_t>(i), Texte(e, noteDeVin)});
                               noms.Exige(e, "nom", lus_.vins.back().nom);
                             }});
    }
  }

  /// The text of an entry, as it goes into the pool; it stands nowhere else.
  std::string Texte(const Entree& e, Mesure mesure, const char* cle = "texte") {
    std::string texte = Compose(e.Texte(cle, mesure));
    textes_.Exige(e, cle, texte);
    return texte;
  }

  void Fromages() {
    Uniques noms;
    Lit("fromages.toml",
        {{"fromage", "nom", clesFromage, [&](const Entree& e) {
            lus_.fromages.push_back(
                {e.Texte("nom", nomLong), Mot(e, "region", std::span(grandesRegions).subspan(1)),
                 e.Code("lait", laits), e.Code("de", mois), e.Code("a", mois), Texte(e, portrait)});
            noms.Exige(e, "nom", lus_.fromages.back().nom);
          }}});
  }

  void Fiches(const std::string& fichier, const char* cle, Mesure mesure,
              std::vector<Fiche>& fiches) {
    Uniques titres;
    Lit(fichier, {{cle, "titre", clesFiche, [&](const Entree& e) {
                     fiches.push_back({e.Texte("titre", nomLong), Texte(e, mesure)});
                     titres.Exige(e, "titre", fiches.back().titre);
                   }}});
  }

  void Favoris() {
    constexpr Mesure numero{0, 32, formes::brut};
    constexpr Mesure adresseWeb{0, 256, formes::brut};
    constexpr Mesure adressePostale{0, 512, formes::adresse};
    constexpr Mesure noteLibre{0, std::size_t{limiteTexte}};
    Uniques categories;
    Uniques noms;
    const auto categorie = [&](const Entree& e) {
      lus_.categories.push_back(e.Texte("nom", nomLong));
      categories.Exige(e, "nom", lus_.categories.back());
    };
    const auto favori = [&](const Entree& e) {
      lus_.favoris.push_back(
          {e.Texte("nom", nomLong), Categorie(e), Compose(e.Texte("adresse", adressePostale)),
           e.Texte("telephone", numero), e.Texte("fax", numero), e.Texte("email", adresseWeb),
           e.Texte("siteWeb", adresseWeb), Texte(e, noteLibre, "notes")});
      noms.Exige(e, "nom", lus_.favoris.back().nom);
    };
    Lit("favoris.toml",
        {{"categorie", "nom", clesCategorie, categorie}, {"favori", "nom", clesFavori, favori}});
  }

  std::int16_t Categorie(const Entree& e) {
    const std::string categorie = e.Texte("categorie", nomLong);
    const auto place = std::find(lus_.categories.begin(), lus_.categories.end(), categorie);
    if (place == lus_.categories.end()) {
      e.Refuse("categorie", "[" + VersUtf8(categorie) + "] inconnue");
    }
    return Numero<std::int16_t>(static_cast<std::size_t>(place - lus_.categories.begin()));
  }

  void Millesimes() {
    constexpr std::int16_t premiere = 1928;
    constexpr std::int16_t derniere = 2100;
    constexpr std::int16_t meilleure = 5;
    std::int16_t attendue = premiere;
    Lit("millesimes.toml",
        {{"annee", "an", clesAnnee, [&](const Entree& e) {
            const std::int16_t an = e.Nombre("an", premiere, derniere);
            if (an != attendue) {
              e.Refuse("an", std::to_string(attendue) + " attendu, les années se suivent");
            }
            attendue = static_cast<std::int16_t>(an + 1);
            Annee annee{};
            std::transform(colonnes.begin() + 1, colonnes.end(), annee.begin(),
                           [&](const char* terroir) { return e.Nombre(terroir, 0, meilleure); });
            lus_.millesimes.push_back(annee);
          }}});
  }

  /// The least counts that the program asks of its files at the start.
  void ExigeNombres() {
    const auto exige = [&](Donnees fichier, const char* source, const char* rubrique,
                           std::size_t nombre) {
      const auto moindre = static_cast<std::size_t>(std::max<int>(Ligne(fichier).moindre, 1));
      if (nombre < moindre) {
        journal_.Refuse({source}, rubrique,
                        std::to_string(nombre) + " entrées, au moins " + std::to_string(moindre) +
                            " attendues");
      }
    };
    exige(Donnees::GLR1, "recettes/familles.toml", "famille", lus_.familles.size());
    exige(Donnees::GLR2, "recettes", "recette", lus_.recettes.size());
    exige(Donnees::GLF1, "fromages.toml", "fromage", lus_.fromages.size());
    exige(Donnees::GLM1, "menus.toml", "menu", lus_.menus.size());
    exige(Donnees::GLV1, "vins/regions.toml", "region", lus_.regions.size());
    exige(Donnees::GLV2, "vins", "vin", lus_.vins.size());
    exige(Donnees::GLMV, "millesimes.toml", "annee", lus_.millesimes.size());
    exige(Donnees::GLT1, "trucs.toml", "truc", lus_.trucs.size());
    exige(Donnees::GLFV1, "favoris.toml", "categorie", lus_.categories.size());
    exige(Donnees::GLFV2, "favoris.toml", "favori", lus_.favoris.size());
  }

  /// A source that no family and no region names would be forgotten in silence.
  void ExigeToutLu() {
    std::set<std::string> presentes;
    std::error_code ignoree;
    for (const auto& place : std::filesystem::recursive_directory_iterator(dossier_, ignoree)) {
      if (place.path().extension() == ".toml") {
        presentes.insert(place.path().lexically_relative(dossier_).generic_string());
      }
    }
    for (const std::string& presente : presentes) {
      if (!sourcesLues_.contains(presente)) {
        journal_.Refuse({presente}, "fichier", "rien ne le nomme, il n'est pas lu");
      }
    }
  }

  /// A catalogue whose every text says something, a colon, then why, reads like one machine's.
  void ExigeVariete() {
    const auto exige = [&](const char* source, const auto& entrees, std::string_view apres) {
      const auto nombre = entrees.size();
      const auto expliques = static_cast<std::size_t>(
          std::count_if(entrees.begin(), entrees.end(), [&](const auto& entree) {
            const std::string_view texte = entree.texte;
            return ExpliqueApresDeuxPoints(texte.substr(texte.find(apres) + apres.size()));
          }));
      if (2 * expliques > nombre) {
        journal_.Refuse({source}, "deux-points",
                        std::to_string(expliques) + " textes sur " + std::to_string(nombre) +
                            " s'expliquent après un deux-points, au plus la moitié permise");
      }
    };
    exige("recettes", lus_.recettes, legendeConseil);
    exige("vins", lus_.vins, "");
    exige("fromages.toml", lus_.fromages, "");
    exige("trucs.toml", lus_.trucs, "");
  }

  std::filesystem::path dossier_;
  std::filesystem::path images_;
  Journal& journal_;
  Catalogues lus_;
  Uniques textes_;
  std::set<std::string> sourcesLues_;
};

}  // namespace

Catalogues LitCatalogues(const std::filesystem::path& dossier, const std::filesystem::path& images,
                         Journal& journal) {
  return Lecture(dossier, images, journal).Tout();
}

}  // namespace gastrelle::usine
