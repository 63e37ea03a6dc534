// docs/formats.md says what the program does: its tables and examples against the code.

#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "PageFormats.h"
#include "data/CatalogueFichiers.h"
#include "data/Chemins.h"
#include "data/Enregistrements.h"
#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {
namespace {

template <std::size_t N>
std::string Genre(const TexteFixe<N>&) {
  return "text";
}

std::string Genre(std::int16_t) {
  return "i16";
}

std::string Genre(std::int32_t) {
  return "i32";
}

template <std::size_t N>
void Pose(TexteFixe<N>& champ, const std::string& valeur) {
  EXPECT_TRUE(valeur.size() >= 2 && valeur.front() == '"' && valeur.back() == '"') << valeur;
  champ = DepuisUtf8(valeur.substr(1, valeur.size() - 2));
}

template <class Entier>
void Pose(Entier& champ, const std::string& valeur) {
  champ = Tenu<Entier>(std::stoll(valeur));
}

/// `name=value name="a text"`, as a map.
std::map<std::string, std::string> Valeurs(const std::string& texte) {
  std::map<std::string, std::string> valeurs;
  for (std::size_t i = 0; i < texte.size();) {
    const std::size_t egal = texte.find('=', i);
    const bool cite = texte[egal + 1] == '"';
    const std::size_t fin = cite ? texte.find('"', egal + 2) + 1 : texte.find(' ', egal);
    valeurs[texte.substr(i, egal - i)] = texte.substr(egal + 1, fin - egal - 1);
    i = fin == std::string::npos ? texte.size() : fin + 1;
  }
  return valeurs;
}

/// `"a text" "another"`, one behind the other; "\r" and "\n" stand for the line break.
std::string Textes(std::string texte) {
  for (const auto& [signe, octet] : {std::pair{"\\r", "\r"}, std::pair{"\\n", "\n"}}) {
    for (std::size_t i = 0; (i = texte.find(signe, i)) != std::string::npos;) {
      texte.replace(i, 2, octet);
    }
  }
  std::string resultat;
  for (std::size_t i = 0; (i = texte.find('"', i)) != std::string::npos;) {
    const std::size_t fin = texte.find('"', i + 1);
    resultat += texte.substr(i + 1, fin - i - 1);
    i = fin + 1;
  }
  return DepuisUtf8(resultat);
}

/// The name of a record type in the page, tied to its type.
struct TypeDecrit {
  const char* nom;
  std::size_t longueur;
  std::vector<Rangee> (*table)();
  std::string (*code)(std::map<std::string, std::string> valeurs);
};

template <class T>
std::vector<Rangee> TableDe() {
  std::vector<Rangee> rangees;
  const T e;
  const auto ajoute = [&](const auto& champ) {
    rangees.push_back({std::to_string(champ.decalage), std::to_string(champ.largeur),
                       Genre(e.*champ.membre), std::string(champ.nom)});
  };
  std::apply([&](const auto&... champ) { (ajoute(champ), ...); }, champs<T>);
  return rangees;
}

template <class T>
std::string CodeDe(std::map<std::string, std::string> valeurs) {
  T e;
  const auto pose = [&](const auto& champ) {
    if (const auto valeur = valeurs.find(std::string(champ.nom)); valeur != valeurs.end()) {
      Pose(e.*champ.membre, valeur->second);
      valeurs.erase(valeur);
    }
  };
  std::apply([&](const auto&... champ) { (pose(champ), ...); }, champs<T>);
  EXPECT_TRUE(valeurs.empty()) << "pas de champ " << valeurs.begin()->first;
  return Octets(e);
}

template <class T>
constexpr TypeDecrit Decrit(const char* nom) {
  return {nom, longueurEnregistrement<T>, TableDe<T>, CodeDe<T>};
}

constexpr TypeDecrit types[] = {
    Decrit<RecFamille>("RecFamille"),         Decrit<RecRecette>("RecRecette"),
    Decrit<RecFromage>("RecFromage"),         Decrit<RecFiche>("RecFiche"),
    Decrit<RecRegion>("RecRegion"),           Decrit<RecVin>("RecVin"),
    Decrit<RecMillesime>("RecMillesime"),     Decrit<RecFavori>("RecFavori"),
    Decrit<RecPreferences>("RecPreferences"), Decrit<LigneRayon>("LigneRayon"),
};

const TypeDecrit* Type(const std::string& nom) {
  const auto* type =
      std::find_if(std::begin(types), std::end(types), [&](const auto& t) { return t.nom == nom; });
  return type == std::end(types) ? nullptr : type;
}

/// A row of the table of files, as the code has it.
Rangee RangeeDe(std::size_t i) {
  const LigneCatalogue& ligne = catalogueFichiers[i];
  const bool entete = ligne.controle == Controle::entete;
  const bool controle = ligne.controle != Controle::aucun;
  return {std::to_string(i + 1),
          std::string(ligne.nom),
          ligne.longueur == 0 ? "-" : std::to_string(ligne.longueur),
          entete ? "header" : (controle ? "name" : "none"),
          entete ? std::to_string(ligne.moindre) : "-",
          controle ? std::string(Signature(static_cast<Donnees>(i))) : "-",
          !entete ? "-" : (ligne.rognage == Rognage::deuxBouts ? "both" : "right")};
}

TEST(DocumentationFormats, DonneLesVingtFichiers) {
  const std::vector<Rangee> rangees = PageFormats().Table("The twenty files");
  ASSERT_EQ(rangees.size(), nombreFichiers);
  for (std::size_t i = 0; i < rangees.size(); ++i) {
    Rangee rangee = rangees[i];
    const TypeDecrit* type = Type(rangee.at(3));
    EXPECT_EQ(type == nullptr ? 0 : type->longueur, catalogueFichiers[i].longueur);
    rangee.erase(rangee.begin() + 3);  // the type, just seen
    rangee.pop_back();                 // what the file holds
    EXPECT_EQ(rangee, RangeeDe(i));
  }
}

TEST(DocumentationFormats, DonneLesChampsDeChaqueType) {
  const PageFormats page;
  for (const TypeDecrit& type : types) {
    SCOPED_TRACE(type.nom);
    std::vector<Rangee> rangees =
        page.Table(std::string(type.nom) + " (" + std::to_string(type.longueur) + " bytes)");
    for (Rangee& rangee : rangees) {
      EXPECT_FALSE(rangee.at(4).empty());
      rangee.resize(4);
    }
    EXPECT_EQ(rangees, type.table());
  }
}

TEST(DocumentationFormats, DonneDesExemplesJustes) {
  for (const Exemple& exemple : PageFormats().Exemples()) {
    SCOPED_TRACE(exemple.sujet + " " + exemple.valeurs);
    const TypeDecrit* type = Type(exemple.sujet);
    const std::string attendu = type == nullptr ? exemple.sujet + Textes(exemple.valeurs)
                                                : type->code(Valeurs(exemple.valeurs));
    EXPECT_EQ(OctetsDe(exemple.lignes), attendu);
  }
}

TEST(DocumentationFormats, DonneUnExempleDeChaqueType) {
  std::set<std::string> sujets;
  for (const Exemple& exemple : PageFormats().Exemples()) {
    sujets.insert(exemple.sujet);
  }
  for (const TypeDecrit& type : types) {
    EXPECT_TRUE(sujets.contains(type.nom)) << type.nom;
  }
  EXPECT_TRUE(sujets.contains("GLM2.DAT"));
  EXPECT_TRUE(sujets.contains("GLMCN.DAT"));
}

TEST(DocumentationFormats, DonneLaFormeDesCheminsDImages) {
  const std::vector<Rangee> rangees = PageFormats().Table("Picture paths");
  ASSERT_GE(rangees.size(), 5U);
  for (const Rangee& rangee : rangees) {
    const bool posix = rangee.at(0).starts_with('/');
    const Chemins chemins(posix ? Convention::posix : Convention::windows, rangee[0]);
    EXPECT_EQ(chemins.FormeCourte(rangee.at(1)), rangee.at(2));
  }
}

}  // namespace
}  // namespace gastrelle::essai
