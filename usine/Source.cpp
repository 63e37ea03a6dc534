#include "usine/Source.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

#include "data/Texte1252.h"
#include "usine/Usages.h"

namespace gastrelle::usine {
namespace {

/// The first character that the code page doesn't hold, and its number.
std::string CaractereEtranger(std::string_view utf8) {
  for (std::size_t i = 0; i < utf8.size();) {
    const detail::Point point = detail::LitPoint(utf8, i);
    if (OctetDe(point.code) < 0) {
      std::ostringstream texte;
      texte << '[' << utf8.substr(i, point.suite - i) << "] (U+" << std::hex << std::uppercase
            << std::setw(4) << std::setfill('0') << static_cast<std::uint32_t>(point.code) << ')';
      return texte.str();
    }
    i = point.suite;
  }
  return {};
}

/// What stands around a place of a text, on its line.
std::string Extrait(std::string_view texte, std::size_t position) {
  constexpr std::size_t autour = 20;
  const std::size_t saut = position > 0 ? texte.rfind('\n', position - 1) : std::string_view::npos;
  std::size_t debut = saut == std::string_view::npos ? 0 : saut + 1;
  debut = std::max(debut, position > autour ? position - autour : 0);
  const std::size_t fin = std::min(texte.find('\n', position + 1), position + autour);
  return VersUtf8(texte.substr(debut, fin - debut));
}

/// Lines of the source between the beginning of a text and one of its bytes.
std::size_t LignesAvant(const toml::node& valeur, std::string_view texte, std::size_t position) {
  const auto nombre = [](std::string_view t) {
    return static_cast<std::size_t>(std::count(t.begin(), t.end(), '\n'));
  };
  const toml::source_region& region = valeur.source();
  const std::size_t etendue = region.end.line - region.begin.line;
  const std::size_t sauts = nombre(texte);
  if (etendue < sauts || etendue > sauts + 1) {
    return 0;  // escapes: the text doesn't lie in the source as it reads
  }
  return etendue - sauts + nombre(texte.substr(0, position));
}

}  // namespace

Lieu Entree::lieu() const {
  return {fichier_, table_.source().begin.line};
}

void Entree::Refuse(const std::string& raison) const {
  journal_.Refuse(lieu(), nom_, raison);
}

void Entree::Refuse(const char* cle, const std::string& raison) const {
  const toml::node* valeur = table_.get(cle);
  RefuseEn(valeur != nullptr ? *valeur : table_, 0, std::string(cle) + " : " + raison);
}

void Entree::RefuseEn(const toml::node& noeud, std::size_t lignes,
                      const std::string& raison) const {
  journal_.Refuse({fichier_, noeud.source().begin.line + lignes}, nom_, raison);
}

void Entree::RefuseFaute(const char* cle, const toml::node& valeur, std::string_view texte,
                         const Faute& faute) const {
  RefuseEn(valeur, LignesAvant(valeur, texte, faute.position),
           std::string(cle) + " : " + faute.raison + " : [" + Extrait(texte, faute.position) + "]");
}

std::string Entree::Examine(const char* cle, const toml::node& valeur, Mesure mesure) const {
  const std::string debut = std::string(cle) + " : ";
  const auto utf8 = valeur.value<std::string>();
  if (!utf8) {
    RefuseEn(valeur, 0, debut + "texte attendu");
    return {};
  }
  std::string texte = DepuisUtf8(*utf8);
  if (!TientEn1252(*utf8)) {
    RefuseEn(valeur, 0, debut + CaractereEtranger(*utf8) + " ne tient pas en Windows-1252");
    return texte;
  }
  const std::size_t longueur = Compose(texte).size();
  if (longueur < mesure.moindre) {
    RefuseEn(valeur, 0,
             debut + std::to_string(longueur) + " caractères, au moins " +
                 std::to_string(mesure.moindre) + " attendus");
  }
  if (longueur > mesure.plus) {
    RefuseEn(valeur, 0,
             debut + std::to_string(longueur) + " caractères, au plus " +
                 std::to_string(mesure.plus) + " permis");
  }
  if (const auto faute = FauteTypographique(texte, mesure.forme)) {
    RefuseFaute(cle, valeur, texte, *faute);
  } else if (const auto ecart = FauteUsage(texte, mesure.forme.usages)) {
    RefuseFaute(cle, valeur, texte, *ecart);
  }
  return texte;
}

std::string Entree::Texte(const char* cle, Mesure mesure) const {
  if (const toml::node* valeur = table_.get(cle)) {
    return Examine(cle, *valeur, mesure);
  }
  if (mesure.moindre > 0) {
    Refuse(cle, "texte attendu");
  }
  return {};
}

std::vector<std::string> Entree::Textes(const char* cle, std::size_t moindre, Mesure mesure) const {
  std::vector<std::string> textes;
  if (const toml::array* valeurs = table_[cle].as_array()) {
    for (const toml::node& valeur : *valeurs) {
      textes.push_back(Examine(cle, valeur, mesure));
    }
  }
  if (textes.size() < moindre) {
    Refuse(cle, "au moins " + std::to_string(moindre) + " attendus");
  }
  return textes;
}

std::int16_t Entree::Nombre(const char* cle, std::int16_t moindre, std::int16_t plus) const {
  const auto valeur = table_[cle].value_exact<std::int64_t>();
  if (!valeur || *valeur < moindre || *valeur > plus) {
    Refuse(cle, "nombre de " + std::to_string(moindre) + " à " + std::to_string(plus) + " attendu");
    return moindre;
  }
  return static_cast<std::int16_t>(*valeur);
}

std::int16_t Entree::Code(const char* cle, std::span<const std::string_view> mots) const {
  const std::string mot = table_[cle].value_or(std::string{});
  const auto place = std::find(mots.begin(), mots.end(), mot);
  if (place == mots.end()) {
    Refuse(cle, "[" + mot + "] inconnu");
    return 0;
  }
  return static_cast<std::int16_t>(place - mots.begin());
}

void Entree::ExigeCles(std::span<const std::string_view> connues) const {
  for (const auto& [cle, valeur] : table_) {
    if (std::find(connues.begin(), connues.end(), cle.str()) == connues.end()) {
      RefuseEn(valeur, 0, "clé inconnue : " + std::string(cle.str()));
    }
  }
}

namespace {

void LitRubrique(const toml::array& entrees, const std::string& fichier, const Rubrique& rubrique,
                 Journal& journal) {
  std::size_t rang = 0;
  for (const toml::node& noeud : entrees) {
    const std::string entree = "entrée " + std::to_string(++rang);
    const toml::table* contenu = noeud.as_table();
    if (contenu == nullptr) {
      journal.Refuse({fichier, noeud.source().begin.line}, entree, "table attendue");
      continue;
    }
    const toml::node_view valeur = (*contenu)[rubrique.cleNom];
    const std::string nom =
        valeur.is_integer() ? std::to_string(valeur.value_or(0)) : valeur.value_or(entree);
    const Entree e(*contenu, fichier, nom.substr(0, nom.find('\n')), journal);
    e.ExigeCles(rubrique.cles);
    rubrique.pourChaque(e);
  }
}

}  // namespace

void LitSource(const std::filesystem::path& dossier, const std::string& fichier,
               std::span<const Rubrique> rubriques, Journal& journal) {
  if (!std::filesystem::is_regular_file(dossier / fichier)) {
    journal.Refuse({fichier}, "fichier", "introuvable");
    return;
  }
  toml::table table;
  try {
    table = toml::parse_file((dossier / fichier).string());
  } catch (const toml::parse_error& erreur) {
    journal.Refuse({fichier, erreur.source().begin.line}, "fichier",
                   "TOML : " + std::string(erreur.description()));
    return;
  }
  for (const auto& [cle, valeur] : table) {
    const auto meme = [&, nom = cle.str()](const Rubrique& r) { return nom == r.cle; };
    if (std::none_of(rubriques.begin(), rubriques.end(), meme)) {
      journal.Refuse({fichier, valeur.source().begin.line}, std::string(cle.str()),
                     "rubrique inconnue");
    }
  }
  for (const Rubrique& rubrique : rubriques) {
    const toml::array* entrees = table[rubrique.cle].as_array();
    if (entrees == nullptr || entrees->empty()) {
      journal.Refuse({fichier}, rubrique.cle, "aucune entrée");
    } else {
      LitRubrique(*entrees, fichier, rubrique, journal);
    }
  }
}

bool Uniques::Exige(const Entree& entree, const char* cle, std::string_view texte) {
  if (texte.empty()) {
    return false;
  }
  const auto [premier, neuf] = vus_.emplace(Majuscules(texte), entree.lieu().EnTexte());
  if (!neuf) {
    entree.Refuse(cle, "déjà donné en " + premier->second);
  }
  return neuf;
}

}  // namespace gastrelle::usine
